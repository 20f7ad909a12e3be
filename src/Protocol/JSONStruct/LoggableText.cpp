#include "Protocol/JSONStruct/LoggableText.h"

#include "Base/CredentialName.h"
#include "Base/StringUtil.h"

#include <boost/locale/utf.hpp>

#include <algorithm>
#include <optional>
#include <string_view>

namespace protocol {

namespace {

constexpr const char* kMask = "***";
constexpr std::string_view kBlanks = " \t\r\n";

bool IsWordCharacter(char c)
{
    const bool isAscii = static_cast<unsigned char>(c) < 0x80;
    return !isAscii || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           c == '_' || c == '-' || c == '.';
}

bool IsOneOf(char c, std::string_view set)
{
    return set.find(c) != std::string_view::npos;
}

/// The number of backslashes at the end of the text.
std::size_t BackslashesBefore(std::string_view text)
{
    return text.size() - (text.find_last_not_of('\\') + 1);
}

/// The key between the last quote of the text and the one that opens it. Quotes with more backslashes before
/// them belong to the key; where there are fewer, backslashes at the end of the key are in the way, and all
/// from the text's begin counts as the key.
std::string_view LastQuotedKey(std::string_view text)
{
    const char quote = text.back();
    text.remove_suffix(1);
    const std::size_t depth = BackslashesBefore(text);
    const std::string_view key = text.substr(0, text.size() - depth);
    std::size_t open = key.rfind(quote);
    while (open != std::string_view::npos && BackslashesBefore(key.substr(0, open)) > depth)
        open = key.substr(0, open).rfind(quote);
    const bool isSure = open != std::string_view::npos && BackslashesBefore(key.substr(0, open)) == depth;
    return isSure ? key.substr(open + 1) : key;
}

/// The key at the end of the text: all between its quotes, or the last word. Backslashes belong to it, those
/// of its closing quote do not.
std::string_view LastKey(std::string_view text)
{
    text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
    if (!text.empty() && IsOneOf(text.back(), "\"'"))
        return LastQuotedKey(text);
    std::size_t begin = text.size();
    while (begin > 0 && (IsWordCharacter(text[begin - 1]) || text[begin - 1] == '\\'))
        --begin;
    return text.substr(begin);
}

/// Whether the key before the separator at this place names a credential, or is written with escapes.
bool IsCredentialKeyBefore(std::string_view text, std::size_t separator)
{
    const std::string_view key = LastKey(text.substr(0, separator));
    return IsOneOf('\\', key) || Base::IsCredentialName(key);
}

/// The place after the quoted text that opens here. depth is the number of backslashes before its opening
/// quote, which is more than none where JSON stands inside a JSON text.
std::size_t EndOfQuoted(std::string_view text, std::size_t open, std::size_t depth)
{
    std::size_t backslashes = 0;
    for (std::size_t at = open + 1; at < text.size(); ++at) {
        if (text[at] == '\\') {
            ++backslashes;
            continue;
        }
        const bool closes = depth == 0 ? backslashes % 2 == 0 : backslashes == depth;
        if (text[at] == text[open] && closes)
            return at + 1;
        backslashes = 0;
    }
    return text.size();
}

/// The place after the object or array that opens here.
std::size_t EndOfBracketed(std::string_view text, std::size_t open)
{
    std::size_t depth = 0;
    for (std::size_t at = open; at < text.size(); ++at) {
        if (text[at] == '"') {
            at = EndOfQuoted(text, at, 0) - 1;
        } else if (IsOneOf(text[at], "{[")) {
            ++depth;
        } else if (IsOneOf(text[at], "}]") && --depth == 0) {
            return at + 1;
        }
    }
    return text.size();
}

/// The place after the value that begins at or after this place.
std::size_t EndOfValue(std::string_view text, std::size_t begin)
{
    const std::size_t first = std::min(text.find_first_not_of("\\", begin), text.size());
    if (first == text.size())
        return first;
    if (IsOneOf(text[first], "\"'"))
        return EndOfQuoted(text, first, first - begin);
    if (IsOneOf(text[first], "{["))
        return EndOfBracketed(text, first);
    return std::min(text.find_first_of(",}]\"\\&;\r\n", first), text.size());
}

/// User and password of the url whose "://" begins at the colon; slashes may be escaped. An apostrophe may be
/// part of a password (RFC 3986, 3.2.1) and does not end it. All of it when it ends with the text, which may
/// have been cut before the "@".
std::optional<std::string_view> UserOfUrl(std::string_view text, std::size_t colon)
{
    const std::size_t begin = std::min(text.find_first_not_of("\\/", colon + 1), text.size());
    const std::string_view slashes = text.substr(colon, begin - colon);
    if (text[colon] != ':' || std::count(slashes.begin(), slashes.end(), '/') != 2)
        return std::nullopt;
    const std::string_view rest = text.substr(begin);
    const std::string_view url = rest.substr(0, rest.find_first_of(" \t\r\n\"<>"));
    const std::size_t at = url.rfind('@');
    if (at == std::string_view::npos && url.size() < rest.size())
        return std::nullopt;
    return url.substr(0, at);
}

/// What may not be shown of the text behind the separator at this place.
std::optional<std::string_view> CredentialAfter(std::string_view text, std::size_t separator)
{
    if (const auto user = UserOfUrl(text, separator))
        return user;
    const std::size_t value = text.find_first_not_of(kBlanks, separator + 1);
    if (value == std::string_view::npos || !IsCredentialKeyBefore(text, separator))
        return std::nullopt;
    return text.substr(value, EndOfValue(text, value) - value);
}

std::string MaskCredentials(std::string_view text)
{
    std::string masked;
    std::size_t shown = 0;
    for (std::size_t at = text.find_first_of(":="); at < text.size(); at = text.find_first_of(":=", at)) {
        const auto credential = CredentialAfter(text, at);
        if (!credential) {
            ++at;
            continue;
        }
        const auto begin = static_cast<std::size_t>(credential->data() - text.data());
        masked.append(text.substr(shown, begin - shown)).append(kMask);
        shown = at = begin + credential->size();
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
    const std::string masked = MaskCredentials(std::string_view(text).substr(0, kLoggedTextLimit));
    return Base::StringUtil::CutUtf8(OneLine(masked), kLoggedTextLimit);
}

} // namespace protocol
