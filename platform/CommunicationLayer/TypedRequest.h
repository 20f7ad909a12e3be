#pragma once

#include "CommunicationLayer/CommunicationLayer.h"
#include "Protocol/JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/Routes.h"

#include <cstdint>
#include <string>

/// The one form of the requests: a route, a method, a structure as body and a structure as answer. Each
/// request is one line, for example
///     using CGetDateTimeFormat = CQuery<protocol::route::kDateTimeFormat, protocol::DateTimeFormatData>;
///     if (CGetDateTimeFormat::request(format)) ...
/// A failure is logged once and is the thread's last error; the answer is then unchanged. Every request
/// waits; keep them off the GUI thread unless the wait is meant.
namespace commlayer {

inline constexpr char kGet[] = "GET";
inline constexpr char kPost[] = "POST";
inline constexpr char kPut[] = "PUT";

/// Waits for what the framework knows itself, and for what it asks of devices.
constexpr std::uint32_t kFrameworkTimeoutMs = 5000;
constexpr std::uint32_t kDeviceTimeoutMs = 30000;

/// Where a request goes. An empty url is never sent; see DeviceUrl.
struct Call
{
    const char* method;
    std::string url;
    std::uint32_t timeoutMs = kFrameworkTimeoutMs;
    bool retry = true;
};

/// The identifier as one segment of a path: everything but letters, digits and "-_.~" percent-encoded, so
/// that it cannot change the route. Empty for one that is empty, "." or "..", or longer than 256 bytes; that
/// is logged and becomes the last error.
std::string PathSegment(const std::string& identifier);

/// kDevices + "/" + device id + rest; empty when the identifier does not do.
std::string DeviceUrl(const std::string& deviceId, const std::string& rest);

/// Sends the call with a body, which may be empty, and reads the answer's body into the structure.
[[nodiscard]] bool Exchange(ITransport& transport, const Call& call, const std::string& body,
                            protocol::IJSONStruct& answer);
[[nodiscard]] bool Exchange(ITransport& transport, const Call& call, const protocol::IJSONStruct& body,
                            protocol::IJSONStruct& answer);

/// Sends a call whose answer tells only whether it worked. An answer without a common response is a good one;
/// a common response with an error number is a failure, and result holds it.
[[nodiscard]] bool Command(ITransport& transport, const Call& call, const protocol::IJSONStruct& body,
                           protocol::CommonResponseData& result);

/// Asks the framework for a structure.
template<const char* Url, typename Answer>
struct CQuery
{
    [[nodiscard]] static bool request(Answer& answer, ITransport& transport = CurrentTransport())
    {
        return Exchange(transport, {kGet, Url}, std::string(), answer);
    }
};

/// Asks for a structure of one device.
template<const char* Rest, typename Answer>
struct CDeviceQuery
{
    [[nodiscard]] static bool request(const std::string& deviceId, Answer& answer,
                                      ITransport& transport = CurrentTransport())
    {
        return Exchange(transport, {kGet, DeviceUrl(deviceId, Rest), kDeviceTimeoutMs}, std::string(),
                        answer);
    }
};

/// Tells the framework a structure.
template<const char* Method, const char* Url, typename Body>
struct CCommand
{
    [[nodiscard]] static bool request(const Body& body, ITransport& transport = CurrentTransport())
    {
        protocol::CommonResponseData result;
        return Command(transport, {Method, Url}, body, result);
    }
};

} // namespace commlayer
