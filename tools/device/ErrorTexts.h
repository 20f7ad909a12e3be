#pragma once

#include <cstdint>
#include <string>

namespace devicetool {

/// An error of the SDK with what lies behind it.
struct Failure
{
    std::uint32_t error = 0;
    std::uint32_t module = 0;
    std::uint32_t own = 0; ///< the device's own number; 0: none
    std::string detail;    ///< more than the numbers say; may be empty
};

/// What an error of the SDK means, in English, as the begin of a sentence.
const char* ErrorMeaning(std::uint32_t error);

/// "user name or password wrong [400]-[401]", with the detail behind it.
std::string ErrorText(const Failure& failure);

} // namespace devicetool
