#pragma once

#include "LPC_Wire/WellKnownNames.h"

/// Fixed names of the channel and of this tool's additions to it.
namespace lpctool {

constexpr const char* kServerName = lpc::kFrameworkServerName;
constexpr const char* kComponentName = lpc::kVideoComponentName;

constexpr const char* kRegisterUrl = "/vantor/v1/internal/framework/register";

/// The method that ends the component in order.
constexpr const char* kEndMethod = "componentUninit";

constexpr const char* kLostMethod = lpc::kClientDisconnectedMethod;

/// A client sends a request with this method to get copies of the traffic as notifications with the same
/// method.
constexpr const char* kWatchMethod = "watch";

} // namespace lpctool
