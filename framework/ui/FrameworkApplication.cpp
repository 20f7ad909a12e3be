#include "framework/ui/FrameworkApplication.h"

#include "Base/AsyncTask.h"
#include "CommonMethodLib/UserDataPath.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "VantorGUIToolkit/Widgets/NoticeStack.h"
#include "framework/ui/Look.h"
#include "framework/ui/StartDialog.h"
#include "framework/ui/pages/SwitchUserDialog.h"
#include "framework/ui/parts/DiskLook.h"
#include "framework/ui/parts/WindowMemory.h"
#include "framework/ui/shell/MainWindow.h"
#include "framework/ui/tour/Tour.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>

namespace framework {

namespace {

/// The core kills a component that does not end within five seconds.
constexpr int kLongestEndMs = 6000;

/// The program that was given, else the one of that name beside this one.
std::string ProgramOr(const QString& given, const char* name)
{
    const QString beside = QCoreApplication::applicationDirPath() + '/' + name;
    return (given.isEmpty() ? beside : given).toLocal8Bit().toStdString();
}

FrameworkOptions OptionsOf(const CommandLine& line, const std::string& folder)
{
    FrameworkOptions options;
    options.dataFolder = folder;
    options.componentProgram = ProgramOr(line.component, "Vantor.Video.C");
    options.componentOutput = folder + "component.out";
    return options;
}

} // namespace

CFrameworkApplication::CFrameworkApplication(CommandLine line)
    : m_line(std::move(line)), m_folder(comm_methodlib::CUserDataPath::Instance().componentPath()),
      m_core(m_relay, OptionsOf(m_line, m_folder)), m_windows(m_core), m_files(m_core),
      m_pages(m_core, m_relay, m_windows, m_files, m_unread, m_report)
{
    QApplication::setQuitOnLastWindowClosed(false);
    // Before the pages, which show it, and also while there is no window yet.
    connect(&m_relay, &CEventRelay::NoticeAdded, &m_unread, &CUnreadNotices::Add);
}

CFrameworkApplication::~CFrameworkApplication()
{
    if (m_stopping.valid())
        m_stopping.wait();
    m_core.Stop();
    m_demonstration.reset();
    m_simulated.reset();
    m_tour.reset();
    m_window.reset();
    EndDiskLooks();
    VantorGUIToolkit::toolkit().UnInit();
}

bool CFrameworkApplication::Start(QString& error)
{
    if (!m_line.report.isEmpty() && !m_report.Open(m_line.report)) {
        error = "The report cannot be written to " + m_line.report + '.';
        return false;
    }
    std::string why;
    if (!m_core.Start(why)) {
        error = QString::fromStdString(why);
        return false;
    }
    m_unread.Set(WindowMemory::Load(MemoryPath()).unread);
    if (!ChooseLook())
        return false;
    connect(&m_pages, &CPages::OpenRequested, this, [this](const QString& name) { m_window->Open(name); });
    connect(&m_pages, &CPages::ChoicesApplied, this, &CFrameworkApplication::OnChoices);
    ReportEvents();
    if (m_line.demonstration)
        StartDemonstration();
    m_core.StartComponent();
    MakeWindow();
    for (const QString& name : m_line.open)
        m_window->Open(name);
    if (!m_line.tourFolder.isEmpty())
        StartTour();
    return true;
}

std::string CFrameworkApplication::MemoryPath() const
{
    return m_folder + "window.json";
}

bool CFrameworkApplication::ChooseLook()
{
    FrameworkChoices choices = m_core.Settings().Get();
    const bool isGiven = !m_line.skin.isEmpty() || m_line.language || !m_line.tourFolder.isEmpty();
    if (!choices.chosen)
        choices.language = SystemLanguage();
    if (!m_line.skin.isEmpty())
        choices.skin = m_line.skin.toStdString();
    if (m_line.language)
        choices.language = *m_line.language;
    ApplyLook(choices);
    if (!choices.chosen && !isGiven) {
        CStartDialog dialog(choices);
        if (dialog.exec() != QDialog::Accepted)
            return false;
        choices = dialog.Chosen();
        ApplyLook(choices);
    }
    choices.chosen = true;
    m_core.Settings().Set(choices);
    return true;
}

void CFrameworkApplication::MakeWindow()
{
    m_window = std::make_unique<CMainWindow>(
        m_core, m_relay, m_report, m_unread,
        [this](const WindowRow& row, QWidget* parent) { return m_pages.Make(row, parent); }, MemoryPath());
    connect(m_window.get(), &CMainWindow::EndRequested, this, &CFrameworkApplication::RequestEnd);
    connect(m_window.get(), &CMainWindow::SwitchUserRequested, this, &CFrameworkApplication::SwitchUser);
    m_window->Restore();
}

void CFrameworkApplication::ReportEvents()
{
    connect(&m_relay, &CEventRelay::ComponentChanged, this,
            [this](ComponentState state, const QString& detail) {
                m_report.Tell("component", {{"state", NameOf(state)}, {"detail", detail}});
            });
    connect(&m_relay, &CEventRelay::UsersChanged, this, [this] {
        m_report.Tell("user", {{"name", QString::fromStdString(m_core.Users().Current().name)}});
    });
    connect(&m_relay, &CEventRelay::ResourcesChanged, this, [this] {
        m_report.Tell("resources", {{"devices", static_cast<int>(m_core.Resources().Devices().size())}});
    });
    connect(&m_relay, &CEventRelay::NoticeAdded, this, [this](const JournalEntry& entry) {
        m_report.Tell("notice", {{"text", QString::fromStdString(entry.text)}});
    });
    connect(&m_relay, &CEventRelay::ResizeWished, this, [this](const QString& name, const QSize& size) {
        m_report.Tell("resize", {{"name", name}, {"width", size.width()}, {"height", size.height()}});
    });
}

// The page that tells of the change belongs to the window that goes, so this waits until it has returned.
void CFrameworkApplication::OnChoices(const FrameworkChoices& before, const FrameworkChoices& now)
{
    if (before.skin != now.skin || before.language != now.language) {
        QTimer::singleShot(0, this, [this, now] { ChangeLook(now); });
        return;
    }
    ApplyFormats(now);
    emit m_pages.FormatsChanged();
}

// Texts, icons and direction stand in every widget, so the window is made anew; it remembers its tabs.
void CFrameworkApplication::ChangeLook(const FrameworkChoices& choices)
{
    m_window.reset();
    VantorGUIToolkit::CNoticeStack::Instance().CloseAll();
    ApplyLook(choices);
    m_core.RestartComponent();
    MakeWindow();
    m_report.Tell("look", {{"skin", QString::fromStdString(choices.skin)}, {"language", choices.language}});
}

void CFrameworkApplication::SwitchUser()
{
    CSwitchUserDialog dialog(
        m_core.Users().All(), m_core.Users().Current().name,
        [this](const std::string& name, const std::string& password) {
            return m_core.SwitchUser(name, password);
        },
        m_window.get());
    dialog.exec();
}

void CFrameworkApplication::StartDemonstration()
{
    m_demonstration = std::make_unique<CDemonstration>(m_core, m_folder, [this] {
        QMetaObject::invokeMethod(
            &m_pages, [this] { emit m_pages.LocalFilesChanged(); }, Qt::QueuedConnection);
    });
    connect(&m_relay, &CEventRelay::ComponentChanged, this, [this] { m_demonstration->Run(); });
    m_simulated = std::make_unique<CSimulatedDevices>(ProgramOr(m_line.simulator, "vantor-device-sim"),
                                                      m_folder + "simulator/");
    connect(m_simulated.get(), &CSimulatedDevices::Ready, this, [this](const SimulatorReady& ready) {
        m_demonstration->TakeDevices(ready);
        m_demonstration->Run();
    });
    if (m_demonstration->WantsDevices())
        m_simulated->Start(m_demonstration->Ports());
}

void CFrameworkApplication::StartTour()
{
    m_window->setGeometry(QGuiApplication::primaryScreen()->availableGeometry());
    const TourStage stage{[this]() -> CMainWindow& { return *m_window; }, m_core,
                          [this](const FrameworkChoices& choices) {
                              m_core.Settings().Set(choices);
                              ChangeLook(choices);
                          },
                          m_line.demonstration, m_simulated.get()};
    m_tour = std::make_unique<CTour>(stage, m_line.tourFolder);
    connect(m_tour.get(), &CTour::Finished, this, [this](bool success) {
        m_exitCode = success ? 0 : 1;
        RequestEnd();
    });
    m_tour->Start();
}

void CFrameworkApplication::RequestEnd()
{
    if (m_ending)
        return;
    m_ending = true;
    if (!m_window)
        return EndProgram();
    m_window->ShowEnding();
    connect(&m_relay, &CEventRelay::ComponentChanged, this, [this](ComponentState state) {
        if (state == ComponentState::Stopped)
            EndProgram();
    });
    QTimer::singleShot(kLongestEndMs, this, &CFrameworkApplication::EndProgram);
    m_core.StopComponent();
    if (m_core.State() == ComponentState::Stopped)
        EndProgram();
}

void CFrameworkApplication::EndProgram()
{
    if (m_stopping.valid())
        return;
    m_stopping = Base::RunAsync("stop-core", [this] {
        m_core.Stop();
        QMetaObject::invokeMethod(
            qApp, [code = m_exitCode] { QCoreApplication::exit(code); }, Qt::QueuedConnection);
    });
    m_report.Tell("ended", {});
}

} // namespace framework
