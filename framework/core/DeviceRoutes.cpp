#include "framework/core/Routes.h"

#include "Base/AsyncTask.h"
#include "LPC_Forward/Answer.h"
#include "Protocol/JSONStruct/HTTP/Routes.h"
#include "Protocol/JSONStruct/HTTP/ToolJSONStruct.h"
#include "framework/core/DeviceActions.h"

#include <algorithm>
#include <atomic>

namespace framework {

namespace {

namespace route = protocol::route;
using protocol::DeviceResponseData;

constexpr int kUnknownDevice = 404;
constexpr int kOfflineDevice = 503;
constexpr std::size_t kAskedAtOnce = 16;

lpc::Message NoDevice(const std::string& guid)
{
    return Failed(404, "There is no device \"" + guid + "\".");
}

/// All devices as that client may see them: a component gets the credentials, enciphered; others get none.
std::vector<DeviceResponseData> DevicesFor(const RouteRequest& request, const CResources& resources,
                                           const Base::Encrypt::AESParams& seal)
{
    std::vector<DeviceResponseData> devices = resources.Devices();
    for (DeviceResponseData& device : devices) {
        for (std::string* credential : {&device.userName, &device.password}) {
            const bool isShown = request.isFromComponent && !credential->empty();
            std::string sealed = isShown ? Base::Encrypt::Seal(seal, *credential) : std::string();
            Base::Encrypt::Wipe(*credential);
            *credential = std::move(sealed);
        }
    }
    return devices;
}

lpc::Message AllDevices(const CResources& resources, const RouteRequest& request,
                        const Base::Encrypt::AESParams& seal)
{
    protocol::DeviceResponseListData list;
    list.devices = DevicesFor(request, resources, seal);
    return Found(list);
}

lpc::Message OneDevice(const CResources& resources, const RouteRequest& request,
                       const Base::Encrypt::AESParams& seal)
{
    for (const DeviceResponseData& device : DevicesFor(request, resources, seal))
        if (device.guid == request.ids[0])
            return Found(device);
    return NoDevice(request.ids[0]);
}

/// Serves a list of a device's parts: member of the message, filled by the function of the resources.
template<typename List, typename Part>
RouteHandler PartsOfDevice(CResources& resources, std::vector<Part> List::*member,
                           std::vector<Part> (CResources::*parts)(const std::string&) const)
{
    return [&resources, member, parts](const RouteRequest& request) {
        bool isOnline = false;
        if (!resources.Find(request.ids[0], isOnline))
            return NoDevice(request.ids[0]);
        List list;
        list.*member = (resources.*parts)(request.ids[0]);
        return Found(list);
    };
}

lpc::Message AllOutputs(const CResources& resources)
{
    protocol::AlarmOutputInfoData list;
    list.outputs = resources.AlarmOutputs({});
    return Found(list);
}

/// The device was asked, and did not do it.
lpc::Message NotDone(const protocol::ResultCode& result)
{
    constexpr int kBadGateway = 502;
    protocol::CommonResponseData response;
    response.result = result;
    response.message = "The device did not do it.";
    return lpcforward::MakeAnswer(kBadGateway, 0, protocol::WriteJSONStr(response));
}

lpc::Message SwitchOutput(CResources& resources, const RouteServices& services, const RouteRequest& request,
                          bool active)
{
    const std::string& device = request.ids[0];
    const std::string& output = request.ids[1];
    bool isOnline = false;
    if (!resources.Find(device, isOnline))
        return NoDevice(device);
    const auto outputs = resources.AlarmOutputs(device);
    const auto found = std::find_if(outputs.begin(), outputs.end(),
                                    [&](const auto& candidate) { return candidate.guid == output; });
    if (found == outputs.end())
        return Failed(404, "There is no alarm output \"" + output + "\".");
    const std::int32_t session = services.session(device);
    if (session < 0)
        return Failed(kOfflineDevice, "The device is offline.");
    const protocol::ResultCode result = SwitchDeviceOutput(session, found->number, active);
    if (result.errorCode != 0)
        return NotDone(result);
    return resources.SwitchOutput(device, output, active) ? Done()
                                                          : Failed(500, "The state cannot be saved.");
}

lpc::Message AllGroups(const CResources& resources)
{
    protocol::GroupListData list;
    list.groups = resources.Groups();
    return Found(list);
}

lpc::Message ModifyGroups(CResources& resources, const protocol::ModifyGroupCondition& condition)
{
    protocol::GroupListData list;
    bool isSaved = false;
    list.groups = resources.ModifyGroups(condition, &isSaved);
    return isSaved ? Found(list) : Failed(500, "The groups cannot be saved.");
}

/// What work at the session of a device gives; why there is no session.
template<typename Work>
protocol::ResultCode ResultFor(const CResources& resources, const RouteServices& services,
                               const std::string& deviceGuid, Work work)
{
    bool isOnline = false;
    protocol::ResultCode result;
    if (!resources.Find(deviceGuid, isOnline)) {
        result.errorCode = kUnknownDevice;
        return result;
    }
    const std::int32_t session = services.session(deviceGuid);
    if (session >= 0)
        return work(session);
    result.errorCode = kOfflineDevice;
    return result;
}

/// The results of asking for each of them, several at the same time.
template<typename Result, typename Ask>
std::vector<Result> SideBySide(const std::vector<std::string>& guids, Ask ask)
{
    std::vector<Result> results(guids.size());
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        for (std::size_t at = next++; at < guids.size(); at = next++)
            results[at] = {guids[at], ask(guids[at])};
    };
    std::vector<std::future<void>> others;
    while (others.size() + 1 < std::min(guids.size(), kAskedAtOnce))
        others.push_back(Base::RunAsync("device-batch", work));
    work();
    for (const std::future<void>& other : others)
        other.wait();
    return results;
}

lpc::Message SynchroniseTime(const CResources& resources, const RouteServices& services,
                             const protocol::DeviceList& devices)
{
    protocol::TimeSyncResultListData list;
    list.results = SideBySide<protocol::TimeSyncResult>(devices.deviceGuids, [&](const std::string& guid) {
        return ResultFor(resources, services, guid, SetDeviceClock);
    });
    services.logOperation("The clocks of " + std::to_string(list.results.size()) +
                          " devices were to be set.");
    return Found(list);
}

lpc::Message MoveWipers(const CResources& resources, const RouteServices& services,
                        const protocol::WiperControlData& control)
{
    const auto channels = resources.Channels({});
    protocol::WiperControlResultListData list;
    const auto moveOne = [&](const std::string& guid) {
        const auto channel = std::find_if(channels.begin(), channels.end(),
                                          [&](const auto& candidate) { return candidate.guid == guid; });
        const bool isKnown = channel != channels.end();
        const auto move = [&](std::int32_t session) {
            return MoveWiper(session, channel->channelNo, control.action);
        };
        return ResultFor(resources, services, isKnown ? channel->deviceGuid : std::string(), move);
    };
    list.results = SideBySide<protocol::WiperControlResult>(control.channelGuids, moveOne);
    services.logOperation("The wipers of " + std::to_string(list.results.size()) +
                          " cameras were to be moved.");
    return Found(list);
}

std::string OfDevice(const char* rest)
{
    return std::string(route::kDevices) + "/*" + rest;
}

} // namespace

