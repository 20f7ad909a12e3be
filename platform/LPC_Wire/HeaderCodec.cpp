#include "LPC_Wire/HeaderCodec.h"

#include "LPC_Wire/ByteOrder.h"
#include "LPC_Wire/Limits.h"

#include <boost/locale/utf.hpp>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace lpc {
namespace {

constexpr std::size_t kLengthBytes = 2;

void AppendLength(std::size_t length, std::string& out)
{
    char bytes[kLengthBytes];
    PutNumber(bytes, static_cast<std::uint16_t>(length));
    out.append(bytes, sizeof bytes);
}

void AppendText(const std::string& text, std::string& out)
{
    AppendLength(text.size(), out);
    out += text;
}

/// The usual case, eight bytes at a time.
bool IsAscii(std::string_view text)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::uint64_t seen = 0;
    std::uint64_t word = 0;
    for (; text.size() >= sizeof word; text.remove_prefix(sizeof word)) {
        std::memcpy(&word, text.data(), sizeof word);
        seen |= word;
    }
    for (const char c : text)
        seen |= static_cast<unsigned char>(c);
    return (seen & kHighBits) == 0;
}

bool IsUtf8(std::string_view text)
{
    using Utf8 = boost::locale::utf::utf_traits<char>;
    if (IsAscii(text))
        return true;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end)
        if (!boost::locale::utf::is_valid_codepoint(Utf8::decode(at, end)))
            return false;
    return true;
}

bool TakeLength(std::string_view& rest, std::size_t& length)
{
    if (rest.size() < kLengthBytes)
        return false;
    length = GetNumber<std::uint16_t>(rest.data());
    rest.remove_prefix(kLengthBytes);
    return true;
}

bool TakeText(std::string_view& rest, std::string& text)
{
    std::size_t length = 0;
    if (!TakeLength(rest, length) || rest.size() < length || !IsUtf8(rest.substr(0, length)))
        return false;
    text.assign(rest.data(), length);
    rest.remove_prefix(length);
    return true;
}

} // namespace

std::size_t EncodedHeaderBytes(const HeaderMap& headers)
{
    if (headers.size() > kMaxHeaders)
        return 0;
    std::size_t bytes = kLengthBytes;
    for (const auto& [key, value] : headers) {
        bytes += 2 * kLengthBytes + key.size() + value.size();
        if (key.empty() || bytes > kMaxHeaderBytes)
            return 0;
    }
    return bytes;
}

bool AreUtf8(const HeaderMap& headers)
{
    return std::all_of(headers.begin(), headers.end(),
                       [](const auto& header) { return IsUtf8(header.first) && IsUtf8(header.second); });
}

void AppendHeaders(const HeaderMap& headers, std::string& out)
{
    AppendLength(headers.size(), out);
    for (const auto& [key, value] : headers) {
        AppendText(key, out);
        AppendText(value, out);
    }
}

bool ReadHeaders(const char* data, std::size_t size, HeaderMap& headers)
{
    headers.clear();
    std::string_view rest(data, size);
    std::size_t count = 0;
    if (!TakeLength(rest, count) || count > kMaxHeaders)
        return false;
    for (; count > 0; --count) {
        std::string key;
        std::string value;
        if (!TakeText(rest, key) || !TakeText(rest, value) || key.empty())
            return false;
        if (!headers.emplace(std::move(key), std::move(value)).second)
            return false;
    }
    return rest.empty();
}

} // namespace lpc
