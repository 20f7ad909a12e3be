#include "Protocol/JSONStruct/LoggableText.h"

#include "Base/StringUtil.h"
#include "Protocol/JSONStruct/CredentialsInText.h"

#include <boost/locale/utf.hpp>

#include <algorithm>
#include <string_view>

namespace protocol {

namespace {

constexpr const char* kMask = "***";

/// Parts that meet or overlap get one mask.
std::string Masked(std::string_view text, std::vector<TextPart> parts)
{
    std::sort(parts.begin(), parts.end(),
              [](const TextPart& left, const TextPart& right) { return left.begin < right.begin; });
    std::string masked;
    std::size_t shown = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::size_t begin = parts[i].begin;
        std::size_t end = parts[i].end;
        for (; i + 1 < parts.size() && parts[i + 1].begin <= end; ++i)
            end = std::max(end, parts[i + 1].end);
        masked.append(text.substr(shown, begin - shown)).append(kMask);
        shown = end;
    }
    return masked.append(text.substr(shown));
}

/// The text as UTF-8 on one line.
std::string OneLine(const std::string& text)
{
    using Utf8 = boost::locale::utf::utf_traits<char>;
    std::string line;
    for (auto at = text.begin(); at != text.end();) {
        const auto start = at;
        const auto point = Utf8::decode(at, text.end());
        if (point == boost::locale::utf::illegal || point == boost::locale::utf::incomplete) {
            line += '?';
            at = start + 1;
        } else if (point < 0x20 || point == 0x7F) {
            line += ' ';
        } else {
            line.append(start, at);
        }
    }
    return line;
}

} // namespace

std::string LoggableText(const std::string& text)
{
    const std::string_view start = std::string_view(text).substr(0, kLoggedTextLimit);
    return Base::StringUtil::CutUtf8(OneLine(Masked(start, FindCredentials(start))), kLoggedTextLimit);
}

} // namespace protocol
