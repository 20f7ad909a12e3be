#include "framework/core/RouteTable.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "LPC_Forward/Answer.h"
#include "Protocol/JSONStruct/HTTP/HTTPCommonJSONStruct.h"

#include <algorithm>

namespace framework {

lpc::Message Found(const protocol::IJSONStruct& answer)
{
    return lpcforward::MakeAnswer(200, 0, protocol::WriteJSONStr(answer));
}

lpc::Message Done()
{
    return Found(protocol::CommonResponseData());
}

lpc::Message Failed(int status, const std::string& reason)
{
    protocol::CommonResponseData response;
    response.result.errorCode = status;
    response.message = reason;
    return lpcforward::MakeAnswer(status, 0, protocol::WriteJSONStr(response));
}

lpc::Message BadBody(const RouteRequest& request, const char* key)
{
    if (request.body.empty())
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "A request without body should hold [%s].", key);
    return Failed(400, std::string("The body holds no ") + key + ".");
}

void CRouteTable::Add(const char* method, std::string url, RouteHandler handler, RouteWaits waits)
{
    m_rows.push_back({method, std::move(url), std::move(handler), waits});
}

bool CRouteTable::Knows(const std::string& url) const
{
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [&](const Row& row) { return lpcforward::UrlMatches(row.url, url); });
}

RouteWaits CRouteTable::WaitsOf(const std::string& url, const std::string& method) const
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row& candidate) {
        return candidate.method == method && lpcforward::UrlMatches(candidate.url, url);
    });
    return row == m_rows.end() ? RouteWaits::ForTheDisk : row->waits;
}

lpc::Message CRouteTable::Serve(const std::string& url, const std::string& method, RouteRequest request) const
{
    bool isKnown = false;
    for (const Row& row : m_rows) {
        if (!lpcforward::UrlMatches(row.url, url, &request.ids))
            continue;
        isKnown = true;
        if (row.method == method)
            return row.handler(request);
    }
    return isKnown ? Failed(405, "The route does not serve this method.")
                   : Failed(404, "There is no such route.");
}

} // namespace framework
