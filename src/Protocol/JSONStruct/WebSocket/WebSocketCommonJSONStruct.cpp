#include "Protocol/JSONStruct/WebSocket/WebSocketCommonJSONStruct.h"

#include "Protocol/JSONStruct/ParseJSONUtil.h"

namespace protocol {

bool WebSocketNotifyData::Parse(const std::string& body)
{
    const json::Tree root = ParseBody(body, PROTOCOL_PLACE);
    return root && FromJSON(root.get());
}

} // namespace protocol
