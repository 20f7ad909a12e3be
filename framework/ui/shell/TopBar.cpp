#include "framework/ui/shell/TopBar.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "framework/core/Users.h"
#include "framework/ui/parts/WindowTable.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

namespace framework {

namespace {

using namespace VantorGUIToolkit;

constexpr int kHeight = 48;
constexpr int kIconSize = 20;
constexpr int kBellWidth = 56;
constexpr int kMostShown = 99;

QToolButton* MakeBarButton(const QString& iconName, const QString& name, QWidget* parent)
{
    QToolButton* button = makeIconButton(iconName, name, parent);
    button->setIconSize({kIconSize, kIconSize});
    button->setFixedHeight(Grid::Huge);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

CTopBar::CTopBar(QWidget* parent)
    : QFrame(parent), m_date(new QLabel(this)), m_time(new QLabel(this)), m_unread(new QLabel(this)),
      m_user(MakeUserButton())
{
    setObjectName("topBar");
    setSurface(this, Surface::Bar);
    setFixedHeight(kHeight);
    QToolButton* menu = MakeBarButton("menu", tr("Show or hide the navigation"), this);
    menu->setObjectName("navigationToggle");
    connect(menu, &QToolButton::clicked, this, &CTopBar::NavigationToggled);
    QLabel* product = makeLabel(tr("Vantor Video Client"), TextRole::Heading, this);
    product->setObjectName("productTitle");
    product->setWordWrap(false);
    m_date->setObjectName("date");
    m_date->setProperty("role", "hint");
    m_time->setObjectName("clock");

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(Grid::Medium, 0, Grid::Medium, 0);
    layout->setSpacing(Grid::Small);
    layout->addWidget(menu);
    layout->addWidget(product);
    layout->addStretch();
    layout->addWidget(m_date);
    layout->addWidget(m_time);
    layout->addSpacing(Grid::Small);
    layout->addWidget(MakeBell());
    layout->addWidget(m_user);
    setTabOrder(menu, findChild<QWidget*>("bell"));
    setTabOrder(findChild<QWidget*>("bell"), m_user);
    SetUnread(0);
    ShowTime();
    connect(&m_clock, &QTimer::timeout, this, &CTopBar::ShowTime);
    m_clock.start(1000);
}

QWidget* CTopBar::MakeBell()
{
    auto* place = new QWidget(this);
    auto* bell = MakeBarButton("bell", TitleOf("Notices"), place);
    bell->setObjectName("bell");
    m_unread->setParent(place);
    m_unread->setObjectName("unreadCount");
    m_unread->setAlignment(Qt::AlignCenter);
    m_unread->setAttribute(Qt::WA_TransparentForMouseEvents);
    // The number lies over the bell's corner, so that nothing moves when it comes and goes.
    auto* layout = new QGridLayout(place);
    layout->setContentsMargins(0, 0, Grid::Small, 0);
    layout->addWidget(bell, 0, 0, Qt::AlignCenter);
    layout->addWidget(m_unread, 0, 0, Qt::AlignTop | Qt::AlignTrailing);
    place->setFixedSize(kBellWidth, kHeight - Grid::Small);
    connect(bell, &QToolButton::clicked, this, &CTopBar::NoticesRequested);
    return place;
}

QToolButton* CTopBar::MakeUserButton()
{
    QToolButton* button = MakeBarButton("user", tr("User"), this);
    button->setObjectName("userButton");
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    menu->setObjectName("userMenu");
    const auto add = [&](const char* iconName, const QString& text, const char* name, auto signal) {
        QAction* action = menu->addAction(icon(iconName), text, this, signal);
        action->setObjectName(name);
        return action;
    };
    add("users", tr("Switch user…"), "actionSwitchUser", &CTopBar::SwitchUserRequested);
    m_settings = add("settings", tr("Settings"), "actionSettings", &CTopBar::SettingsRequested);
    menu->addSeparator();
    add("power", tr("End the program"), "actionEnd", &CTopBar::EndRequested);
    button->setMenu(menu);
    return button;
}

void CTopBar::SetUser(const User& user)
{
    m_user->setText(QString::fromStdString(user.name));
    m_settings->setVisible(user.May(permission::kSystemConfig));
}

void CTopBar::SetUnread(int count)
{
    m_unread->setVisible(count > 0);
    const QString number = toolkit().locale().toString(std::min(count, kMostShown));
    m_unread->setText(count > kMostShown ? tr("%1+").arg(number) : number);
}

void CTopBar::ShowTime()
{
    const QDateTime now = QDateTime::currentDateTime();
    m_date->setText(toolkit().dateText(now.date()));
    m_time->setText(toolkit().timeText(now.time()));
}

} // namespace framework
