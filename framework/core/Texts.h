#pragma once

#include <algorithm>
#include <string>

namespace framework {

/// Whether the text may be a name: 1 to limit characters of UTF-8, no control characters.
inline bool IsName(const std::string& text, std::size_t limit)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    const auto beginsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return !text.empty() && std::none_of(text.begin(), text.end(), isControl) &&
           static_cast<std::size_t>(std::count_if(text.begin(), text.end(), beginsCharacter)) <= limit;
}

} // namespace framework
