#include "QxNetSDK/library/http/Request.h"

#include <algorithm>

namespace sdk {

std::string RequestHead(const Request& request, const RequestContext& context)
{
    std::string head;
    head.reserve(512 + context.authorization.size());
    head.append(request.method).append(" ").append(request.target).append(" HTTP/1.1\r\n");
    head.append("Host: ").append(context.host).append("\r\n");
    head.append("Vantor-Protocol: 1\r\n");
    if (!context.session.empty())
        head.append("Vantor-Session: ").append(context.session).append("\r\n");
    if (!context.authorization.empty())
        head.append("Authorization: ").append(context.authorization).append("\r\n");
    if (request.isChunked)
        return head.append("Transfer-Encoding: chunked\r\n\r\n");
    return head.append("Content-Length: ").append(std::to_string(request.body.size())).append("\r\n\r\n");
}

std::string HostText(const std::string& address, std::uint16_t port)
{
    const std::string host = address.substr(0, address.find('%'));
    const bool isIpv6 = host.find(':') != std::string::npos;
    return (isIpv6 ? "[" + host + "]" : host) + ":" + std::to_string(port);
}

std::string ZoneOf(const std::string& address)
{
    return address.substr(std::min(address.find('%'), address.size()));
}

} // namespace sdk
