#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/ProcessUtil.h"
#include "Base/StringUtil.h"
#include "CommonMethodLib/EventUploadMgr.h"
#include "CommonMethodLib/UserDataPath.h"
#include "CrashAPI/CrashAPI.h"
#include "UiDataController/HighDPIMgr.h"
#include "UiDataController/ScreenGuard.h"
#include "WindowEmbedding/GuestWindow.h"
#include "framework/ui/FrameworkApplication.h"

#include <QApplication>
#include <QPointer>

#include <clocale>
#include <cstdio>
#include <optional>

namespace {

constexpr int kCannotRun = 1;
constexpr int kWrongCommandLine = 2;

bool PreparePaths()
{
    const std::string exeDir = Base::FileUtil::GetCurExeDir();
    Base::FileUtil::InitCurExeDirUtf8(Base::LocalToUTF8(exeDir));
    return comm_methodlib::CUserDataPath::Instance().init(exeDir + "../", "Framework.C", -1, -1);
}

/// Failures are logged; the framework then runs without reports.
void PrepareCrashReports()
{
    constexpr int kMaxDumps = 3;
    const std::string dumpPath = comm_methodlib::CUserDataPath::Instance().dumpPath();
    const bool full = comm_methodlib::CEventUploadMgr::Instance().isCreateCrashDump(dumpPath);
    Base::ProcessUtil::OnThreadStart([] { CrashAPI_PrepareThread(); });
    if (!CrashAPI_Init() || !CrashAPI_SetDumpPath(dumpPath.c_str()) ||
        !CrashAPI_SetDumpType(full ? CRASH_DUMP_FULL : CRASH_DUMP_NORMAL) ||
        !CrashAPI_SetDumpMaxCount(kMaxDumps))
        BASE_ERROR("Crash reports cannot be written to %s.", dumpPath.c_str());
}

int Run(const framework::CommandLine& line)
{
    framework::CFrameworkApplication application(line);
    const QPointer<framework::CFrameworkApplication> self(&application);
    Base::ProcessUtil::OnEndRequest([self] {
        QMetaObject::invokeMethod(
            qApp, [self] { self ? self->RequestEnd() : QCoreApplication::quit(); }, Qt::QueuedConnection);
    });
    QString error;
    if (!application.Start(error)) {
        if (!error.isEmpty())
            std::fprintf(stderr, "%s\n", qPrintable(error));
        return error.isEmpty() ? 0 : kCannotRun;
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    std::setlocale(LC_CTYPE, "");
    Base::ProcessUtil::HoldEndRequests();
    Base::ProcessUtil::FailWritesInsteadOfEnding();
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments << QString::fromLocal8Bit(argv[index]);
    QString error;
    const auto line = framework::ParseCommandLine(arguments, error);
    if (!line) {
        std::fputs(qPrintable(error + '\n'), stderr);
        return kWrongCommandLine;
    }
    if (line->help) {
        const QCoreApplication application(argc, argv); // the text holds its name
        std::fputs(qPrintable(framework::HelpText()), stdout);
        return 0;
    }
    if (!PreparePaths())
        return kCannotRun;
    const auto& paths = comm_methodlib::CUserDataPath::Instance();
    Base::CLog::Instance().InitLog(paths.logPropertiesPath(), paths.installedLogPropertiesPath());
    PrepareCrashReports();
    UiDataController::CHighDPIMgr::doHighDPI(argc, argv);
    std::optional<UiDataController::CScreenGuard> guard(kCannotRun);
    QApplication application(argc, argv);
    guard.reset();
    QCoreApplication::addLibraryPath(QCoreApplication::applicationDirPath() + "/../plugins");
    embedding::FollowMouseWithFocus();
    const int result = Run(*line);
    Base::CLog::Instance().UninitLog();
    CrashAPI_Uninit();
    return result;
}
