#include "Base/AsyncTask.h"
#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/ProcessUtil.h"
#include "Base/StringUtil.h"
#include "CommonMethodLib/UserDataPath.h"
#include "CrashAPI/CrashAPI.h"
#include "SignalTransmit.h"
#include "UiDataController/HighDPIMgr.h"
#include "ui/Application/CrashSetup.h"
#include "ui/Application/VantorApplication.h"

#include <QDebug>
#include <QDir>
#include <QOpenGLContext>

#include <clocale>
#include <future>
#include <memory>

namespace {

constexpr const char* kTitle = "Vantor V3.0 video Application";
constexpr int kInitFailed = -1;

void PreparePaths()
{
    const std::string exeDir = Base::FileUtil::GetCurExeDir();
    comm_methodlib::CUserDataPath::Instance().init(exeDir + "../", "Video.C", -1, -1);
    Base::FileUtil::InitCurExeDirUtf8(Base::LocalToUTF8(exeDir));
}

void AddPluginPath()
{
    const QString dir =
        QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) + QDir::separator() + "plugins";
    qDebug() << dir;
    QCoreApplication::addLibraryPath(dir);
}

// No window is painted by OpenGL. Qt's window system would bring it up all the same for the first window,
// which takes as long as half of the start. Programs that this one starts decide for themselves.
void LeaveOpenGLAside()
{
    constexpr const char* integration = "QT_XCB_GL_INTEGRATION";
    if (qEnvironmentVariableIsSet(integration))
        return;
    qputenv(integration, "none");
    (void)QOpenGLContext::supportsThreadedOpenGL(); // reads the variable
    qunsetenv(integration);
}

int FailedInit(std::unique_ptr<video::CVantorApplication> application, std::future<void>& crashSetup)
{
    application->UnInit();
    QCoreApplication::exit(0);
    crashSetup.wait();
    application.reset();
    return kInitFailed;
}

} // namespace

int main(int argc, char* argv[])
{
    std::setlocale(LC_CTYPE, "");
    Base::ProcessUtil::HoldEndRequests();
    PreparePaths();
    Base::CLog::Instance().InitLog(comm_methodlib::CUserDataPath::Instance().logPropertiesPath());
    CrashAPI_PrepareThread();
    Base::ProcessUtil::OnThreadStart([] { CrashAPI_PrepareThread(); });
    std::future<void> crashSetup = Base::RunAsync("crash-setup", video::crashAPIInit);
    BASE_INFO("InitSysParameter:in0");
    UiDataController::CHighDPIMgr::doHighDPI(argc, argv);
    auto application = std::make_unique<video::CVantorApplication>(kTitle, argc, argv);
    Base::ProcessUtil::OnEndRequest([] { emit video::CSignalTransmit::Instance().SignalQuit(); });
    AddPluginPath();
    LeaveOpenGLAside();
    if (!application->Init())
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
