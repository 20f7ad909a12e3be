#include "DeviceStructures/Values.h"

#include "Base/StringUtil.h"

#include <algorithm>
#include <cstring>

namespace devices {

namespace {

using Base::StringUtil::Format;

void FillDefaults(const Layout& layout, std::uint8_t* bytes)
{
    for (const Field& field : layout) {
        for (std::uint32_t i = 0; i < field.count; ++i) {
            std::uint8_t* at = bytes + field.offset + i * field.size;
            if (field.kind == Kind::Nested)
                FillDefaults(field.nested(), at);
            else if (field.kind == Kind::Size)
                WriteNumber(field, at, layout.size);
            else if (field.kind == Kind::Text)
                std::memcpy(at, field.initialText,
                            std::min<std::size_t>(std::strlen(field.initialText), field.size));
            else if (field.kind == Kind::Octets)
                std::memset(at, static_cast<int>(field.initial), field.size);
            else if (IsNumber(field))
                WriteNumber(field, at, field.initial);
        }
    }
}

/// How many bytes the UTF-8 sequence at the begin of text has; 0 when it is none.
std::size_t SequenceLength(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint8_t lead = byte(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    const std::uint8_t second = byte(1);
    const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool noCharacter = (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
    return overlong || noCharacter ? 0 : length;
}

bool IsUtf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = SequenceLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string TextFault(const Field& field, const std::uint8_t* at)
{
    if (!std::memchr(at, 0, field.size))
        return "the text has no end";
    return IsUtf8(ReadText(field, at)) ? "" : "the text is no UTF-8";
}

std::string OctetsFault(const Field& field, const std::uint8_t* at)
{
    for (std::uint32_t i = 0; i < field.size; ++i)
        if (at[i] < field.min || at[i] > field.max)
            return Format("octet %u: ", i) + OutOfRange(field, at[i]);
    return "";
}

std::string NumberFault(const Field& field, const std::uint8_t* at)
{
    const std::int64_t value = ReadNumber(field, at);
    return value < field.min || value > field.max ? OutOfRange(field, value) : "";
}

std::string ElementFault(const Layout& layout, const Field& field, const std::uint8_t* at)
{
    switch (field.kind) {
    case Kind::Size:
        return ReadNumber(field, at) == layout.size
                   ? ""
                   : Format("%lld is not %u", static_cast<long long>(ReadNumber(field, at)), layout.size);
    case Kind::Text:
        return TextFault(field, at);
    case Kind::Octets:
        return OctetsFault(field, at);
    case Kind::Numbers:
    case Kind::Nested:
    case Kind::Reserved:
        return "";
    default:
        return NumberFault(field, at);
    }
}

std::optional<std::string> CheckMembers(const Layout& layout, const std::uint8_t* bytes,
                                        const std::string& path)
{
    for (const Field& field : layout) {
        for (std::uint32_t i = 0; i < field.count; ++i) {
            const std::uint8_t* at = bytes + field.offset + i * field.size;
            const auto member = [&] {
                return path + field.name + (field.count > 1 ? Format("[%u]", i) : std::string());
            };
            if (field.kind == Kind::Nested) {
                if (auto fault = CheckMembers(field.nested(), at, member() + "."))
                    return fault;
            } else if (const std::string fault = ElementFault(layout, field, at); !fault.empty()) {
                return member() + ": " + fault;
            }
        }
    }
    return std::nullopt;
}

int Digit(char digit)
{
    const std::string_view digits = "0123456789abcdef";
    const auto at = digits.find(digit >= 'A' && digit <= 'F' ? static_cast<char>(digit - 'A' + 'a') : digit);
    return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

} // namespace

Octets Defaults(const Layout& layout)
{
    Octets bytes(layout.size);
    FillDefaults(layout, bytes.data());
    return bytes;
}

std::optional<std::string> Check(const Layout& layout, const void* bytes, std::size_t size)
{
    if (size != layout.size)
        return Format("%s has %u bytes, not %zu", layout.name, layout.size, size);
    return CheckMembers(layout, static_cast<const std::uint8_t*>(bytes), "");
}

std::int64_t ReadNumber(const Field& field, const std::uint8_t* at)
{
    std::uint32_t value = 0;
    for (std::uint32_t i = field.size; i-- > 0;)
        value = value << 8 | at[i];
    return field.kind == Kind::I32 ? std::int64_t{static_cast<std::int32_t>(value)} : std::int64_t{value};
}

void WriteNumber(const Field& field, std::uint8_t* at, std::int64_t value)
{
    for (std::uint32_t i = 0; i < field.size; ++i)
        at[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::string ReadText(const Field& field, const std::uint8_t* at)
{
    const auto* text = reinterpret_cast<const char*>(at);
    return std::string(text, std::find(text, text + field.size, '\0'));
}

bool WriteText(const Field& field, std::uint8_t* at, std::string_view text)
{
    if (text.size() >= field.size || text.find('\0') != std::string_view::npos)
        return false;
    std::memset(at, 0, field.size);
    std::memcpy(at, text.data(), text.size());
    return true;
}

std::vector<unsigned> ReadNumbers(const Field& field, const std::uint8_t* at)
{
    std::vector<unsigned> numbers;
    for (unsigned i = 0; i < field.size * 8; ++i)
        if (at[i / 8] >> (i % 8) & 1)
            numbers.push_back(i + 1);
    return numbers;
}

bool WriteNumbers(const Field& field, std::uint8_t* at, const std::vector<unsigned>& numbers)
{
    for (unsigned number : numbers)
        if (number < 1 || number > field.size * 8)
            return false;
    std::memset(at, 0, field.size);
    for (unsigned number : numbers)
        at[(number - 1) / 8] |= static_cast<std::uint8_t>(1 << ((number - 1) % 8));
    return true;
}

std::string ReadHex(const Field& field, const std::uint8_t* at)
{
    static const char kDigits[] = "0123456789abcdef";
    std::string digits;
    digits.reserve(field.size * 2);
    for (std::uint32_t i = 0; i < field.size; ++i) {
        digits += kDigits[at[i] >> 4];
        digits += kDigits[at[i] & 15];
    }
    return digits;
}

bool WriteHex(const Field& field, std::uint8_t* at, std::string_view digits)
{
    if (digits.size() != field.size * 2)
        return false;
    for (char digit : digits)
        if (Digit(digit) < 0)
            return false;
    for (std::uint32_t i = 0; i < field.size; ++i)
        at[i] = static_cast<std::uint8_t>(Digit(digits[2 * i]) << 4 | Digit(digits[2 * i + 1]));
    return true;
}

bool IsNumber(const Field& field)
{
    return field.kind == Kind::U8 || field.kind == Kind::U16 || field.kind == Kind::U32 ||
           field.kind == Kind::I32;
}

bool IsShown(const Field& field)
{
    return field.kind != Kind::Size && field.kind != Kind::Reserved && !field.secret;
}

std::string OutOfRange(const Field& field, std::int64_t value)
{
    return Format("%lld is not within %lld to %lld", static_cast<long long>(value),
                  static_cast<long long>(field.min), static_cast<long long>(field.max));
}

} // namespace devices
