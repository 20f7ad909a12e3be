// The application's logical libraries and its link: their start, and the whole of the shut-down.

#include "Base/AsyncTask.h"
#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/MessageLoop.h"
#include "Base/RateLimit.h"
#include "Base/Singleton.h"
#include "ClientCommonLogical/NotifyCenterManager.h"
#include "ClientCommonLogical/NotifyTypes.h"
#include "CloudP2PReport/CloudP2PManager.h"
#include "CloudP2PReport/CloudReportInfoManager.h"
#include "CloudP2PReport/ReportManager.h"
#include "CommonMethod/HTTPOverLPCClient.h"
#include "CommonMethodLib/WorkerPool.h"
#include "CommunicationLayer/CommunicationLayer.h"
#include "MultimediaComm/MultimediaComm.h"
#include "PlaybackLogical/PlaybackLogical.h"
#include "PreviewLogical/PreviewLogical.h"
#include "Protocol/JSONStruct/LoggableText.h"
#include "SignalTransmit.h"
#include "UiDataController/LocalLogManager.h"
#include "UiDataController/RemoteConfigController.h"
#include "UiDataController/SystemStatusMonitor.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "WindowEmbedding/GuestWindow.h"
#include "WndIdManager.h"
#include "logical/Communication/LPCClientPackage.h"
#include "logical/System/VideoSystemManager.h"
#include "ui/Application/DeviceResources.h"
#include "ui/Application/PageCatalogue.h"
#include "ui/Application/ServedRoutes.h"
#include "ui/Application/VantorApplication.h"
#include "ui/System/SystemconfigUIManager.h"

#include <QThreadPool>

#include <libxml/parser.h>

