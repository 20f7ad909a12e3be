#include "framework/ui/shell/Navigation.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "framework/ui/parts/StartAlignedButton.h"

#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace framework {

namespace Grid = VantorGUIToolkit::Grid;

namespace {

constexpr int kWideWidth = 240;
constexpr int kNarrowWidth = 56;
constexpr int kItemIcon = 20;
constexpr int kHeadingIcon = 12;
constexpr WindowGroup kGroups[] = {WindowGroup::Start,     WindowGroup::LiveView, WindowGroup::Playback,
                                   WindowGroup::Recording, WindowGroup::Devices,  WindowGroup::Tools,
                                   WindowGroup::System};

QPushButton* MakeButton(const char* kind, int iconSize, QWidget* parent)
{
    auto* button = new CStartAlignedButton(parent);
    button->setProperty("kind", kind);
    button->setIconSize({iconSize, iconSize});
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    button->setFocusPolicy(Qt::TabFocus); // a press of the mouse leaves no frame behind
    return button;
}

} // namespace

CNavigation::CNavigation(QWidget* parent) : QFrame(parent)
{
    setObjectName("navigation");
    setProperty("surface", "bar");
    auto* list = new QWidget(this);
    list->setObjectName("navigationList");
    auto* rows = new QVBoxLayout(list);
    rows->setContentsMargins(Grid::Small, Grid::Small, Grid::Small, Grid::Small);
    rows->setSpacing(0);
    for (const WindowGroup group : kGroups)
        AddGroup(group, *rows);
    rows->addStretch();

    auto* scroll = new QScrollArea(this);
    scroll->setObjectName("navigationScroll");
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(list);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(scroll);
    setFixedWidth(kWideWidth);
}

void CNavigation::AddGroup(WindowGroup group, QVBoxLayout& list)
{
    auto* box = new QWidget(this);
    m_groups.insert(static_cast<int>(group), box);
    list.addWidget(box);
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, group == WindowGroup::Start ? 0 : Grid::Small, 0, 0);
    layout->setSpacing(0);
    if (group != WindowGroup::Start) {
        QPushButton* heading = MakeButton("navGroup", kHeadingIcon, this);
        heading->setObjectName(QString("navGroup%1").arg(static_cast<int>(group)));
        heading->setText(TitleOf(group));
        connect(heading, &QPushButton::clicked, this, [this, group] { Toggle(group); });
        m_headings.insert(static_cast<int>(group), heading);
        layout->addWidget(heading);
    }
    for (const WindowRow& row : AllWindows())
        if (row.group == group)
            AddItem(row, *layout);
}

void CNavigation::AddItem(const WindowRow& row, QVBoxLayout& layout)
{
    QPushButton* item = MakeButton("nav", kItemIcon, this);
    const QString name = row.name;
    item->setObjectName("nav" + name);
    item->setCheckable(true);
    item->setIcon(VantorGUIToolkit::icon(row.icon));
    item->setText(row.Title());
    item->setToolTip(row.Title());
    item->setAccessibleName(row.Title());
    connect(item, &QPushButton::clicked, this, [this, name, item] {
        item->setChecked(true);
        emit OpenRequested(name);
    });
    m_items.insert(name, item);
    layout.addWidget(item);
}

void CNavigation::SetUser(const User& user)
{
    m_user = user;
    UpdateItems();
}

void CNavigation::SetCurrent(const QString& name)
{
    for (auto item = m_items.cbegin(); item != m_items.cend(); ++item)
        item.value()->setChecked(item.key() == name);
}

void CNavigation::SetCollapsed(bool collapsed)
{
    m_collapsed = collapsed;
    setFixedWidth(collapsed ? kNarrowWidth : kWideWidth);
    UpdateItems();
}

void CNavigation::SetClosedGroups(const QList<WindowGroup>& groups)
{
    m_closed = groups;
    UpdateItems();
}

const QPushButton* CNavigation::Item(const QString& name) const
{
    return m_items.value(name);
}

void CNavigation::Toggle(WindowGroup group)
{
    if (!m_closed.removeOne(group))
        m_closed.append(group);
    UpdateItems();
    emit GroupsChanged();
}

bool CNavigation::IsShown(const WindowRow& row) const
{
    return row.MayOpen(m_user) && (m_collapsed || !m_closed.contains(row.group));
}

void CNavigation::UpdateItems()
{
    QHash<int, bool> groupHasItems;
    for (const WindowRow& row : AllWindows()) {
        QPushButton* item = m_items.value(row.name);
        item->setVisible(IsShown(row));
        item->setText(m_collapsed ? QString() : row.Title());
        groupHasItems[static_cast<int>(row.group)] |= row.MayOpen(m_user);
    }
    for (auto box = m_groups.cbegin(); box != m_groups.cend(); ++box)
        box.value()->setVisible(groupHasItems.value(box.key()));
    for (auto heading = m_headings.cbegin(); heading != m_headings.cend(); ++heading) {
        const bool closed = m_closed.contains(static_cast<WindowGroup>(heading.key()));
        heading.value()->setIcon(VantorGUIToolkit::icon(!closed ? "chevron-down"
                                                        : layoutDirection() == Qt::RightToLeft
                                                            ? "chevron-left"
                                                            : "chevron-right"));
        heading.value()->setVisible(!m_collapsed);
    }
}

} // namespace framework
