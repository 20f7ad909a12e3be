#include "framework/ui/shell/MainWindow.h"

#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/Notice.h"
#include "framework/core/FrameworkCore.h"
#include "framework/ui/parts/EventRelay.h"
#include "framework/ui/parts/Report.h"
#include "framework/ui/parts/Sentences.h"
#include "framework/ui/parts/UnreadNotices.h"
#include "framework/ui/parts/WindowTable.h"
#include "framework/ui/shell/ComponentTab.h"
#include "framework/ui/shell/LayoutReport.h"
#include "framework/ui/shell/Navigation.h"
#include "framework/ui/shell/StatusBar.h"
#include "framework/ui/shell/TopBar.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QJsonArray>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace framework {

namespace {

constexpr int kMoveSettleMs = 60;
constexpr int kSaveDelayMs = 500;
constexpr QSize kSmallest(1024, 640);
constexpr QSize kFirstSize(1440, 900);
constexpr int kNarrow = 1200; ///< a window below this width begins with icons only in its navigation

} // namespace

CMainWindow::CMainWindow(CFrameworkCore& core, CEventRelay& relay, CReport& report, CUnreadNotices& unread,
                         CTabArea::PageFactory pages, std::string memoryPath)
    : m_core(core), m_relay(relay), m_report(report), m_unread(unread), m_memoryPath(std::move(memoryPath)),
      m_top(new CTopBar(this)), m_navigation(new CNavigation(this)),
      m_tabs(new CTabArea(std::move(pages), this)), m_status(new CStatusBar(this))
{
    setObjectName("mainWindow");
    setWindowTitle(tr("Vantor Video Client"));
    setMinimumSize(kSmallest.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    LayOut();
    for (QTimer* timer : {&m_moved, &m_save})
        timer->setSingleShot(true);
    connect(&m_moved, &QTimer::timeout, this, &CMainWindow::TellPosition);
    connect(&m_save, &QTimer::timeout, this, &CMainWindow::Save);
    ConnectTabs();
    ConnectEvents();
    AddShortcuts();
    if (m_report.IsOpen())
        m_layoutReport =
            std::make_unique<CLayoutReport>(m_report, [this](QJsonObject& items) { CollectItems(items); });
}

CMainWindow::~CMainWindow()
{
    Save();
    m_writer.Stop();
    m_layoutReport.reset();
    // The pages' signals must not arrive in a window that is half gone.
    m_tabs->disconnect(this);
}

void CMainWindow::LayOut()
{
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_navigation);
    middle->addWidget(m_tabs, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_top);
    layout->addLayout(middle, 1);
    layout->addWidget(m_status);
}

void CMainWindow::ConnectTabs()
{
    connect(m_navigation, &CNavigation::OpenRequested, this, &CMainWindow::Open);
    connect(m_tabs, &CTabArea::CurrentChanged, this, &CMainWindow::OnCurrentTab);
    connect(m_tabs, &CTabArea::Opened, this, [this](const QString& name) {
        m_report.Tell("tab", {{"name", name}, {"state", "opened"}});
    });
    connect(m_tabs, &CTabArea::Closed, this, [this](const QString& name) {
        m_report.Tell("tab", {{"name", name}, {"state", "closed"}});
        SaveSoon();
    });
    connect(m_tabs, &CTabArea::Moved, this, &CMainWindow::SaveSoon);
    connect(m_navigation, &CNavigation::GroupsChanged, this, &CMainWindow::SaveSoon);
    connect(m_top, &CTopBar::NavigationToggled, this, &CMainWindow::ToggleNavigation);
    connect(m_top, &CTopBar::NoticesRequested, this, [this] { Open("Notices"); });
    connect(m_top, &CTopBar::SettingsRequested, this, [this] { Open("Settings"); });
    connect(m_top, &CTopBar::SwitchUserRequested, this, &CMainWindow::SwitchUserRequested);
    connect(m_top, &CTopBar::EndRequested, this, &CMainWindow::EndRequested);
}

void CMainWindow::ConnectEvents()
{
    connect(&m_relay, &CEventRelay::ComponentChanged, this, &CMainWindow::OnComponentChanged);
    connect(&m_relay, &CEventRelay::UsersChanged, this, &CMainWindow::OnUsersChanged);
    connect(&m_relay, &CEventRelay::NoticeAdded, this, &CMainWindow::OnNotice);
    connect(&m_relay, &CEventRelay::ResizeWished, this, &CMainWindow::OnResizeWish);
    connect(&m_relay, &CEventRelay::OperationAdded, this,
            [this](const JournalEntry& entry) { m_status->ShowEvent(InUserLanguage(entry.text)); });
    connect(&m_unread, &CUnreadNotices::Changed, this, [this] {
        m_top->SetUnread(m_unread.Count());
        SaveSoon();
    });
}

