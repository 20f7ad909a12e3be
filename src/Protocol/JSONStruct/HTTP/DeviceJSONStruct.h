#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <cstdint>
#include <string>
#include <vector>

/// Messages about devices, their channels and the groups of channels.
namespace protocol {

/// A device with its credentials, which travel enciphered (CommonMethod/DecryptionComm.h).
struct DeviceResponseData : CMessage<DeviceResponseData, IInboundData>
{
    static constexpr const char* kKey = "device";
    std::string guid;
    std::string name;
    std::int32_t typeCode = 0; ///< encoder, recorder or storage server, as the device SDK numbers them
    std::int32_t subType = 0;
    std::string address;
    std::uint16_t port = 0;
    std::string userName;
    std::string password;
    bool useTls = false; ///< the device is reached over TLS
    bool online = false;

    static constexpr auto Fields()
    {
        using T = DeviceResponseData;
        return std::make_tuple(Must("guid", &T::guid), Must("name", &T::name), Must("typeCode", &T::typeCode),
                               May("subType", &T::subType), Must("address", &T::address),
                               Must("port", &T::port), May("userName", &T::userName),
                               May("password", &T::password), May("useTls", &T::useTls),
                               May("online", &T::online));
    }
};

struct DeviceResponseListData : CMessage<DeviceResponseListData, IInboundData>
{
    static constexpr const char* kKey = "deviceList";
    std::vector<DeviceResponseData> devices;

    static constexpr auto Fields() { return Whole(&DeviceResponseListData::devices); }
};

/// A camera channel of a device.
struct DeviceChannelInfo
{
    std::string guid;
    std::string deviceGuid;
    std::string groupGuid;
    std::string name;
    std::int32_t channelNo = 0; ///< at the device, from 1
    bool online = false;

    static constexpr auto Fields()
    {
        using T = DeviceChannelInfo;
        return std::make_tuple(Must("guid", &T::guid), Must("deviceGuid", &T::deviceGuid),
                               May("groupGuid", &T::groupGuid), May("name", &T::name),
                               Must("channelNo", &T::channelNo), May("online", &T::online));
    }
};

struct DeviceChannelListData : CMessage<DeviceChannelListData, IInboundData>
{
    static constexpr const char* kKey = "channelList";
    std::vector<DeviceChannelInfo> channels;

    static constexpr auto Fields() { return Whole(&DeviceChannelListData::channels); }
};

/// A group of the resource tree with its channels in order.
struct GroupInfo
{
    std::string guid;
    std::string parentGuid; ///< empty: a group at the top
    std::string name;
    std::vector<std::string> channelGuids;

    static constexpr auto Fields()
    {
        using T = GroupInfo;
        return std::make_tuple(Must("guid", &T::guid), May("parentGuid", &T::parentGuid),
                               Must("name", &T::name), May("channelGuids", &T::channelGuids));
    }
};

struct GroupListData : CMessage<GroupListData, IInboundData>
{
    static constexpr const char* kKey = "groupList";
    std::vector<GroupInfo> groups;

    static constexpr auto Fields() { return Whole(&GroupListData::groups); }
};

/// What to change in all groups at once.
struct ModifyGroupCondition : CMessage<ModifyGroupCondition, IInboundData>
{
    static constexpr const char* kKey = "modifyGroupCondition";
    std::int32_t allSmartRule = -1; ///< show the rules of smart events: 1 yes, 0 no, -1 as it is

    static constexpr auto Fields()
    {
        return std::make_tuple(May("allSmartRule", &ModifyGroupCondition::allSmartRule));
    }
};

} // namespace protocol
