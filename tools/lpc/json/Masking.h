#pragma once

#include "LPC_Wire/Records.h"
#include "lpc/json/Json.h"

#include <string>

namespace lpctool {

/// What is shown in place of a secret.
constexpr const char* kMask = "***";

/// A copy in which the values of all members with such names are masked, also within texts that are JSON
/// themselves.
JsonValue Masked(const cJSON& value);

/// The masked copy on one line.
std::string MaskedText(const cJSON& value);

/// A body for showing: masked when it is JSON; otherwise only its length, because secrets cannot be found in
/// it.
JsonValue MaskedBody(const std::string& body);

lpc::HeaderMap MaskedHeaders(const lpc::HeaderMap& headers);

} // namespace lpctool
