#include "Protocol/JSONStruct/CredentialsInText.h"

#include "Base/CredentialName.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <string>
#include <utility>

namespace protocol {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

/// Strings that hold JSON whose strings hold JSON and so on are looked into as deep as this.
constexpr int kMostLevels = 8;

/// Values that are found in text that is not JSON; behind the last one all is taken for a credential. Each
/// may reach to the end of the text, so this bounds the time.
constexpr int kMostValues = 100;

bool IsOneOf(char c, std::string_view set)
{
    return set.find(c) != std::string_view::npos;
}

bool IsWordCharacter(char c)
{
    const bool isAscii = static_cast<unsigned char>(c) < 0x80;
    return !isAscii || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           IsOneOf(c, "_-.");
}

/// The first place at or after this one whose character is in the set; the text's end when there is none.
std::size_t FindOneOf(std::string_view text, std::string_view set, std::size_t from)
{
    return std::min(text.find_first_of(set, from), text.size());
}

std::size_t SkipBlanks(std::string_view text, std::size_t from)
{
    return std::min(text.find_first_not_of(kBlanks, from), text.size());
}

// ---- what a string says ----

/// The text that is logged, or what a string inside it says.
struct Text
{
    std::string bytes;
    std::vector<std::size_t> places; ///< of the bytes, and of their end, in the text that is logged
    bool mayBeCut = true;
};

struct Character
{
    char value;
    std::size_t end;
};

/// The character at this place, which may be written with an escape. All outside ASCII are the same one.
Character ReadCharacter(std::string_view text, std::size_t at)
{
    constexpr std::string_view kLetters = "bfnrt";
    constexpr std::string_view kControls = "\b\f\n\r\t";
    if (text[at] != '\\' || at + 1 == text.size())
        return {text[at], at + 1};
    const char letter = text[at + 1];
    if (letter == 'u') {
        unsigned code = 0;
        const std::string_view digits = text.substr(at + 2, 4);
        const char* const end = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16).ptr;
        return {code < 0x80 ? static_cast<char>(code) : '\xFF', static_cast<std::size_t>(end - text.data())};
    }
    const std::size_t control = kLetters.find(letter);
    return {control == std::string_view::npos ? letter : kControls[control], at + 2};
}

std::string Unescaped(std::string_view text)
{
    std::string bytes;
    for (Character next{0, 0}; next.end < text.size();) {
        next = ReadCharacter(text, next.end);
        bytes += next.value;
    }
    return bytes;
}

/// What the string between these places of a text says.
Text Inside(const Text& text, std::size_t begin, std::size_t end)
{
    const std::string_view string = std::string_view(text.bytes).substr(0, end);
    Text inside;
    inside.mayBeCut = end == text.bytes.size();
    for (Character next{0, begin}; next.end < end;) {
        inside.places.push_back(text.places[next.end]);
        next = ReadCharacter(string, next.end);
        inside.bytes += next.value;
    }
    inside.places.push_back(text.places[end]);
    return inside;
}

/// The place of the quote that ends the quoted text which opens here; the text's end when it is cut.
std::size_t ClosingQuote(std::string_view text, std::size_t open)
{
    for (std::size_t at = open + 1; at < text.size(); ++at) {
        if (text[at] == text[open])
            return at;
        if (text[at] == '\\')
            ++at;
    }
    return text.size();
}

// ---- keys and values ----

/// Whether the key names a credential, also when it does so only without its escapes.
bool IsCredentialKey(std::string key)
{
    for (int level = 0; level < kMostLevels; ++level) {
        if (Base::IsCredentialName(key))
            return true;
        if (key.find('\\') == std::string::npos)
            return false;
        key = Unescaped(key);
    }
    return true;
}

/// The place after an unquoted value.
std::size_t EndOfWords(std::string_view text, std::size_t from)
{
    return FindOneOf(text, ",}]&;\r\n", from);
}

