#pragma once

#include "CommunicationLayer/TypedRequest.h"
#include "Protocol/JSONStruct/HTTP/AlarmJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/DeviceJSONStruct.h"

/// Requests about devices. The credentials of CGetDevices and CGetDevice are still enciphered; the component
/// asks through logical/Communication/LPCRequest/DeviceRequest.h, which opens them.
namespace commlayer {

using CGetDevices = CQuery<protocol::route::kDevices, protocol::DeviceResponseListData>;
using CGetDevice = CDeviceQuery<protocol::route::kNothing, protocol::DeviceResponseData>;
using CGetDeviceChannels = CDeviceQuery<protocol::route::kChannels, protocol::DeviceChannelListData>;
using CGetDeviceAlarmInputs = CDeviceQuery<protocol::route::kAlarmInputs, protocol::AlarmInputInfoData>;
using CGetGroups = CQuery<protocol::route::kGroups, protocol::GroupListData>;

/// Changes all groups as the condition says. groups are those that it changed.
struct CModifyAllGroupsComm
{
    [[nodiscard]] static bool request(protocol::GroupListData& groups,
                                      const protocol::ModifyGroupCondition& condition,
                                      ITransport& transport = CurrentTransport())
    {
        return Exchange(transport, {kPut, protocol::route::kGroups}, condition, groups);
    }
};

} // namespace commlayer
