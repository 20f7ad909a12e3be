#include "Base/AsyncTask.h"
#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/ProcessUtil.h"
#include "Base/StringUtil.h"
#include "CommonMethodLib/UserDataPath.h"
#include "CrashAPI/CrashAPI.h"
#include "SignalTransmit.h"
#include "UiDataController/HighDPIMgr.h"
#include "UiDataController/ScreenGuard.h"
#include "ui/Application/CrashSetup.h"
#include "ui/Application/VantorApplication.h"

#include <QDebug>
#include <QDir>

#include <clocale>
#include <future>
#include <memory>
#include <system_error>

namespace {

constexpr const char* kTitle = "Vantor V3.0 video Application";
constexpr int kInitFailed = -1;

void PreparePaths()
{
    const std::string exeDir = Base::FileUtil::GetCurExeDir();
    comm_methodlib::CUserDataPath::Instance().init(exeDir + "../", "Video.C", -1, -1);
    Base::FileUtil::InitCurExeDirUtf8(Base::LocalToUTF8(exeDir));
}

std::unique_ptr<video::CVantorApplication> MakeApplication(int& argc, char** argv)
{
    const UiDataController::CScreenGuard guard(kInitFailed);
    return std::make_unique<video::CVantorApplication>(kTitle, argc, argv);
}

void AddPluginPath()
{
    const QString dir =
        QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) + QDir::separator() + "plugins";
    qDebug() << dir;
    QCoreApplication::addLibraryPath(dir);
}

/// No window is painted by OpenGL. Qt's window system would bring it up all the same for the first window,
/// which takes as long as half of the start. A user's own choice stays. To be called while there are no other
/// threads, whose look into the environment could meet the change.
void LeaveOpenGLAside()
{
    constexpr const char* kChoice = "QT_XCB_GL_INTEGRATION";
    if (!qEnvironmentVariableIsSet(kChoice))
        Base::ProcessUtil::SetEnvironment(kChoice, "none");
}

using ApplicationPtr = std::unique_ptr<video::CVantorApplication>;

/// False when the component cannot run; the application is then as far as it came.
bool StartUp(int& argc, char** argv, std::future<void>& crashSetup, ApplicationPtr& application)
{
    try {
        LeaveOpenGLAside();
        crashSetup = Base::RunAsync("crash-setup", video::crashAPIInit);
        BASE_INFO("InitSysParameter:in0");
        UiDataController::CHighDPIMgr::doHighDPI(argc, argv);
        application = MakeApplication(argc, argv);
        Base::ProcessUtil::OnEndRequest([] { emit video::CSignalTransmit::Instance().SignalQuit(); });
        AddPluginPath();
        return application->Init();
    } catch (const std::system_error& error) {
        BASE_FATAL("The system refuses a thread or another thing that the component needs: %s.",
                   error.what());
        return false;
    }
}

int FailedInit(ApplicationPtr application, std::future<void>& crashSetup)
{
    if (application)
        application->UnInit();
    QCoreApplication::exit(0);
    if (crashSetup.valid())
        crashSetup.wait();
    application.reset();
    return kInitFailed;
}

} // namespace

int main(int argc, char* argv[])
{
    std::setlocale(LC_CTYPE, "");
    Base::ProcessUtil::HoldEndRequests();
    Base::ProcessUtil::FailWritesInsteadOfEnding();
    PreparePaths();
    const auto& paths = comm_methodlib::CUserDataPath::Instance();
    Base::CLog::Instance().InitLog(paths.logPropertiesPath(), paths.installedLogPropertiesPath());
    // Said on standard error; without a place every file would go to wherever the process was started.
    if (paths.rootPath().empty())
        return kInitFailed;
    CrashAPI_PrepareThread();
    Base::ProcessUtil::OnThreadStart([] { CrashAPI_PrepareThread(); });
    std::future<void> crashSetup;
    ApplicationPtr application;
    if (!StartUp(argc, argv, crashSetup, application))
        return FailedInit(std::move(application), crashSetup);

    if (application->IsRightToLeft())
        QApplication::setLayoutDirection(Qt::RightToLeft);
    BASE_INFO("APP Init Success");
    const int result = QApplication::exec();

    BASE_INFO("UNInitVantorApplication success");
    crashSetup.wait();
    BASE_INFO("Wait CrashAPIInit success");
    Base::CLog::Instance().UninitLog();
    CrashAPI_Uninit();
    BASE_INFO("CrashAPI UnInit success");
    application.reset();
    return result;
}