/// The place after the quoted value that opens here. Where its quote is not escaped inside it, more follows.
std::size_t EndOfQuoted(std::string_view text, std::size_t open)
{
    const std::size_t end = std::min(ClosingQuote(text, open) + 1, text.size());
    return end < text.size() && IsWordCharacter(text[end]) ? EndOfWords(text, end) : end;
}

/// The place after the object or array that opens here.
std::size_t EndOfBracketed(std::string_view text, std::size_t open)
{
    std::size_t depth = 0;
    for (std::size_t at = open; at < text.size(); ++at) {
        if (IsOneOf(text[at], "\"'")) {
            at = ClosingQuote(text, at);
        } else if (IsOneOf(text[at], "{[")) {
            ++depth;
        } else if (IsOneOf(text[at], "}]") && --depth == 0) {
            return at + 1;
        }
    }
    return text.size();
}

/// The place after the value that begins here. A value that begins with an escape is part of a string whose
/// begin is not known, and neither is its end.
std::size_t EndOfValue(std::string_view text, std::size_t begin)
{
    if (IsOneOf(text[begin], "\"'"))
        return EndOfQuoted(text, begin);
    if (IsOneOf(text[begin], "{["))
        return EndOfBracketed(text, begin);
    return text[begin] == '\\' ? text.size() : EndOfWords(text, begin);
}

std::size_t BackslashesAtEnd(std::string_view text)
{
    return text.size() - (text.find_last_not_of('\\') + 1);
}

/// Whether the text ends in a quoted key of a credential, or in one whose begin is in doubt.
bool EndsInQuotedCredentialKey(std::string_view text)
{
    const char quote = text.back();
    text.remove_suffix(1);
    const std::size_t depth = BackslashesAtEnd(text);
    text.remove_suffix(depth);
    const std::size_t open = text.rfind(quote);
    const bool isSure = open == std::string_view::npos || BackslashesAtEnd(text.substr(0, open)) == depth;
    return !isSure || IsCredentialKey(std::string(text.substr(open + 1)));
}

/// Whether the text ends in the key of a credential: a quoted one, or a word.
bool EndsInCredentialKey(std::string_view text)
{
    text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
    if (!text.empty() && IsOneOf(text.back(), "\"'"))
        return EndsInQuotedCredentialKey(text);
    std::size_t begin = text.size();
    while (begin > 0 && (IsWordCharacter(text[begin - 1]) || text[begin - 1] == '\\'))
        --begin;
    return IsCredentialKey(std::string(text.substr(begin)));
}

// ---- the search ----

class CSearch
{
public:
    /// Searches a text that stands inside so many others.
    void Search(const Text& text, int level);

    std::vector<TextPart> Found() && { return std::move(m_found); }

private:
    void Add(const Text& text, std::size_t begin, std::size_t end)
    {
        m_found.push_back({text.places[begin], text.places[end]});
    }

    std::size_t SearchJson(const Text& text, std::size_t at, int level);
    void SearchString(const Text& text, std::size_t begin, std::size_t end, int level);
    void SearchPairs(const Text& text);
    void SearchUrls(const Text& text);

    std::vector<TextPart> m_found;
};

void CSearch::Search(const Text& text, int level)
{
    std::size_t at = SearchJson(text, 0, level);
    if (at == text.bytes.size())
        return;
    SearchPairs(text);
    SearchUrls(text);
    while (at < text.bytes.size())
        at = SearchJson(text, FindOneOf(text.bytes, "{[,", at), level);
}

/// Whether JSON may have a token behind another one, or at its begin (0), where it may be cut. Each is told
/// by a character: a number or word by any of its own.
bool MayFollow(char before, char token)
{
    const bool isBehindValue = IsOneOf(before, "\"}]") || IsWordCharacter(before);
    switch (token) {
    case ':':
        return before == '"';
    case ',':
        return isBehindValue || before == 0;
    case '}':
    case ']':
        return isBehindValue || IsOneOf(before, "{[");
    default:
        return !isBehindValue && (IsOneOf(token, "\"{[") || IsWordCharacter(token));
    }
}

