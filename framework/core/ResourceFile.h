#pragma once

#include "Protocol/JSONStruct/HTTP/AlarmJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/DeviceJSONStruct.h"
#include "framework/core/Resources.h"

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

/// Gives the device that many channels in a group of its name, and two inputs and outputs when it has any
/// channel.
void FitParts(ResourceFile& file, const protocol::DeviceResponseData& device, int channels,
              ResourceChanges& changes);

/// The number of the device's channels.
int ChannelCount(const ResourceFile& file, const std::string& deviceGuid);

} // namespace framework
