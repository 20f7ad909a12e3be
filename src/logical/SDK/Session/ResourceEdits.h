#pragma once

#include "DeviceSessions/DeviceSessions.h"
#include "Protocol/JSONStruct/HTTP/DeviceJSONStruct.h"
#include "UiDataController/Model/Resources.h"

/// What the framework and the sessions tell, in the words of the logic model.
namespace video {

UiDataController::DeviceResource ResourceOf(const protocol::DeviceResponseData& device);
UiDataController::ChannelResource ResourceOf(const protocol::DeviceChannelInfo& channel);
/// The group and, where the framework names them, its channels.
void AppendEdits(const protocol::GroupInfo& group, UiDataController::ModelEdits& edits);

/// How to log in to a device.
devices::DeviceAddress AddressOf(const protocol::DeviceResponseData& device);

/// With the reason in the user's language where the device is offline. A device that no session can be had
/// with, as it speaks another version of the protocol, is not supported.
UiDataController::DeviceHeard HeardOf(const devices::DeviceStatus& status);
/// Of a device whose user is not known.
UiDataController::DeviceHeard WithoutUser(const std::string& deviceId);

} // namespace video
