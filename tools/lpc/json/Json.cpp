#include "lpc/json/Json.h"

#include <utility>

namespace lpctool {

namespace {

std::string TakeText(char* printed)
{
    std::string text = printed ? printed : "";
    cJSON_free(printed);
    return text;
}

} // namespace

JsonValue OwnJson(cJSON* tree)
{
    return tree ? JsonValue(tree, [](const cJSON* owned) { cJSON_Delete(const_cast<cJSON*>(owned)); })
                : nullptr;
}

JsonValue ParseJson(const std::string& text, std::string* error)
{
    const char* end = nullptr;
    JsonValue value = OwnJson(cJSON_ParseWithLengthOpts(text.c_str(), text.size() + 1, &end, true));
    if (!value && error) {
        const std::size_t column = end ? static_cast<std::size_t>(end - text.c_str()) : 0;
        *error = "not valid JSON at column " + std::to_string(column + 1);
    }
    return value;
}

JsonValue BodyValue(const std::string& body)
{
    JsonValue value = ParseJson(body);
    return value ? value : OwnJson(cJSON_CreateString(body.c_str()));
}

JsonValue HeadersValue(const lpc::HeaderMap& headers)
{
    cJSON* object = cJSON_CreateObject();
    for (const auto& [name, value] : headers)
        cJSON_AddStringToObject(object, name.c_str(), value.c_str());
    return OwnJson(object);
}

std::string BodyText(const JsonValue& value)
{
    if (!value)
        return {};
    return cJSON_IsString(value.get()) ? value->valuestring : ToText(*value);
}

std::string ToText(const cJSON& value)
{
    return TakeText(cJSON_PrintUnformatted(&value));
}

std::string ToPrettyText(const cJSON& value)
{
    return TakeText(cJSON_Print(&value));
}

const cJSON* Member(const cJSON* object, const char* name)
{
    return cJSON_GetObjectItemCaseSensitive(object, name);
}

void ReplaceItem(cJSON* parent, cJSON* item, cJSON* replacement)
{
    std::swap(item->string, replacement->string);
    cJSON_ReplaceItemViaPointer(parent, item, replacement);
}

std::string TextMember(const cJSON* object, const char* name)
{
    const cJSON* member = Member(object, name);
    return cJSON_IsString(member) ? member->valuestring : "";
}

} // namespace lpctool