// The alarm outputs of all devices stand before the single device, whose url they would match.
void AddDeviceRoutes(CRouteTable& routes, CResources& resources, const RouteServices& services)
{
    using namespace protocol;
    routes.Add("GET", route::kDevices, [&resources, services](const RouteRequest& request) {
        return AllDevices(resources, request, services.seal);
    });
    routes.Add("GET", route::kAllAlarmOutputs,
               [&resources](const RouteRequest&) { return AllOutputs(resources); });
    routes.Add("GET", OfDevice(route::kNothing), [&resources, services](const RouteRequest& request) {
        return OneDevice(resources, request, services.seal);
    });
    routes.Add("GET", OfDevice(route::kChannels),
               PartsOfDevice(resources, &DeviceChannelListData::channels, &CResources::Channels));
    routes.Add("GET", OfDevice(route::kAlarmInputs),
               PartsOfDevice(resources, &AlarmInputInfoData::inputs, &CResources::AlarmInputs));
    routes.Add("GET", OfDevice(route::kAlarmOutputs),
               PartsOfDevice(resources, &AlarmOutputInfoData::outputs, &CResources::AlarmOutputs));
    routes.Add(
        "PUT", OfDevice(route::kAlarmOutputs) + "/*" + route::kControls,
        WithBody<AlarmOutputControlData>(
            [&resources, services](const RouteRequest& request, const AlarmOutputControlData& control) {
                return SwitchOutput(resources, services, request, control.active);
            }),
        RouteWaits::ForDevices);
    routes.Add("GET", route::kGroups, [&resources](const RouteRequest&) { return AllGroups(resources); });
    routes.Add("PUT", route::kGroups,
               WithBody<ModifyGroupCondition>(
                   [&resources](const RouteRequest&, const ModifyGroupCondition& condition) {
                       return ModifyGroups(resources, condition);
                   }));
    routes.Add("POST", route::kBatchTimeSynchronization,
               WithBody<DeviceList>([&resources, services](const RouteRequest&, const DeviceList& devices) {
                   return SynchroniseTime(resources, services, devices);
               }),
               RouteWaits::ForDevices);
    routes.Add("POST", route::kWipers,
               WithBody<WiperControlData>(
                   [&resources, services](const RouteRequest&, const WiperControlData& control) {
                       return MoveWipers(resources, services, control);
                   }),
               RouteWaits::ForDevices);
}

} // namespace framework
