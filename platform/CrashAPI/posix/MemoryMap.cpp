#include "CrashAPI/posix/MemoryMap.h"

#include <cstring>

namespace crash {

namespace {

/// Takes one hexadecimal number and the character behind it.
std::uint64_t TakeHex(const char*& text)
{
    std::uint64_t value = 0;
    for (; *text; ++text) {
        const char* const digits = "0123456789abcdef";
        const char* const digit = std::strchr(digits, *text);
        if (!digit)
            return ++text, value;
        value = value * 16 + static_cast<std::uint64_t>(digit - digits);
    }
    return value;
}

const char* BehindField(const char* text)
{
    while (*text && *text != ' ')
        ++text;
    while (*text == ' ')
        ++text;
    return text;
}

} // namespace

/// A line: "start-end rwxp offset device inode  path".
bool MemoryMap::Next(Mapping& mapping)
{
    const char* at = m_lines.Next();
    if (!at)
        return false;
    mapping.start = TakeHex(at);
    mapping.end = TakeHex(at);
    mapping.runs = std::strlen(at) > 3 && at[2] == 'x';
    at = BehindField(at);
    mapping.offset = TakeHex(at);
    mapping.path = BehindField(BehindField(at));
    return true;
}

} // namespace crash
