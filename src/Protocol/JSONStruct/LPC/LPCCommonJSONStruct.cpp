#include "Protocol/JSONStruct/LPC/LPCCommonJSONStruct.h"

#include "Protocol/JSONStruct/JSONKinds.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"

namespace protocol {

namespace {

constexpr const char* kMethod = "method";
constexpr const char* kData = "data";

json::Tree NewEnvelope(const std::string& method, const IJSONStruct* payload)
{
    json::Tree envelope = json::NewObject();
    json::Attach(envelope.get(), kMethod, json::NewText(method));
    if (payload)
        payload->ToJSON(envelope.get(), kData);
    return envelope;
}

} // namespace

bool LPCRequestData::Parse(const std::string& body)
{
    const json::Tree root = ParseBody(body, PROTOCOL_PLACE);
    return root && FromJSON(root.get());
}

bool LPCRequestData::FromJSON(const cJSON* item)
{
    std::string name;
    json::ReadError error;
    if (!json::ReadText(json::Member(item, kMethod), name, error)) {
        json::RefuseUnder(kMethod, error);
        json::LogReadFailure("LPCRequestData", item, error);
        return false;
    }
    const cJSON* const data = json::Member(item, kData);
    if (m_payload && !data) {
        LogMissingItem(
            kData, [item] { return json::PrintText(item); }, PROTOCOL_PLACE);
        return false;
    }
    if (m_payload && !m_payload->FromJSON(data))
        return false;
    method = name;
    return true;
}

void LPCRequestData::ToJSON(cJSON* parent, const char* key) const
{
    json::Attach(parent, key, NewEnvelope(method, m_payload));
}

std::string WriteLPCStr(const IJSONStruct& payload)
{
    return json::PrintText(NewEnvelope(payload.Key(), &payload).get());
}

std::string WriteLPCStr(const std::string& method)
{
    return json::PrintText(NewEnvelope(method, nullptr).get());
}

} // namespace protocol