void CMainWindow::AddShortcuts()
{
    const auto add = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(Qt::CTRL + Qt::Key_W, [this] { m_tabs->Close(m_tabs->Current()); });
    add(Qt::CTRL + Qt::Key_Tab, [this] { m_tabs->Step(1); });
    add(Qt::CTRL + Qt::SHIFT + Qt::Key_Tab, [this] { m_tabs->Step(-1); });
    add(Qt::CTRL + Qt::Key_B, [this] { ToggleNavigation(); });
    add(Qt::Key_F11, [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
}

// What is chosen in a narrow window holds for as long as it is narrow.
void CMainWindow::ToggleNavigation()
{
    m_navigation->SetCollapsed(!m_navigation->IsCollapsed());
    if (!m_isNarrow)
        m_wantsCollapsed = m_navigation->IsCollapsed();
    SaveSoon();
}

void CMainWindow::Restore()
{
    const WindowMemory memory = WindowMemory::Load(m_memoryPath);
    QList<WindowGroup> closed;
    for (const int group : memory.closedGroups)
        closed << static_cast<WindowGroup>(group);
    const User user = m_core.Users().Current();
    m_top->SetUser(user);
    m_navigation->SetUser(user);
    m_navigation->SetClosedGroups(closed);
    m_wantsCollapsed = memory.navigationCollapsed;
    m_navigation->SetCollapsed(m_isNarrow || m_wantsCollapsed);
    m_top->SetUnread(m_unread.Count());
    m_status->SetComponent(m_core.State(), {});
    PlaceOnScreen(memory);
    OpenAsBefore(memory);
    m_tabs->setFocus();
    m_restored = true;
}

void CMainWindow::OpenAsBefore(const WindowMemory& memory)
{
    const QString home = "Home";
    if (std::find(memory.tabs.begin(), memory.tabs.end(), home.toStdString()) == memory.tabs.end())
        m_tabs->Add(home);
    for (const std::string& tab : memory.tabs)
        if (const QString name = QString::fromStdString(tab); MayOpen(name))
            m_tabs->Add(name);
    const QString current = QString::fromStdString(memory.currentTab);
    m_tabs->Open(m_tabs->Names().contains(current) ? current : home);
}

// On a screen that is smaller than the window was, the window becomes smaller too.
void CMainWindow::PlaceOnScreen(const WindowMemory& memory)
{
    const QRect free = QGuiApplication::primaryScreen()->availableGeometry();
    QRect place(QPoint(), kFirstSize.boundedTo(free.size()));
    place.moveCenter(free.center());
    const auto& kept = memory.geometry;
    if (kept.size() == 4 && kept[2] > 0 && kept[3] > 0) {
        const QRect wished(kept[0], kept[1], kept[2], kept[3]);
        if (free.contains(wished.topLeft()))
            place = QRect(wished.topLeft(), wished.size().boundedTo(free.size()));
    }
    setGeometry(place);
    if (memory.maximized)
        showMaximized();
    else
        show();
}

bool CMainWindow::Open(const QString& name)
{
    return MayOpen(name) && m_tabs->Open(name);
}

bool CMainWindow::MayOpen(const QString& name) const
{
    const WindowRow* row = FindWindow(name);
    return row && row->MayOpen(m_core.Users().Current());
}

void CMainWindow::OnComponentChanged(ComponentState state, const QString& detail)
{
    m_status->SetComponent(state, InUserLanguage(detail.toStdString()));
    for (const QString& name : m_tabs->Names())
        if (CComponentTab* tab = ComponentTab(name))
            tab->Session().OnComponentState(state);
    if (state == ComponentState::Ready)
        TellCurrentTab();
}

void CMainWindow::OnUsersChanged()
{
    const User user = m_core.Users().Current();
    m_top->SetUser(user);
    m_navigation->SetUser(user);
    for (const QString& name : m_tabs->Names())
        if (const WindowRow* row = FindWindow(name); !row->MayOpen(user))
            m_tabs->Close(name);
}

void CMainWindow::OnNotice(const JournalEntry& entry)
{
    const QString text = InUserLanguage(entry.text);
    m_status->ShowEvent(text);
    VantorGUIToolkit::CNotice::Show(text, VantorGUIToolkit::Tone::Warn, this);
}

void CMainWindow::OnCurrentTab(const QString& name)
{
    m_navigation->SetCurrent(name);
    TellCurrentTab();
    m_report.Tell("current", {{"name", name}});
    SaveSoon();
}

void CMainWindow::TellCurrentTab()
{
    const WindowRow* row = FindWindow(m_tabs->Current());
    m_core.TabSwitched(row->isOwn ? std::string() : row->name);
}

// The window grows by what the embedded one lacks, as far as the screen allows, and stays on it.
void CMainWindow::OnResizeWish(const QString& name, const QSize& size)
{
    const CComponentTab* tab = ComponentTab(name);
    if (!tab || isMaximized() || isFullScreen() || m_tabs->Current() != name)
        return;
    const QSize lacking = (size - m_tabs->Content().size()).expandedTo({0, 0});
    const QRect free = screen()->availableGeometry();
    const QSize frame = frameGeometry().size() - this->size();
    QRect place(this->pos(),
                (this->size() + lacking).boundedTo(free.size() - frame).expandedTo(this->size()));
    place.moveRight(std::min(place.right(), free.right() - frame.width()));
    place.moveBottom(std::min(place.bottom(), free.bottom() - frame.height()));
    resize(place.size());
    move(std::max(place.left(), free.left()), std::max(place.top(), free.top()));
}

void CMainWindow::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    m_moved.start(kMoveSettleMs);
}

void CMainWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_ending)
        m_ending->setGeometry(rect());
    if (const bool narrow = width() < kNarrow; narrow != m_isNarrow) {
        m_isNarrow = narrow;
        m_navigation->SetCollapsed(narrow || m_wantsCollapsed);
    }
    m_moved.start(kMoveSettleMs);
}

