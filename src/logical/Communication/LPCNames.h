#pragma once

#include "LPC_Wire/WellKnownNames.h"

/// Fixed names of the local channel between this component and the framework.
namespace video {

constexpr const char* kLPCClientName = lpc::kVideoComponentName;
constexpr const char* kLPCServerName = lpc::kFrameworkServerName;

constexpr const char* kUrlHeader = "url";
constexpr const char* kMethodHeader = "method";
constexpr const char* kProtocolHeader = "protocol";

constexpr const char* kHttpProtocol = "http";
constexpr const char* kWebsocketProtocol = "websocket";

/// The websocket notification type that also goes to the transmitter's alarm entry.
constexpr const char* kAlarmMessageType = "alarmMessage";

namespace route {
constexpr const char* kLocalFile = "/vantor/v1/internal/video/locaFile";
constexpr const char* kVideoFileNotify = "/vantor/v1/internal/video/videoFileNotify";
constexpr const char* kLocalFileQuery = "/vantor/v1/internal/video/localFileQuery";
constexpr const char* kSystemConfigs = "/vantor/v1/internal/video/systemConfigs";
constexpr const char* kBroadCastOperator = "/vantor/v1/internal/video/BroadCastOperator";
constexpr const char* kState = "/vantor/v1/internal/video/state";
} // namespace route

} // namespace video
