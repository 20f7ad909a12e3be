#pragma once

#include <cstdint>
#include <string>

namespace sdk {

/// What may come back when nothing is refused.
struct ExpectedAnswer
{
    unsigned status = 200;
    std::uint32_t leastBytes = 0; ///< of the body
    std::uint32_t mostBytes = 0;
};

/// One request to a device.
struct Request
{
    const char* method = "GET";
    std::string target; ///< from "/" on
    std::string body;
    ExpectedAnswer expected;
    /// Changes nothing at the device, so that it may be sent again when the connection was closed.
    bool isRead = true;
    /// The body is none of it, but follows in chunks.
    bool isChunked = false;
};

/// What the connection adds to a request; empty texts are left out.
struct RequestContext
{
    std::string host; ///< as the header Host has it
    std::string session;
    std::string authorization;
};

/// Header lines and empty line, as they are sent; see docs/device-protocol.md.
std::string RequestHead(const Request& request, const RequestContext& context);

/// Address and port as the header Host has them, which is without the zone of an IPv6 address (RFC 6874).
std::string HostText(const std::string& address, std::uint16_t port);
/// The zone, such as "%eth0", which tells apart equal addresses in several networks of this computer; or
/// empty.
std::string ZoneOf(const std::string& address);

} // namespace sdk
