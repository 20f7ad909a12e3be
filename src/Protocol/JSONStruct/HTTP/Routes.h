#pragma once

/// The routes between framework and component. Identifiers between their parts are percent-encoded.
namespace protocol::route {

/// Served by the component.
constexpr const char* kLocalFile = "/vantor/v1/internal/video/locaFile";
constexpr const char* kVideoFileNotify = "/vantor/v1/internal/video/videoFileNotify";
constexpr const char* kLocalFileQuery = "/vantor/v1/internal/video/localFileQuery";
constexpr const char* kSystemConfigs = "/vantor/v1/internal/video/systemConfigs";
constexpr const char* kBroadCastOperator = "/vantor/v1/internal/video/BroadCastOperator";
constexpr const char* kOperateDownload = "operateDownload";

/// Served by the framework.
constexpr const char* kRegister = "/vantor/v1/internal/framework/register";
constexpr const char* kComponents = "/vantor/v1/internal/framework/components";
constexpr const char* kFilePath = "/vantor/v1/internal/framework/system/filepath";
constexpr const char* kDateTimeFormat = "/vantor/v1/internal/framework/system/dateTimeFormat";
constexpr const char* kFrameResize = "/vantor/v1/internal/framework/system/frameResize";
constexpr const char* kAlarmRegister = "/vantor/v1/internal/alarmCenter/register";

/// Served by the framework's device management.
constexpr const char* kDevices = "/vantor/v1/deviceManagement/devices";
constexpr const char* kGroups = "/vantor/v1/deviceManagement/groups";
constexpr const char* kBatchTimeSynchronization = "/vantor/v1/deviceManagement/batchTimeSynchronization";
constexpr const char* kWipers = "/vantor/v1/deviceManagement/wipers";
constexpr const char* kAllAlarmOutputs = "/vantor/v1/deviceManagement/devices/alarmOutputs";

/// What follows kDevices + "/" + device id.
constexpr const char* kChannelsOfDevice = "/channels/";
constexpr const char* kAlarmInputsOfDevice = "/alarmInputs/";
constexpr const char* kAlarmOutputsOfDevice = "/alarmOutputs";
/// What follows kAlarmOutputsOfDevice + "/" + output id.
constexpr const char* kControlsOfOutput = "/controls";

} // namespace protocol::route
