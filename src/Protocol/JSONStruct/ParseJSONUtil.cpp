#include "Protocol/JSONStruct/ParseJSONUtil.h"

#include "Base/RateLimit.h"
#include "Protocol/JSONStruct/LoggableText.h"

namespace protocol {

void LogMissingItem(const char* key, const std::function<std::string()>& text, const Base::LogLocation& place)
{
    static Base::CFaultLimit limit;
    if (const auto skipped = limit.Next())
        Base::CLog::Instance().Write(Base::LogLevel::Error, "", place,
                                     "Failed to cJSON_GetObjectItem([%s]). Error info: [%s].%s", key,
                                     LoggableText(text()).c_str(), skipped->c_str());
}

json::Tree ParseBody(const std::string& body, const Base::LogLocation& place)
{
    if (body.empty())
        return nullptr;
    std::string error;
    json::Tree root = json::ParseText(body, error);
    if (root)
        return root;
    static Base::CFaultLimit limit;
    if (const auto skipped = limit.Next())
        Base::CLog::Instance().Write(Base::LogLevel::Error, "", place,
                                     "Failed to cJSON_Parse( [%s] ). Error info: [%s].%s",
                                     LoggableText(body).c_str(), error.c_str(), skipped->c_str());
    return nullptr;
}

bool ParseJSONStr(IJSONStruct& message, const std::string& body)
{
    const json::Tree root = ParseBody(body, PROTOCOL_PLACE);
    if (!root)
        return false;
    const std::string key = message.Key();
    const cJSON* const item = key.empty() ? root.get() : json::Member(root.get(), key.c_str());
    if (!item) {
        LogMissingItem(
            key.c_str(), [&] { return body; }, PROTOCOL_PLACE);
        return false;
    }
    return message.FromJSON(item);
}

bool ParseJSONValue(IJSONStruct& message, const std::string& value)
{
    const json::Tree root = ParseBody(value, PROTOCOL_PLACE);
    return root && message.FromJSON(root.get());
}

std::string WriteJSONStr(const IJSONStruct& message)
{
    const json::Tree holder = json::NewObject();
    message.ToJSON(holder.get(), message.Key());
    return json::PrintText(*message.Key() ? holder.get() : holder->child);
}

} // namespace protocol
