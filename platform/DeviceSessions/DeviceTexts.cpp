#include "DeviceSessions/DeviceTexts.h"

#include <algorithm>
#include <cstdint>

namespace devices {

namespace {

struct Form
{
    unsigned char mask;
    unsigned char lead;
    std::size_t length;
    std::uint32_t least; ///< smaller numbers have a shorter form
};

constexpr Form kForms[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

bool IsShown(std::uint32_t code)
{
    const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool isSurrogate = code >= 0xD800 && code < 0xE000;
    return !isControl && !isSurrogate && code <= 0x10FFFF;
}

/// The bytes of the character at the begin of the text; 0 when there is none that can be shown.
std::size_t CharacterLength(const unsigned char* text, std::size_t left)
{
    for (const Form& form : kForms) {
        if ((text[0] & form.mask) != form.lead || form.length > left)
            continue;
        std::uint32_t code = text[0] & static_cast<unsigned char>(~form.mask);
        for (std::size_t index = 1; index < form.length; ++index) {
            if ((text[index] & 0xC0) != 0x80)
                return 0;
            code = (code << 6) | (text[index] & 0x3F);
        }
        return code >= form.least && IsShown(code) ? form.length : 0;
    }
    return 0;
}

} // namespace

std::string CleanText(const char* text, std::size_t capacity)
{
    const auto length = static_cast<std::size_t>(std::find(text, text + capacity, '\0') - text);
    std::string clean;
    for (std::size_t at = 0; at < length;) {
        const std::size_t taken =
            CharacterLength(reinterpret_cast<const unsigned char*>(text) + at, length - at);
        if (taken == 0)
            clean += '?';
        else
            clean.append(text + at, taken);
        at += std::max<std::size_t>(taken, 1);
    }
    while (clean.size() >= capacity)
        clean.pop_back();
    return clean;
}

} // namespace devices