std::size_t EndOfWord(std::string_view text, std::size_t at)
{
    while (at < text.size() && (IsWordCharacter(text[at]) || text[at] == '+'))
        ++at;
    return at;
}

/// Searches as far as the text is JSON from this place on, and gives the place of what is not.
std::size_t CSearch::SearchJson(const Text& text, std::size_t at, int level)
{
    const std::string_view bytes = text.bytes;
    std::string_view lastString;
    char before = 0;
    for (at = SkipBlanks(bytes, at); at < bytes.size(); at = SkipBlanks(bytes, at)) {
        const char token = bytes[at];
        if (!MayFollow(before, token))
            return at;
        before = token;
        if (token == '"') {
            const std::size_t close = ClosingQuote(bytes, at);
            SearchString(text, at + 1, close, level);
            lastString = bytes.substr(at + 1, close - at - 1);
            at = close + 1;
        } else if (token == ':' && IsCredentialKey(std::string(lastString))) {
            const std::size_t value = SkipBlanks(bytes, at + 1);
            if (value == bytes.size())
                break;
            at = EndOfValue(bytes, value);
            Add(text, value, at);
            before = '0';
        } else {
            at = IsWordCharacter(token) ? EndOfWord(bytes, at) : at + 1;
        }
    }
    return bytes.size();
}

void CSearch::SearchString(const Text& text, std::size_t begin, std::size_t end, int level)
{
    const std::string_view string = std::string_view(text.bytes).substr(begin, end - begin);
    if (string.find_first_of(":=\\") == std::string_view::npos)
        return;
    if (level == kMostLevels)
        Add(text, begin, end);
    else
        Search(Inside(text, begin, end), level + 1);
}

/// key=value and key: value
void CSearch::SearchPairs(const Text& text)
{
    const std::string_view bytes = text.bytes;
    int values = 0;
    for (std::size_t at = FindOneOf(bytes, ":=", 0); at < bytes.size();) {
        const std::size_t value = SkipBlanks(bytes, at + 1);
        if (value < bytes.size() && EndsInCredentialKey(bytes.substr(0, at))) {
            const std::size_t end = ++values < kMostValues ? EndOfValue(bytes, value) : bytes.size();
            Add(text, value, end);
            if (end == bytes.size())
                return;
        }
        at = FindOneOf(bytes, ":=", at + 1);
    }
}

/// Users and passwords before the "@" of urls, whose slashes may be escaped. An apostrophe may be part of a
/// password (RFC 3986, 3.2.1) and does not end it. A url without "@" that is cut may be cut before it.
void CSearch::SearchUrls(const Text& text)
{
    const std::string_view bytes = text.bytes;
    for (std::size_t at = FindOneOf(bytes, ":", 0); at < bytes.size(); at = FindOneOf(bytes, ":", at)) {
        const std::size_t begin = std::min(bytes.find_first_not_of("\\/", at + 1), bytes.size());
        const std::string_view slashes = bytes.substr(at, begin - at);
        at = begin;
        if (std::count(slashes.begin(), slashes.end(), '/') != 2)
            continue;
        at = FindOneOf(bytes, " \t\r\n\"<>", begin);
        const std::size_t user = bytes.substr(begin, at - begin).rfind('@');
        if (user != std::string_view::npos)
            Add(text, begin, begin + user);
        else if (at == bytes.size() && text.mayBeCut)
            Add(text, begin, at);
    }
}

} // namespace

std::vector<TextPart> FindCredentials(std::string_view text)
{
    Text whole;
    whole.bytes = text;
    whole.places.resize(text.size() + 1);
    std::iota(whole.places.begin(), whole.places.end(), std::size_t(0));
    CSearch search;
    search.Search(whole, 0);
    return std::move(search).Found();
}

} // namespace protocol
