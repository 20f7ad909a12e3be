#pragma once

#include "Protocol/JSONStruct/IJSONStruct.h"

#include <string>

namespace protocol {

/// The envelope of a method of the local channel: {"method": "...", "data": {...}}.
///
/// The payload that "data" is read into and written from belongs to the caller and must outlive the envelope.
/// Without one, data is ignored and not written.
class LPCRequestData : public ILPCData
{
public:
    LPCRequestData() = default;
    explicit LPCRequestData(IJSONStruct& payload) : method(payload.Key()), m_payload(&payload) {}

    /// The method's name; at first the payload's key.
    std::string method;

    /// Fills method and payload from a body. The payload is read whatever the method is. False when the body
    /// is no envelope or its data does not fit the payload; see ParseJSONUtil.h for the log lines.
    [[nodiscard]] bool Parse(const std::string& body);

    [[nodiscard]] bool FromJSON(const cJSON* item) override;
    void ToJSON(cJSON* parent, const char* key) const override;
    const char* Key() const override { return ""; }

private:
    IJSONStruct* m_payload = nullptr;
};

/// The body of a method's request, reply or notification: the envelope with the payload, under the payload's
/// key.
std::string WriteLPCStr(const IJSONStruct& payload);

/// The body of a method without payload: {"method": "..."}.
std::string WriteLPCStr(const std::string& method);

} // namespace protocol
