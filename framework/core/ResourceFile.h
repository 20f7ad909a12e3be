#pragma once

#include "Protocol/JSONStruct/HTTP/AlarmJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/DeviceJSONStruct.h"
#include "framework/core/Resources.h"
#include "framework/core/Stored.h"

#include <string>
#include <vector>

/// Devices and what belongs to them as the file has them, and the changes of it. One thread at a time.
namespace framework {

struct StoredGroup : protocol::GroupInfo
{
    bool smartRule = false; ///< the rules of smart events are shown

    static constexpr auto Fields()
    {
        return std::tuple_cat(protocol::GroupInfo::Fields(),
                              std::make_tuple(protocol::May("smartRule", &StoredGroup::smartRule)));
    }
};

struct ResourceFile
{
    std::vector<protocol::DeviceResponseData> devices; ///< user names and passwords sealed
    std::vector<protocol::DeviceChannelInfo> channels;
    std::vector<protocol::AlarmInputInfo> inputs;
    std::vector<protocol::AlarmOutputInfo> outputs;
    std::vector<StoredGroup> groups;

    static constexpr auto Fields()
    {
        using T = ResourceFile;
        using protocol::Must;
        return std::make_tuple(Must("devices", &T::devices), Must("channels", &T::channels),
                               Must("alarmInputs", &T::inputs), Must("alarmOutputs", &T::outputs),
                               Must("groups", &T::groups));
    }
};

using ResourceChanges = std::vector<ResourceChange>;

/// Null when there is none.
protocol::DeviceResponseData* FindDevice(ResourceFile& file, const std::string& guid);
const protocol::DeviceResponseData* FindDevice(const ResourceFile& file, const std::string& guid);

/// Notes "<kind><what>" of a device, channel and so on, for example "deviceAdd".
ResourceChange ChangeOf(const char* what, const protocol::DeviceResponseData& device, std::string text = {});
ResourceChange ChangeOf(const char* what, const protocol::DeviceChannelInfo& channel);
ResourceChange ChangeOf(const char* what, const protocol::AlarmInputInfo& input);
ResourceChange ChangeOf(const char* what, const protocol::AlarmOutputInfo& output, std::string text = {});
ResourceChange ChangeOf(const char* what, const StoredGroup& group);

/// What a device has.
struct DeviceParts
{
    std::vector<devices::ChannelState> channels;
    int inputs = 0;
    int outputs = 0;
};

/// Gives the device these channels in a group of its name, and so many inputs and outputs. Channels keep
/// their identifier by their number.
Changed FitParts(ResourceFile& file, const protocol::DeviceResponseData& device, const DeviceParts& parts,
                 ResourceChanges& changes);

/// Gives the group of the device's channels its name.
void NameGroup(ResourceFile& file, const protocol::DeviceResponseData& device, ResourceChanges& changes);

/// Takes over what is heard of a device of the file.
Changed TakeStatus(ResourceFile& file, protocol::DeviceResponseData& device,
                   const devices::DeviceStatus& status, ResourceChanges& changes);

Changed SetAllOffline(ResourceFile& file);

} // namespace framework
