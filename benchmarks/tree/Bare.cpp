#include "Bare.h"

#include "VantorGUIToolkit/Icons.h"

#include <QHash>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

namespace bench {

using UiDataController::ElementInfo;
using UiDataController::ElementType;

CBareTree::CBareTree(const std::vector<ElementInfo>& elements, QWidget* parent)
    : QWidget(parent), m_search(new QLineEdit(this)), m_view(new QTreeView(this))
{
    Fill(elements);
    m_proxy.setSourceModel(&m_model);
    m_proxy.setRecursiveFilteringEnabled(true);
    m_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_view->setModel(&m_proxy);
    m_view->setUniformRowHeights(true);
    m_view->setHeaderHidden(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_search);
    column->addWidget(m_view, 1);
    connect(m_search, &QLineEdit::textChanged, this, &CBareTree::Filter);
}

void CBareTree::Fill(const std::vector<ElementInfo>& elements)
{
    const QIcon recorder = VantorGUIToolkit::icon("recorder");
    const QIcon camera = VantorGUIToolkit::icon("camera");
    QHash<QString, QStandardItem*> devices;
    for (const ElementInfo& info : elements) {
        if (info.type == ElementType::Device) {
            auto* item = new QStandardItem(recorder, info.name);
            devices.insert(info.id, item);
            m_model.appendRow(item);
        } else if (info.type == ElementType::Channel) {
            devices.value(info.deviceId)->appendRow(new QStandardItem(camera, info.name));
        }
    }
}

void CBareTree::Filter(const QString& text)
{
    m_proxy.setFilterFixedString(text);
    m_view->expandAll();
}

} // namespace bench
