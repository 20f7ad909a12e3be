#include "simulator/device/DevicePlan.h"

#include "Base/StringUtil.h"
#include "QxNetSDK/Structures.h"

#include <algorithm>
#include <array>
#include <utility>

namespace simulator {

namespace {

constexpr std::array<const char*, 24> kPlaces = {
    "Gate North", "Loading Dock", "Lobby",         "Car Park East", "Corridor 1st Floor", "Server Room",
    "Gate South", "Warehouse",    "Reception",     "Car Park West", "Stairwell A",        "Workshop",
    "Fence East", "Cold Store",   "Cash Desk",     "Canteen",       "Stairwell B",        "Roof",
    "Fence West", "Packing Line", "Main Entrance", "Courtyard",     "Lift Hall",          "Boiler Room",
};

constexpr std::array<const char*, 8> kSites = {"Main Building", "Warehouse", "Car Park", "Workshop",
                                               "Office Wing",   "Depot",     "Annex",    "Laboratory"};

/// The name at a place of a list that starts again, with a number, when it is through.
template<std::size_t Count>
std::string NameAt(const std::array<const char*, Count>& names, std::size_t at)
{
    const std::string name = names[at % Count];
    return at < Count ? name : name + ' ' + std::to_string(at / Count + 1);
}

unsigned ShareOf(const DevicePlan& device)
{
    if (device.kind == QXNET_DEVICE_STORAGE_SERVER)
        return 0;
    return device.kind == QXNET_DEVICE_RECORDER ? 3 : 1;
}

std::vector<std::size_t> DealCameras(const std::vector<DevicePlan>& devices, unsigned cameras)
{
    unsigned shares = 0;
    unsigned largest = 0;
    for (const DevicePlan& device : devices) {
        shares += ShareOf(device);
        largest = std::max(largest, ShareOf(device));
    }
    std::vector<std::size_t> counts;
    unsigned left = cameras;
    for (const DevicePlan& device : devices) {
        counts.push_back(cameras * ShareOf(device) / shares);
        left -= static_cast<unsigned>(counts.back());
    }
    for (std::size_t i = 0; left > 0; i = (i + 1) % devices.size())
        if (ShareOf(devices[i]) == largest) {
            ++counts[i];
            --left;
        }
    return counts;
}

/// The first recorder has one camera in each of the states that are not the usual one.
void VaryStates(std::vector<ChannelPlan>& channels)
{
    constexpr std::array<std::uint32_t, 3> states = {QXNET_CHANNEL_OFFLINE, QXNET_CHANNEL_RECORDING,
                                                     QXNET_CHANNEL_NOT_SUPPORTED};
    for (std::size_t i = 0; i < states.size() && i + 1 < channels.size(); ++i)
        channels[i + 1].state = states[i];
}

void Equip(DevicePlan& device, std::size_t cameras, std::size_t& named)
{
    for (std::size_t i = 0; i < cameras; ++i)
        device.channels.push_back({NameAt(kPlaces, named++), QXNET_CHANNEL_ONLINE});
    const bool isRecorder = device.kind == QXNET_DEVICE_RECORDER;
    const bool hasCameras = device.kind != QXNET_DEVICE_STORAGE_SERVER;
    device.alarmInputs = hasCameras ? (isRecorder ? 16 : 2) : 0;
    device.alarmOutputs = hasCameras ? (isRecorder ? 4 : 1) : 0;
    device.voiceChannels = hasCameras ? 1 : 0;
    device.voice = isRecorder ? VoicePlan{QXNET_AUDIO_G722, 16} : VoicePlan{QXNET_AUDIO_G711_MU, 8};
    device.disks = hasCameras ? (isRecorder ? 4 : 1) : 8;
}

} // namespace

const char* KindName(std::uint32_t kind)
{
    if (kind == QXNET_DEVICE_STORAGE_SERVER)
        return "storage";
    return kind == QXNET_DEVICE_RECORDER ? "recorder" : "encoder";
}

std::vector<DevicePlan> PlanDevices(unsigned count, unsigned cameras, std::uint32_t firstKind,
                                    const std::vector<std::optional<TypeCode>>& types)
{
    std::vector<DevicePlan> devices(count);
    for (unsigned i = 0; i < count; ++i) {
        const bool isFirstKind = i % 2 == 0;
        const std::uint32_t other =
            firstKind == QXNET_DEVICE_ENCODER ? QXNET_DEVICE_RECORDER : QXNET_DEVICE_ENCODER;
        DevicePlan& device = devices[i];
        device.index = i;
        device.kind = isFirstKind ? firstKind : other;
        if (count > 1 && i + 1 == count)
            device.kind = QXNET_DEVICE_STORAGE_SERVER;
        device.typeCode = device.kind;
        if (i < types.size() && types[i]) {
            device.typeCode = types[i]->code;
            device.subType = types[i]->subType;
        }
    }
    const std::vector<std::size_t> dealt = DealCameras(devices, cameras);
    std::size_t named = 0;
    bool isFirstRecorder = true;
    for (unsigned i = 0; i < count; ++i) {
        DevicePlan& device = devices[i];
        static const char* const titles[] = {"Encoder", "Recorder", "Storage"};
        const bool isStorage = device.kind == QXNET_DEVICE_STORAGE_SERVER;
        device.name = NameAt(kSites, i) + ' ' +
                      titles[isStorage                              ? 2
                             : device.kind == QXNET_DEVICE_RECORDER ? 1
                                                                    : 0];
        device.serial = Base::StringUtil::Format("VS%02u-%06u", device.kind, 100200 + i * 37);
        Equip(device, dealt[i], named);
        if (device.kind == QXNET_DEVICE_RECORDER && std::exchange(isFirstRecorder, false))
            VaryStates(device.channels);
    }
    return devices;
}

} // namespace simulator
