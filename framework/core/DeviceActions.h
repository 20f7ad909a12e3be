#pragma once

#include "Protocol/JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/ToolJSONStruct.h"

#include <cstdint>

/// What routes have devices do. The calls wait for the device, for at most the times of its session; any
/// thread but the GUI's. login: a session's handle. The result is the device SDK's error pair; 0: done.
namespace framework {

/// Sets the device's clock to this computer's time; zone and time server stay as they are.
protocol::ResultCode SetDeviceClock(std::int32_t login);

/// channel: from 1.
protocol::ResultCode MoveWiper(std::int32_t login, int channel, protocol::WiperAction action);

/// output: from 1.
protocol::ResultCode SwitchDeviceOutput(std::int32_t login, int output, bool active);

} // namespace framework
