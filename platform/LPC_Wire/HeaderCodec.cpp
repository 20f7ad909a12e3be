#include "LPC_Wire/HeaderCodec.h"

#include "LPC_Wire/ByteOrder.h"
#include "LPC_Wire/Limits.h"

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
    if (!TakeLength(rest, length) || rest.size() < length)
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
