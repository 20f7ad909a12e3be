#include "Protocol/JSONStruct/LoggableText.h"

#include "Base/StringUtil.h"

#include <boost/locale/utf.hpp>

#include <algorithm>
#include <array>
#include <string_view>

namespace protocol {

namespace {

constexpr const char* kMask = "***";
constexpr std::array kCredentialParts{"password", "passwd",     "pwd",           "secret",
                                      "token",    "credential", "authorization", "username"};
constexpr std::array kCredentialWords{"pass", "pin", "auth"};
constexpr std::string_view kCredentialEnd = "key";

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsWordCharacter(char c)
{
    return (Lower(c) >= 'a' && Lower(c) <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '-' || c == '.';
}

bool IsOneOf(char c, std::string_view set)
{
    return set.find(c) != std::string_view::npos;
}

bool IsCredentialWord(std::string_view written)
{
    std::string word(written);
    std::transform(word.begin(), word.end(), word.begin(), Lower);
    const auto contains = [&](const char* part) { return word.find(part) != std::string::npos; };
    const bool endsInKey =
        word.size() >= kCredentialEnd.size() &&
        word.compare(word.size() - kCredentialEnd.size(), std::string::npos, kCredentialEnd) == 0;
    return endsInKey || std::any_of(kCredentialParts.begin(), kCredentialParts.end(), contains) ||
           std::find(kCredentialWords.begin(), kCredentialWords.end(), word) != kCredentialWords.end();
}

/// Whether the key before the separator at this place names a credential.
bool IsCredentialKeyBefore(std::string_view text, std::size_t separator)
{
    std::size_t end = separator;
    while (end > 0 && IsOneOf(text[end - 1], " \t\r\n\"'\\"))
        --end;
    std::size_t begin = end;
    while (begin > 0 && IsWordCharacter(text[begin - 1]))
        --begin;
    const bool escaped = begin > 0 && text[begin - 1] == '\\';
    return escaped || IsCredentialWord(text.substr(begin, end - begin));
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

std::string MaskCredentials(std::string_view text)
{
    std::string masked;
    std::size_t shown = 0;
    for (std::size_t at = text.find_first_of(":="); at < text.size(); at = text.find_first_of(":=", at)) {
        const std::size_t value = std::min(text.find_first_not_of(" \t\r\n", at + 1), text.size());
        if (value == text.size() || !IsCredentialKeyBefore(text, at)) {
            ++at;
            continue;
        }
        masked.append(text.substr(shown, value - shown)).append(kMask);
        shown = at = EndOfValue(text, value);
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
