#include "logical/Communication/RouteHandler.h"

#include "Base/StringUtil.h"
#include "LPC_Wire/Limits.h"
#include "Protocol/JSONStruct/HTTP/HTTPCommonJSONStruct.h"

namespace video {
namespace {

constexpr int kPayloadTooLarge = 413;

} // namespace

RouteAnswer TooLongAnswer()
{
    protocol::CommonResponseData response;
    response.result.errorCode = lpc::kTooLong;
    response.message = Base::StringUtil::Format(
        "The answer is longer than the %zu bytes that can be sent. Ask for less.", lpc::kMaxBody);
    return {protocol::WriteJSONStr(response), kPayloadTooLarge, lpc::kTooLong};
}

} // namespace video
