#pragma once

#include "Protocol/JSONStruct/IJSONStruct.h"
#include "Protocol/JSONStruct/JSONKinds.h"

#include <array>

namespace protocol {

/// A message structure that follows from its list of fields. Channel is one of the marker interfaces:
///
///     struct LocalFileResult : CMessage<LocalFileResult, IInboundData>
///     {
///         static constexpr const char* kKey = "localFileResult";
///         std::string path;
///
///         static constexpr auto Fields() { return std::make_tuple(Must("path", &LocalFileResult::path)); }
///     };
///
/// Add it to AllMessages.h; that is all.
template<typename Message, typename Channel>
class CMessage : public Channel
{
public:
    [[nodiscard]] bool FromJSON(const cJSON* item) override
    {
        Message fresh;
        json::ReadError error;
        if (!json::Kind<Message>::Read(item, fresh, error)) {
            json::LogReadFailure(Message::kKey, item, error);
            return false;
        }
        static_cast<Message&>(*this) = std::move(fresh);
        return true;
    }

    void ToJSON(cJSON* parent, const char* key) const override
    {
        json::Attach(parent, key, json::Kind<Message>::Write(static_cast<const Message&>(*this)));
    }

    const char* Key() const override { return Message::kKey; }
};

} // namespace protocol