namespace video {

namespace {

constexpr int kThreadPoolWaitMs = 5000;

std::future<void> StartMultimediaComm()
{
    BASE_INFO("fInitMultimediaComm async start.");
    return Base::RunAsync("multimedia", [] {
        multimediacomm::Init();
        BASE_INFO("InitMultimediaComm Success.");
    });
}

std::future<void> StartCloudP2PManager()
{
    BASE_INFO("fInitCloudP2PManager async start.");
    return Base::RunAsync("cloud", [] {
        auto& cloud = cloudreport::CCloudP2PManager::Instance();
        cloud.loadConfig(Base::FileUtil::GetCurExeDir());
        cloud.init();
        cloud.enableP2P(true);
        BASE_INFO("enableP2P(true)");
        if (cloud.isLoggedIn()) {
            cloud.setLoginInfo();
            cloud.startFetchDeviceList();
        }
        cloudreport::CReportManager::Instance().setOpenSDKInfo(cloud.openSDKInfo());
        BASE_INFO("Init CCloudP2PManager Success.");
    });
}

void StopLoopsAndPools()
{
    Base::CSingleton<Base::CMessageLoopForNotify>::Instance().Stop();
    Base::CSingleton<Base::CMessageLoopForCleanUp>::Instance().Stop();
    Base::CSingleton<Base::CMessageLoopForDeviceSDK>::Instance().Stop();
    Base::CSingleton<Base::CStopStreamThreadPool>::Instance().Stop();
    Base::CSingleton<Base::CDeviceConfigThreadPool>::Instance().Stop();
}

} // namespace

void CVantorApplication::InitManager()
{
    cloudreport::CCloudReportInfoManager::Instance().init();
    commlayer::CommunicationLayerInit(std::make_shared<comm_method::CHTTPOverLPCClient>());
    embedding::FollowMouseWithFocus();
    CWndIdManager::Instance().SetPageFactory(MakePage);
    for (const SettingsPageRow& page : SettingsPageCatalogue())
        CSystemconfigUIManager::Instance().SetPageCreator(page.name, page.create);
    ServeAllRoutes(CLPCClientPackage::Instance(), CSignalTransmit::Instance());
    RegisterForNotifications();
    UiDataController::CSystemStatusMonitor::Instance().beginWatch();
    BASE_INFO("InitManager Success.");
}

void CVantorApplication::RegisterForNotifications()
{
    for (const char* type : clientcommon::kResourceNotifyTypes)
        clientcommon::CNotifyCenterManager::Instance().RegisterHandler(
            type, m_anchor.Ref(), [](const protocol::WebSocketNotifyData& notification) {
                BASE_LIMITED(Base::CCallLimit, BASE_INFO, "Notification [%s] of [%s].",
                             notification.type.c_str(), protocol::LoggableText(notification.guid).c_str());
                DeviceResources().OnNotification(notification);
            });
}

bool CVantorApplication::InitLogical()
{
    std::future<void> multimedia = StartMultimediaComm();
    std::future<void> cloud = StartCloudP2PManager();
    vantor::ILocalDataManager& localData = CVideoSystemManager::Instance().LocalDataManager();
    PreviewLogical::CPreviewLogical::Instance().init(&DeviceTree(), &localData);
    PlaybackLogical::CPlaybackLogical::Instance().init(&DeviceGroups(), &localData);
    multimedia.wait();
    cloud.wait();
    CLPCClientPackage::Instance().Init();
    CLPCClientPackage::Instance().NotifyMethod("initFinish");
    return true;
}

void CVantorApplication::onQuit()
{
    m_quit.Ask();
}

void CVantorApplication::UnInitOnQuit()
{
    BASE_INFO("Start UnInit Video.C");
    UnInit();
}

void CVantorApplication::UnInit()
{
    UiDataController::CLocalLogManager::Instance().setLogger(nullptr);
    UnInitLink();
    // Its questions to the framework have failed by now, so that this does not wait for any.
    DeviceResources().Stop();
    UnInitGui();
    StopLoopsAndPools();
    BASE_INFO("UninitBase Success.");
    UnInitLogical();
    UiDataController::CSystemStatusMonitor::Instance().endWatch();
    UiDataController::CRemoteConfigController::Instance().UnInit();
    BASE_INFO("UninitRemoteConfig Success.");
    CVideoSystemManager::Instance().UnInit();
    BASE_INFO("UninitVideoSystemManager Success.");
    CSystemconfigUIManager::Instance().UnInit();
    BASE_INFO("UninitSystemconfigUIManager Success.");
    cloudreport::CReportManager::Instance().releaseManager();
    BASE_INFO("CReportManager releaseManager Success.");
}

void CVantorApplication::UnInitLink()
{
    BASE_INFO("CLPCClientPackage un.");
    CLPCClientPackage::Instance().UnInit();
    BASE_INFO("CLPCClientPackage un1.");
    // What was queued before the callback was cleared still runs, while everything that it needs is still
    // there.
    comm_methodlib::CWorkerPool::Instance().Stop();
}

void CVantorApplication::UnInitGui()
{
    cloudreport::CCloudReportInfoManager::Instance().release();
    if (m_fInitWinIDAndSystemManager.valid())
        m_fInitWinIDAndSystemManager.wait();
    CWndIdManager::Instance().Finit();
    multimediacomm::UnInit();
    BASE_INFO("UninitGui Success.");
}

void CVantorApplication::UnInitLogical()
{
    commlayer::CommunicationLayerUnInit();
    PreviewLogical::CPreviewLogical::Instance().UnInit();
    PlaybackLogical::CPlaybackLogical::Instance().UnInit();
    BASE_INFO("UnititLogical Success.");
}

// Stops once more what UnInit stopped: the way here may not have led through it.
CVantorApplication::~CVantorApplication()
{
    UiDataController::CSystemStatusMonitor::DeleteInstance();
    StopLoopsAndPools();
    UnInitLogical();
    xmlCleanupParser();
    BASE_INFO("UninitLibxml2 Success.");
    QThreadPool::globalInstance()->waitForDone(kThreadPoolWaitMs);
    QThreadPool::globalInstance()->clear();
    VantorGUIToolkit::toolkit().UnInit();
}

} // namespace video
