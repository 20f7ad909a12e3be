#pragma once

/// Fixed names of the channel and of this tool's additions to it.
namespace lpctool {

/// The framework's server name.
constexpr const char* kServerName = "Vantor_ClientFramework_LPCServer_7F0AA04D76F64B58AB20037B4D99073F";

/// The component's client name; the lower-case "d" is part of it.
constexpr const char* kComponentName = "Video.C_9AA5C3F1D41D467D813dE671443AF127";

constexpr const char* kRegisterUrl = "/vantor/v1/internal/framework/register";

/// The method that ends the component in order.
constexpr const char* kEndMethod = "componentUninit";

/// What the client library tells its receiver when the connection is lost.
constexpr const char* kLostMethod = "clientDisconnected";

/// A client sends a request with this method to get copies of the traffic as notifications with the same
/// method.
constexpr const char* kWatchMethod = "watch";

} // namespace lpctool
