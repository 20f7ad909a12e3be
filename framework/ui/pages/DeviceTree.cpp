#include "framework/ui/pages/DeviceTree.h"

#include "VantorGUIToolkit/Icons.h"
#include "framework/ui/parts/DeviceText.h"

#include <QHash>
#include <QSet>
#include <QTreeWidgetItemIterator>

namespace framework {

using namespace UiDataController;

namespace {

enum Column { NameColumn, StateColumn };

constexpr int kNameWidth = 240;

QString StateText(const ElementInfo& element)
{
    if (element.state == ElementState::Connecting)
        return TextOf(devices::SessionState::Connecting);
    return ChannelStateText(static_cast<int>(element.state));
}

QString ToneIcon(ElementState state)
{
    using VantorGUIToolkit::Tone;
    const bool isWell = state == ElementState::Online || state == ElementState::Recording;
    return toneIconName(isWell ? Tone::Ok : state == ElementState::Offline ? Tone::Error : Tone::Info);
}

} // namespace

CDeviceTree::CDeviceTree(IElementSource& source, QWidget* parent) : QTreeWidget(parent), m_source(source)
{
    setHeaderHidden(true);
    setColumnCount(2);
    setColumnWidth(NameColumn, kNameWidth);
    setUniformRowHeights(true);
    Fill();
    m_source.AddObserver(*this);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &CDeviceTree::SelectionChanged);
}

CDeviceTree::~CDeviceTree()
{
    m_source.RemoveObserver(*this);
}

QString CDeviceTree::Selected() const
{
    const QList<QTreeWidgetItem*> items = selectedItems();
    return items.isEmpty() ? QString() : items.front()->data(NameColumn, Qt::UserRole).toString();
}

void CDeviceTree::Select(const QString& id)
{
    for (QTreeWidgetItemIterator item(this); *item; ++item)
        if ((*item)->data(NameColumn, Qt::UserRole).toString() == id)
            return setCurrentItem(*item);
}

void CDeviceTree::SetSearch(const QString& text)
{
    m_search = text;
    Hide();
}

void CDeviceTree::OnElements(std::uint64_t, const ElementChanges&)
{
    Fill();
}

void CDeviceTree::Fill()
{
    const QString selected = Selected();
    QSet<QString> closed;
    for (int row = 0; row < topLevelItemCount(); ++row)
        if (!topLevelItem(row)->isExpanded())
            closed.insert(topLevelItem(row)->data(NameColumn, Qt::UserRole).toString());
    {
        const QSignalBlocker blocker(this);
        clear();
        QHash<QString, QTreeWidgetItem*> devices;
        for (const ElementInfo& element : m_source.Snapshot().elements) {
            const bool isChannel = element.type == ElementType::Channel;
            auto* item =
                isChannel ? new QTreeWidgetItem(devices.value(element.deviceId)) : new QTreeWidgetItem(this);
            Show(item, element);
            if (!isChannel) {
                devices.insert(element.id, item);
                item->setExpanded(!closed.contains(element.id));
            }
        }
        Select(selected);
        Hide();
    }
    emit SelectionChanged();
}

void CDeviceTree::Show(QTreeWidgetItem* item, const ElementInfo& element)
{
    const bool isChannel = element.type == ElementType::Channel;
    item->setData(NameColumn, Qt::UserRole, element.id);
    item->setText(NameColumn, element.name);
    item->setIcon(NameColumn,
                  VantorGUIToolkit::icon(isChannel ? "camera" : DeviceTypeIcon(element.typeCode)));
    item->setText(StateColumn, StateText(element));
    item->setIcon(StateColumn, VantorGUIToolkit::icon(ToneIcon(element.state)));
    item->setToolTip(StateColumn, element.problem);
}

void CDeviceTree::Hide()
{
    const auto isHit = [this](QTreeWidgetItem* item) {
        return item->text(NameColumn).contains(m_search, Qt::CaseInsensitive);
    };
    for (int row = 0; row < topLevelItemCount(); ++row) {
        QTreeWidgetItem* device = topLevelItem(row);
        bool isAnyHit = isHit(device);
        for (int index = 0; index < device->childCount(); ++index) {
            const bool isShown = isHit(device) || isHit(device->child(index));
            device->child(index)->setHidden(!isShown);
            isAnyHit = isAnyHit || isShown;
        }
        device->setHidden(!isAnyHit);
    }
}

} // namespace framework
