#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace devicetool {

struct Invocation;

/// The password of an invocation: the first line of --password-file ("-": of in), else the environment's
/// VANTOR_DEVICE_PASSWORD, else what the person at the terminal types. None with the reason in error.
std::optional<std::string> FindPassword(const Invocation& invocation, std::istream& in, std::string& error);

} // namespace devicetool
