#include "CommunicationLayer/TypedRequest.h"

#include "Base/Error.h"
#include "Base/Log.h"
#include "Protocol/JSONStruct/LoggableText.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"

#include <cctype>

namespace commlayer {

namespace {

constexpr const char* kLogger = "VideoLogger";
constexpr std::size_t kIdentifierLimit = 256;

bool IsUnreserved(unsigned char c)
{
    return (c < 0x80 && std::isalnum(c)) || c == '-' || c == '_' || c == '.' || c == '~';
}

bool Send(ITransport& transport, const Call& call, const std::string& body, RspInfos& answer)
{
    if (call.url.empty())
        return false;
    RequestParams params;
    params.url = call.url;
    params.method = call.method;
    params.body = body;
    params.timeoutMs = call.timeoutMs;
    return transport.request(answer, params, call.retry);
}

bool ReadAnswer(const Call& call, const RspInfos& received, protocol::IJSONStruct& answer)
{
    if (received.body.empty())
        BASE_ERROR_TO(kLogger, "Failed to request [url-%s]. The answer is empty.", call.url.c_str());
    if (protocol::ParseJSONStr(answer, received.body))
        return true;
    Base::Error::SetLastError(kBadAnswer);
    return false;
}

/// The common response of a body that has one.
bool ReadResult(const RspInfos& received, protocol::CommonResponseData& result)
{
    std::string error;
    const protocol::json::Tree root = protocol::json::ParseText(received.body, error);
    const cJSON* const item = protocol::json::Member(root.get(), result.Key());
    if (!item || result.FromJSON(item))
        return true;
    Base::Error::SetLastError(kBadAnswer);
    return false;
}

bool IsGood(const Call& call, const protocol::ResultCode& result)
{
    if (result.errorCode == 0)
        return true;
    Base::Error::SetLastError(result.errorCode);
    BASE_ERROR_TO(kLogger, "Failed to request [url-%s]. [error-%d-%d].", call.url.c_str(), result.errorCode,
                  result.errorModuleCode);
    return false;
}

} // namespace

std::string PathSegment(const std::string& identifier)
{
    if (identifier.empty() || identifier.size() > kIdentifierLimit || identifier == "." ||
        identifier == "..") {
        Base::Error::SetLastError(kBadIdentifier);
        BASE_ERROR("The identifier [%s] cannot stand in a url.", protocol::LoggableText(identifier).c_str());
        return {};
    }
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string segment;
    for (const char c : identifier) {
        const auto byte = static_cast<unsigned char>(c);
        if (IsUnreserved(byte))
            segment += c;
        else
            segment.append({'%', kDigits[byte >> 4], kDigits[byte & 0xF]});
    }
    return segment;
}

std::string DeviceUrl(const std::string& deviceId, const std::string& rest)
{
    const std::string segment = PathSegment(deviceId);
    return segment.empty() ? segment : std::string(protocol::route::kDevices) + "/" + segment + rest;
}

bool Exchange(ITransport& transport, const Call& call, const std::string& body, protocol::IJSONStruct& answer)
{
    RspInfos received;
    return Send(transport, call, body, received) && ReadAnswer(call, received, answer);
}

bool Exchange(ITransport& transport, const Call& call, const protocol::IJSONStruct& body,
              protocol::IJSONStruct& answer)
{
    return Exchange(transport, call, protocol::WriteJSONStr(body), answer);
}

bool Command(ITransport& transport, const Call& call, const protocol::IJSONStruct& body,
             protocol::CommonResponseData& result)
{
    RspInfos received;
    result = {};
    return Send(transport, call, protocol::WriteJSONStr(body), received) && ReadResult(received, result) &&
           IsGood(call, result.result);
}

} // namespace commlayer
