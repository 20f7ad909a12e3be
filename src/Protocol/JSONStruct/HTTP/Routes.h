#pragma once

/// The routes of the framework that the component asks. Identifiers between their parts are percent-encoded.
namespace protocol::route {

inline constexpr char kRegister[] = "/vantor/v1/internal/framework/register";
inline constexpr char kComponents[] = "/vantor/v1/internal/framework/components";
inline constexpr char kFilePath[] = "/vantor/v1/internal/framework/system/filepath";
inline constexpr char kDateTimeFormat[] = "/vantor/v1/internal/framework/system/dateTimeFormat";
inline constexpr char kFrameResize[] = "/vantor/v1/internal/framework/system/frameResize";
inline constexpr char kAlarmRegister[] = "/vantor/v1/internal/alarmCenter/register";

/// Device management.
inline constexpr char kDevices[] = "/vantor/v1/deviceManagement/devices";
inline constexpr char kGroups[] = "/vantor/v1/deviceManagement/groups";
inline constexpr char kBatchTimeSynchronization[] = "/vantor/v1/deviceManagement/batchTimeSynchronization";
inline constexpr char kWipers[] = "/vantor/v1/deviceManagement/wipers";
inline constexpr char kAllAlarmOutputs[] = "/vantor/v1/deviceManagement/devices/alarmOutputs";

/// What follows kDevices + "/" + device id; kNothing is the device itself.
inline constexpr char kNothing[] = "";
inline constexpr char kChannels[] = "/channels/";
inline constexpr char kAlarmInputs[] = "/alarmInputs/";
inline constexpr char kAlarmOutputs[] = "/alarmOutputs";

/// What follows kAlarmOutputs + "/" + output id.
inline constexpr char kControls[] = "/controls";

} // namespace protocol::route
