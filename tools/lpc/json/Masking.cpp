#include "lpc/json/Masking.h"

#include "Base/CredentialName.h"

namespace lpctool {

namespace {

void MaskMembers(cJSON* item);

/// A text that holds an object or array is masked inside.
void MaskText(cJSON* item)
{
    const JsonValue inner = ParseJson(item->valuestring);
    if (inner && (cJSON_IsObject(inner.get()) || cJSON_IsArray(inner.get())))
        cJSON_SetValuestring(item, MaskedText(*inner).c_str());
}

cJSON* MaskItem(cJSON* parent, cJSON* item)
{
    if (item->string && Base::IsCredentialName(item->string)) {
        cJSON* mask = cJSON_CreateString(kMask);
        ReplaceItem(parent, item, mask);
        return mask;
    }
    if (cJSON_IsString(item))
        MaskText(item);
    else
        MaskMembers(item);
    return item;
}

void MaskMembers(cJSON* item)
{
    for (cJSON* child = item->child; child; child = child->next)
        child = MaskItem(item, child);
}

} // namespace

JsonValue Masked(const cJSON& value)
{
    cJSON* copy = cJSON_Duplicate(&value, true);
    if (cJSON_IsString(copy))
        MaskText(copy);
    else
        MaskMembers(copy);
    return OwnJson(copy);
}

std::string MaskedText(const cJSON& value)
{
    return ToText(*Masked(value));
}

JsonValue MaskedBody(const std::string& body)
{
    if (body.empty())
        return nullptr;
    if (const JsonValue value = ParseJson(body))
        return Masked(*value);
    const std::string text = "(" + std::to_string(body.size()) + " bytes that are not JSON)";
    return OwnJson(cJSON_CreateString(text.c_str()));
}

lpc::HeaderMap MaskedHeaders(const lpc::HeaderMap& headers)
{
    lpc::HeaderMap masked = headers;
    for (auto& [name, value] : masked)
        if (Base::IsCredentialName(name))
            value = kMask;
    return masked;
}

} // namespace lpctool
