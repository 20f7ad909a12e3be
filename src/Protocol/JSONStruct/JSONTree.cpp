#include "Protocol/JSONStruct/JSONTree.h"

#include "Base/Log.h"
#include "Protocol/JSONStruct/LoggableText.h"

#include <boost/locale/utf.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <new>
#include <utility>
#include <vector>

namespace protocol::json {

namespace {

using Utf8 = boost::locale::utf::utf_traits<char>;
constexpr boost::locale::utf::code_point kReplacement = 0xFFFD;
constexpr long long kLargestExact = (1LL << 53) - 1;

/// Of a tree, which takes some 80 bytes for each: long texts of many small values would take gigabytes. Lists
/// of records, whose values have more bytes than these on average, are read at any length.
constexpr std::size_t kMostSmallItems = 1000000;
constexpr std::size_t kSmallItemBytes = 12;

bool IsCharacter(boost::locale::utf::code_point point)
{
    return point != boost::locale::utf::illegal && point != boost::locale::utf::incomplete && point != 0;
}

std::string AtByte(const char* what, std::size_t position)
{
    return std::string(what) + " at byte " + std::to_string(position);
}

/// Whether the text is UTF-8 without NULs.
bool CheckCharacters(const std::string& text, std::string& error)
{
    auto at = text.begin();
    while (at != text.end()) {
        const auto start = at;
        if (IsCharacter(Utf8::decode(at, text.end())))
            continue;
        error = AtByte(*start == '\0' ? "NUL" : "not UTF-8", static_cast<std::size_t>(start - text.begin()));
        return false;
    }
    return true;
}

bool CheckEscapes(const std::string& text, std::string& error)
{
    for (auto at = text.find('\\'); at != std::string::npos; at = text.find('\\', at + 2)) {
        if (text.compare(at, 6, "\\u0000") == 0) {
            error = AtByte("escaped NUL", at);
            return false;
        }
    }
    return true;
}

/// Whether the tree would not have too many items: each but the first stands behind one of "[{,".
bool CheckItems(const std::string& text, std::string& error)
{
    const std::size_t most = std::max(kMostSmallItems, text.size() / kSmallItemBytes);
    std::size_t items = 1;
    bool inText = false;
    for (std::size_t at = 0; at < text.size() && text.size() > most; ++at) {
        const char c = text[at];
        if (c == '"')
            inText = !inText;
        else if (inText)
            at += c == '\\' ? 1 : 0;
        else if ((c == ',' || c == '[' || c == '{') && ++items > most) {
            error = AtByte("too many values", at);
            return false;
        }
    }
    return true;
}

Tree Checked(cJSON* item)
{
    if (!item)
        throw std::bad_alloc();
    return Tree(item);
}

template<typename T>
std::string Digits(T value)
{
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    return std::string(digits, end);
}

std::string PrintAndFree(char* printed)
{
    if (!printed)
        throw std::bad_alloc();
    const std::unique_ptr<char, decltype(&cJSON_free)> owner(printed, &cJSON_free);
    return owner.get();
}

void ReplaceNumber(cJSON* item)
{
    if (!cJSON_IsNumber(item))
        return;
    Tree exact = NewDouble(item->valuedouble);
    std::swap(item->valuestring, exact->valuestring);
    item->type = exact->type;
    exact->type = cJSON_NULL;
}

} // namespace

Tree ParseText(const std::string& text, std::string& error)
{
    if (!CheckCharacters(text, error) || !CheckEscapes(text, error) || !CheckItems(text, error))
        return nullptr;
    const char* end = text.c_str();
    Tree root(cJSON_ParseWithLengthOpts(text.c_str(), text.size() + 1, &end, true));
    if (!root)
        error = AtByte("syntax error", static_cast<std::size_t>(end - text.c_str()));
    return root;
}

std::string PrintText(const cJSON* item)
{
    return PrintAndFree(cJSON_PrintUnformatted(item));
}

std::string PrintExact(const cJSON* item)
{
    const Tree copy = Checked(cJSON_Duplicate(item, true));
    std::vector<cJSON*> open{copy.get()};
    while (!open.empty()) {
        cJSON* const next = open.back();
        open.pop_back();
        ReplaceNumber(next);
        for (cJSON* child = next->child; child; child = child->next)
            open.push_back(child);
    }
    return PrintText(copy.get());
}

Tree NewObject()
{
    return Checked(cJSON_CreateObject());
}

Tree NewArray()
{
    return Checked(cJSON_CreateArray());
}

Tree NewBool(bool value)
{
    return Checked(cJSON_CreateBool(value));
}

Tree NewText(const std::string& value)
{
    std::string error;
    if (CheckCharacters(value, error))
        return Checked(cJSON_CreateString(value.c_str()));
    std::string readable;
    for (auto at = value.begin(); at != value.end();) {
        const auto start = at;
        const auto point = Utf8::decode(at, value.end());
        if (!IsCharacter(point))
            at = start + 1;
        Utf8::encode(IsCharacter(point) ? point : kReplacement, std::back_inserter(readable));
    }
    return Checked(cJSON_CreateString(readable.c_str()));
}

Tree NewInteger(long long value)
{
    const bool exact = value >= -kLargestExact && value <= kLargestExact;
    return Checked(exact ? cJSON_CreateRaw(Digits(value).c_str())
                         : cJSON_CreateString(Digits(value).c_str()));
}

Tree NewInteger(unsigned long long value)
{
    const bool exact = value <= static_cast<unsigned long long>(kLargestExact);
    return Checked(exact ? cJSON_CreateRaw(Digits(value).c_str())
                         : cJSON_CreateString(Digits(value).c_str()));
}

Tree NewDouble(double value)
{
    return Checked(std::isfinite(value) ? cJSON_CreateRaw(Digits(value).c_str()) : cJSON_CreateNull());
}

Tree NewRaw(const std::string& text)
{
    std::string error;
    if (ParseText(text, error))
        return Checked(cJSON_CreateRaw(text.c_str()));
    BASE_ERROR("A text that is not JSON was left out of a message: [%s]. Error info: [%s].",
               LoggableText(text).c_str(), error.c_str());
    return Checked(cJSON_CreateNull());
}

void Attach(cJSON* object, const char* key, Tree item)
{
    if (!cJSON_AddItemToObjectCS(object, key, item.get()))
        throw std::bad_alloc();
    (void)item.release();
}

void Append(cJSON* array, Tree item)
{
    if (!cJSON_AddItemToArray(array, item.get()))
        throw std::bad_alloc();
    (void)item.release();
}

const cJSON* Member(const cJSON* object, const char* key)
{
    return cJSON_IsObject(object) ? cJSON_GetObjectItem(object, key) : nullptr;
}

} // namespace protocol::json