void CMainWindow::TellPosition()
{
    for (const QString& name : m_tabs->Names())
        if (CComponentTab* tab = ComponentTab(name))
            tab->TellPosition();
    const QPoint place = ScreenRect(*this).topLeft();
    m_core.WindowMoved(place.x(), place.y());
    SaveSoon();
}

void CMainWindow::Save()
{
    if (!m_restored)
        return;
    WindowMemory memory;
    const QRect place = normalGeometry();
    memory.geometry = {place.x(), place.y(), place.width(), place.height()};
    memory.maximized = isMaximized();
    for (const QString& name : m_tabs->Names())
        memory.tabs.push_back(name.toStdString());
    memory.currentTab = m_tabs->Current().toStdString();
    memory.navigationCollapsed = m_wantsCollapsed;
    for (const WindowGroup group : m_navigation->ClosedGroups())
        memory.closedGroups.push_back(static_cast<int>(group));
    memory.unread = m_unread.Positions();
    m_writer.PostTask([memory, path = m_memoryPath] { memory.Save(path); });
}

void CMainWindow::SaveSoon()
{
    m_save.start(kSaveDelayMs);
}

// Without a window manager nobody gives the keyboard back to this window when a dialog is closed.
bool CMainWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowUnblocked)
        activateWindow();
    return QWidget::event(event);
}

void CMainWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    emit EndRequested();
}

void CMainWindow::ShowEnding()
{
    if (m_ending)
        return;
    m_ending = new QLabel(tr("Ending…"), this);
    m_ending->setObjectName("ending");
    m_ending->setProperty("surface", "overlay");
    m_ending->setAlignment(Qt::AlignCenter);
    m_ending->setGeometry(rect());
    // Windows of another process lie above everything here; what is remembered is how it was before.
    Save();
    m_restored = false;
    Open("Home");
    m_ending->raise();
    m_ending->show();
}

void CMainWindow::CollectItems(QJsonObject& items) const
{
    for (const QString& name : m_tabs->Names()) {
        items.insert("tab:" + name, ToJSON(m_tabs->TabRect(name)));
        if (const QRect cross = m_tabs->CloseRect(name); !cross.isNull())
            items.insert("close:" + name, ToJSON(cross));
    }
    for (const WindowRow& row : AllWindows())
        if (const auto* item = m_navigation->Item(row.name); item->isVisible())
            items.insert(QString("nav:") + row.name, ToJSON(ScreenRect(*item)));
    items.insert("content", ToJSON(ScreenRect(m_tabs->Content())));
}

CComponentTab* CMainWindow::ComponentTab(const QString& name) const
{
    return qobject_cast<CComponentTab*>(m_tabs->Page(name));
}

} // namespace framework
