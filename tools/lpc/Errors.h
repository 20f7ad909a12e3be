#pragma once

#include <string>

namespace lpctool {

/// An error number of the channel in words, with the number: "timed out (error 1007)".
std::string ErrorText(int error);

} // namespace lpctool
