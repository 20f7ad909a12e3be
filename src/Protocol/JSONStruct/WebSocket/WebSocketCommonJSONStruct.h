#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <string>

namespace protocol {

/// A notification of the framework. It is a whole body; its data is read later, by whoever handles its type.
struct WebSocketNotifyData : CMessage<WebSocketNotifyData, IWebsocketData>
{
    static constexpr const char* kKey = "";
    std::string guid;
    std::string type;
    RawJSON data;

    static constexpr auto Fields()
    {
        using T = WebSocketNotifyData;
        return std::make_tuple(May("guid", &T::guid), Must("type", &T::type), May("data", &T::data));
    }

    /// Fills the notification from a body. False when it is none; see ParseJSONUtil.h for the log lines.
    [[nodiscard]] bool Parse(const std::string& body);
};

} // namespace protocol
