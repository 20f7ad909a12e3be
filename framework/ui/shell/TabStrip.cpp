#include "framework/ui/shell/TabStrip.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QMouseEvent>
#include <QTabBar>
#include <QToolButton>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

QTabBar* MakeBar(QWidget* parent)
{
    auto* bar = new QTabBar(parent);
    bar->setObjectName("tabBar");
    bar->setMovable(true);
    bar->setTabsClosable(true);
    bar->setDrawBase(false);
    bar->setExpanding(false);
    bar->setElideMode(Qt::ElideNone);
    bar->setUsesScrollButtons(true);
    bar->setIconSize({Grid::Large, Grid::Large});
    bar->setContextMenuPolicy(Qt::CustomContextMenu);
    return bar;
}

} // namespace

CTabStrip::CTabStrip(QWidget* parent)
    : QFrame(parent), m_bar(MakeBar(this)), m_all(makeIconButton("chevron-down", tr("All open tabs"), this)),
      m_list(new QMenu(m_all))
{
    setObjectName("tabStrip");
    m_all->setObjectName("allTabs");
    m_all->setFocusPolicy(Qt::TabFocus);
    m_all->setPopupMode(QToolButton::InstantPopup);
    m_all->setMenu(m_list);
    m_list->setObjectName("allTabsMenu");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, Grid::Small, 0);
    layout->setSpacing(Grid::Tight);
    layout->addWidget(m_bar, 1);
    layout->addWidget(m_all);
    m_bar->installEventFilter(this);
    connect(m_bar, &QTabBar::tabCloseRequested, this, &CTabStrip::CloseRequested);
    connect(m_bar, &QWidget::customContextMenuRequested, this, &CTabStrip::ShowMenu);
    connect(m_list, &QMenu::aboutToShow, this, &CTabStrip::FillList);
}

void CTabStrip::MakePermanent(int index)
{
    for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide})
        m_bar->setTabButton(index, side, nullptr);
}

bool CTabStrip::IsPermanent(int index) const
{
    return !Cross(index);
}

const QWidget* CTabStrip::Cross(int index) const
{
    const QWidget* atStart = m_bar->tabButton(index, QTabBar::LeftSide);
    return atStart ? atStart : m_bar->tabButton(index, QTabBar::RightSide);
}

void CTabStrip::FillList()
{
    m_list->clear();
    for (int index = 0; index < m_bar->count(); ++index) {
        QAction* action = m_list->addAction(m_bar->tabIcon(index), m_bar->tabText(index), this,
                                            [this, index] { m_bar->setCurrentIndex(index); });
        action->setObjectName("actionTab" + m_bar->tabData(index).toString());
        QFont font = action->font();
        font.setBold(index == m_bar->currentIndex());
        action->setFont(font);
    }
}

void CTabStrip::ShowMenu(const QPoint& position)
{
    const int index = m_bar->tabAt(position);
    if (index < 0)
        return;
    QMenu menu(this);
    menu.setObjectName("tabMenu");
    QAction* close = menu.addAction(icon("close"), tr("Close"));
    close->setObjectName("actionClose");
    close->setEnabled(!IsPermanent(index));
    QAction* others = menu.addAction(tr("Close the others"));
    others->setObjectName("actionCloseOthers");
    QAction* all = menu.addAction(tr("Close all"));
    all->setObjectName("actionCloseAll");
    const QVariant tab = m_bar->tabData(index);
    const QAction* chosen = menu.exec(m_bar->mapToGlobal(position));
    // The tab may be gone, or be another one's neighbour, by now.
    const bool isThere = index < m_bar->count() && m_bar->tabData(index) == tab;
    if (chosen == all)
        CloseAllBut(-1);
    else if (chosen == others && isThere)
        CloseAllBut(index);
    else if (chosen == close && isThere)
        emit CloseRequested(index);
}

void CTabStrip::CloseAllBut(int kept)
{
    for (int index = m_bar->count() - 1; index >= 0; --index)
        if (index != kept && !IsPermanent(index))
            emit CloseRequested(index);
}

bool CTabStrip::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_bar || event->type() != QEvent::MouseButtonRelease)
        return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const int index = m_bar->tabAt(mouse->pos());
    if (mouse->button() != Qt::MiddleButton || index < 0 || IsPermanent(index))
        return false;
    emit CloseRequested(index);
    return true;
}

} // namespace framework
