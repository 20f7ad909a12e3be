#include "ui/Application/ServedRoutes.h"

#include "ClientCommonLogical/NotifyCenterManager.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "SignalTransmit.h"
#include "logical/Communication/LPCClientPackage.h"
#include "logical/Communication/LPCNames.h"
#include "logical/Local/LocalFileRoutes.h"
#include "logical/System/SystemConfigRoutes.h"
#include "logical/System/VideoSystemManager.h"
#include "ui/Application/DeviceResources.h"

namespace video {

namespace {

/// In the order in which they are registered with the framework. The rows' handlers are bound by the
/// subsystems that own them.
const std::vector<std::string> kHttpRoutes = {route::kLocalFile, route::kVideoFileNotify,
                                              route::kLocalFileQuery, route::kSystemConfigs,
                                              route::kBroadCastOperator};

/// A method that the framework also lets other clients address.
constexpr const char* kRegisteredMethod = "operateDownload";

void ServeLinkMethods(CLPCClientPackage& link)
{
    CRouteTable& methods = link.Dispatcher().Methods();
    methods.Bind("hideShadeFrame", [](const lpcclient::LPCCallBackData&) {});
    // The registration waits for its answer; the methods behind it in the queue do not wait with it.
    methods.Bind("notifyRegisterAlarm",
                 [&link](const lpcclient::LPCCallBackData&) { link.RegisterAlarmLater(); });
}

/// A diagnostic route for the framework and vantor-lpc host; other clients are not let through to it.
void ServeState(CLPCClientPackage& link)
{
    link.Dispatcher().Http().Bind(route::kState, [&link](const lpcclient::LPCCallBackData& call) {
        if (call.requestId == 0)
            return;
        protocol::ComponentStateData state = link.State();
        const UiDataController::ModelCounts counts = DeviceResources().Model().Counts();
        state.devices = counts.devices;
        state.devicesOnline = counts.devicesOnline;
        state.channels = counts.channels;
        state.channelsOnline = counts.channelsOnline;
        link.ReplyBody(call, protocol::WriteJSONStr(state));
    });
}

/// The routes whose handlers work on the stores, which may still be on their way when a request comes.
void ServeStores(CLPCClientPackage& link)
{
    CRouteTable& http = link.Dispatcher().Http();
    const AnswerCall answer = [&link](const lpcclient::LPCCallBackData& call, const RouteAnswer& content) {
        return link.Answer(call, content);
    };
    ServeLocalFiles(
        http, []() -> vantor::ILocalFile& { return CVideoSystemManager::Instance().LocalFile(); }, answer);
    ServeSystemConfigs(
        http, []() -> CSystemConfig& { return CVideoSystemManager::Instance().SystemConfig(); }, answer);
}

void ServeWebsocket(CLPCClientPackage& link, CSignalTransmit& transmitter)
{
    link.Dispatcher().SetWebsocketSinks(
        [](std::shared_ptr<protocol::WebSocketNotifyData> notification) {
            clientcommon::CNotifyCenterManager::Instance().addNotify(std::move(notification));
        },
        [&transmitter](const lpcclient::LPCCallBackData& data) { transmitter.OnWebsocketNotify(data); },
        [&transmitter](const lpcclient::LPCCallBackData& data) { transmitter.OnAlarmMessage(data); });
}

} // namespace

void ServeAllRoutes(CLPCClientPackage& link, CSignalTransmit& transmitter)
{
    for (const std::string& url : kHttpRoutes)
        link.Dispatcher().Http().Declare(url);
    transmitter.ServeMethods(link.Dispatcher().Methods());
    ServeLinkMethods(link);
    ServeStores(link);
    ServeWebsocket(link, transmitter);

    std::vector<std::string> urls = link.Dispatcher().Http().Names();
    urls.push_back(kRegisteredMethod);
    link.SetServedUrls(std::move(urls));
    ServeState(link);
}

} // namespace video
