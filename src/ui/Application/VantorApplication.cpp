#include "ui/Application/VantorApplication.h"

#include "Base/AsyncTask.h"
#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/MessageLoop.h"
#include "Base/Singleton.h"
#include "Base/StringUtil.h"
#include "ClientCommonLogical/ConfigMgr.h"
#include "CloudP2PReport/ReportManager.h"
#include "CommonMethod/InitDBLogical.h"
#include "CommonMethodLib/UserDataPath.h"
#include "CommunicationLayer/FrameworkRequests.h"
#include "SignalTransmit.h"
#include "UiDataController/DeviceUserIDManager.h"
#include "UiDataController/RemoteConfigController.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "WndIdManager.h"
#include "logical/Communication/LPCClientPackage.h"
#include "logical/Local/DatabaseSession/VideoSystemDB.h"
#include "logical/System/VideoSystemManager.h"
#include "ui/Application/DeviceResources.h"
#include "ui/Application/LayoutFiles.h"
#include "ui/Application/VantorApplicationManager.h"

#include <QDebug>

#include <cstdlib>

namespace video {

namespace {

constexpr const char* kDefaultSkin = "BlackRedSkin";
constexpr int kStartArgument = 3;
constexpr int kFieldsForConfiguration = 6;

/// The start parameters as one text; empty when the framework passed none.
const char* StartArgument(int argc, char** argv)
{
    return argc > kStartArgument ? argv[kStartArgument] : "";
}

std::vector<std::string> ToTexts(const QStringList& list)
{
    std::vector<std::string> texts;
    for (const QString& each : list)
        texts.push_back(each.toStdString());
    return texts;
}

/// Opens the component database, so that the first request does not wait for it.
CVideoSystemManager::Parts SystemManagerParts()
{
    const auto& paths = comm_methodlib::CUserDataPath::Instance();
    return {VideoSystemDB::Instance(),
            Base::CSingleton<Base::CMessageLoopForNotify>::Instance(),
            {Base::LocalToUTF8(paths.videoPath()), Base::LocalToUTF8(paths.capturePath())},
            paths.componentPath() + "SaveFolders.json",
            [] { CLPCClientPackage::Instance().NotifyMethod("videoParamChanged"); }};
}

void InitConfiguration(const QStringList& fields)
{
    clientcommon::ConfigParams params;
    params.skinType = fields[0].toStdString();
    params.language = fields[1].toInt();
    params.versionType = fields[2].toInt();
    params.extra = fields[3].toInt();
    clientcommon::CConfigMgr::Instance().init(params);
}

} // namespace

CVantorApplication::CVantorApplication(const QString& title, int& argc, char** argv)
    : SingleApplication(argc, argv, title)
{
    if (!isPrimary()) {
        deleteInstanceData();
        // The crash worker still runs and may log, while exit takes the log's library away under it.
        Base::CLog::Instance().UninitLog();
        std::exit(0);
    }
    // The framework alone ends the component, also while none of its windows is shown.
    setQuitOnLastWindowClosed(false);
    addLibraryPath(QString("%1%2plugins").arg(applicationDirPath(), "/../"));
    m_skin = kDefaultSkin;
    m_eventFilter = std::make_unique<CVantorEventFilter>();
    installNativeEventFilter(m_eventFilter.get());
    connect(m_eventFilter.get(), &CVantorEventFilter::SignalEventFilter, this,
            &CVantorApplication::OnCurEvent);
    BASE_INFO("InitSysParameter:in1");
    InitSysParameter(argc, argv);
    connect(&CSignalTransmit::Instance(), &CSignalTransmit::SignalQuit, this, &CVantorApplication::onQuit);
}

void CVantorApplication::InitSysParameter(int argc, char** argv)
{
    BASE_INFO("InitSysParameter:in2");
    const QString argument = QString::fromLocal8Bit(StartArgument(argc, argv));
    const QStringList fields = argument.split(' ', Qt::KeepEmptyParts, Qt::CaseSensitive);
    if (!fields[0].isEmpty())
        m_skin = fields[0];
    const int language = fields.value(1).toInt();
    const int versionType = fields.value(2).toInt();

    BASE_INFO("fInitReportManager async start");
    m_fInitReportManager = Base::RunAsync(
        "report-manager", [texts = ToTexts(fields)] { cloudreport::CReportManager::Instance().init(texts); });
    CVantorApplicationManager::Instance().SetStartParameters(m_skin, language, versionType);
    if (argc > kStartArgument && fields.size() >= kFieldsForConfiguration)
        InitConfiguration(fields);
    BASE_INFO("InitSysParameter:list-%s,skin-%s,lan-%d,vers-%d", qPrintable(argument), qPrintable(m_skin),
              language, versionType);
}

bool CVantorApplication::Init()
{
    BASE_INFO("fInitDatabase async start.");
    std::future<bool> database = StartDatabase();
    InitRemoteConfig();
    LoadLook();
    m_fInitReportManager.wait();
    if (!database.get())
        return false;
    StartWinIDAndSystemManager();
    InitManager();
    if (!InitLogical()) {
        BASE_ERROR("InitLogical Failed.");
        return false;
    }
    BASE_INFO("InitLogical Success.");
    initDateTimeFormat();
    BASE_INFO("initDateTimeFormat Success.");
    UiDataController::CDeviceUserIDManager::Instance().init(
        comm_methodlib::CUserDataPath::Instance().logPath());
    DeviceResources().Start();
    return true;
}

std::future<bool> CVantorApplication::StartDatabase()
{
    return Base::RunAsync("database", [] {
        const bool ready = comm_method::initComponentDBLogical(
            {"MainView", "PlayBack", "VideoSystem", "VideoClient"}, {{"VideoClient", "Video", "Video.S"}});
        if (ready)
            BASE_INFO("InitDatabase Success.");
        else
            BASE_ERROR("InitDatabase Failed.");
        return ready;
    });
}

void CVantorApplication::InitRemoteConfig()
{
    using UiDataController::CRemoteConfigController;
    const CVantorApplicationManager& parameters = CVantorApplicationManager::Instance();
    CRemoteConfigController::CreateInstance();
    BASE_INFO("RemoteConfigController CreateInstance");
    CRemoteConfigController& controller = CRemoteConfigController::Instance();
    controller.InitRemoteConfig(parameters.Language());
    controller.setRemoteVersionType(parameters.VersionType());
    controller.setRemoteSkinType(parameters.SkinType());
    BASE_INFO("RemoteConfigController InitRemoteConfig");
    qDebug("Into VIDEO C INIT");
}

void CVantorApplication::LoadLook()
{
    const auto& paths = comm_methodlib::CUserDataPath::Instance();
    CheckAndGenerateCustomWidgetLayoutConfig(QString::fromLocal8Bit(paths.componentPath().c_str()),
                                             QString::fromLocal8Bit(Base::FileUtil::GetCurExeDir().c_str()));
    BASE_INFO("LoadConfigFile Success.");
    CApplicationLook look(VantorGUIToolkit::toolkit(), m_skin,
                          CVantorApplicationManager::Instance().Language());
    look.LoadFont();
    BASE_INFO("LoadFont Success.");
    look.LoadSkin();
    BASE_INFO("LoadSkin Success.");
    look.LoadStyle();
    BASE_INFO("LoadStyle Success.");
    look.InitGuiToolKit(QString::fromStdString(clientcommon::CConfigMgr::Instance().params().skinType));
    BASE_INFO("InitGuiToolKit Success.");
}

void CVantorApplication::StartWinIDAndSystemManager()
{
    BASE_INFO("m_fInitWinIDAndSystemManager async start.");
    m_fInitWinIDAndSystemManager = Base::RunAsync("windows", [] {
                                       CWndIdManager::Instance().Init();
                                       BASE_INFO("CWndIdManager init end");
                                       CVideoSystemManager::Instance().Init(SystemManagerParts());
                                       BASE_INFO("CVideoSystemManager init end");
                                   }).share();
    CWndIdManager::Instance().SetReadyWait([ready = m_fInitWinIDAndSystemManager] { ready.wait(); });
}

void CVantorApplication::initDateTimeFormat()
{
    protocol::DateTimeFormatData format;
    if (!commlayer::CGetDateTimeFormat::request(format))
        return;
    VantorGUIToolkit::toolkit().initDateFormat(QString::fromStdString(format.dateFormat));
    VantorGUIToolkit::toolkit().initTimeFormat(QString::fromStdString(format.timeFormat));
}

bool CVantorApplication::IsRightToLeft() const
{
    return VantorGUIToolkit::isRightToLeft(CVantorApplicationManager::Instance().Language());
}

bool CVantorApplication::OnCurEvent(MSG*, long*)
{
    return false;
}

} // namespace video
