#pragma once

#include <cstddef>
#include <string>

namespace sdk {

/// Two lower-case digits a byte.
inline std::string Hexadecimal(const unsigned char* bytes, std::size_t count)
{
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * count);
    for (std::size_t i = 0; i < count; ++i) {
        text += kDigits[bytes[i] >> 4];
        text += kDigits[bytes[i] & 15];
    }
    return text;
}

} // namespace sdk
