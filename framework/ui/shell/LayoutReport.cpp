#include "framework/ui/shell/LayoutReport.h"

#include "framework/ui/parts/Report.h"

#include <QApplication>
#include <QEvent>
#include <QJsonArray>
#include <QMenu>

namespace framework {

namespace {

constexpr int kSettleMs = 150;

bool ChangesLayout(QEvent::Type type)
{
    switch (type) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
    case QEvent::EnabledChange:
        return true;
    default:
        return false;
    }
}

void AddWidget(const QWidget& widget, QJsonObject& items)
{
    const QString name = widget.objectName();
    if (widget.isVisible() && !name.isEmpty() && !name.startsWith("qt_"))
        items.insert("ui:" + name, ToJSON(ScreenRect(widget)));
}

void AddMenu(const QMenu& menu, QJsonObject& items)
{
    for (QAction* action : menu.actions())
        if (action->isVisible() && !action->objectName().isEmpty())
            items.insert("menu:" + action->objectName(),
                         ToJSON(ScreenRect(menu, menu.actionGeometry(action))));
}

} // namespace

CLayoutReport::CLayoutReport(CReport& report, Collect collect)
    : m_report(report), m_collect(std::move(collect))
{
    m_settle.setSingleShot(true);
    connect(&m_settle, &QTimer::timeout, this, &CLayoutReport::Tell);
    qApp->installEventFilter(this);
    m_settle.start(kSettleMs);
}

bool CLayoutReport::eventFilter(QObject* watched, QEvent* event)
{
    if (watched->isWidgetType() && ChangesLayout(event->type()))
        m_settle.start(kSettleMs);
    return false;
}

void CLayoutReport::Tell()
{
    QJsonObject items;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        if (const auto* menu = qobject_cast<const QMenu*>(window))
            AddMenu(*menu, items);
        for (const QWidget* widget : window->findChildren<QWidget*>())
            AddWidget(*widget, items);
    }
    m_collect(items);
    if (items == m_last)
        return;
    m_last = items;
    m_report.Tell("layout", {{"items", items}});
}

} // namespace framework
