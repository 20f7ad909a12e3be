#pragma once

#include "LPC_Server/LPC_Server.h"
#include "Protocol/JSONStruct/IJSONStruct.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"

#include <functional>
#include <string>
#include <vector>

namespace framework {

/// A request to one of the framework's routes.
struct RouteRequest
{
    lpcserver::ClientId client = 0;
    bool isFromComponent = false;
    std::vector<std::string> ids; ///< what the "*" of the route's url stood for
    std::string body;
};

using RouteHandler = std::function<lpc::Message(const RouteRequest& request)>;

/// Answers of routes: the structure; that it was done; that it was not, with words for people.
lpc::Message Found(const protocol::IJSONStruct& answer);
lpc::Message Done();
lpc::Message Failed(int status, const std::string& reason);

/// The answer to a body that does not hold the structure of that key; an empty one is logged here.
lpc::Message BadBody(const RouteRequest& request, const char* key);

/// A handler for a body that holds the structure; any other is answered with status 400.
template<typename Body, typename Work>
RouteHandler WithBody(Work work)
{
    return [work](const RouteRequest& request) {
        Body body;
        if (protocol::TParseJSONStr(body, request.body))
            return work(request, body);
        return BadBody(request, Body::kKey);
    };
}

/// What a route waits for, at most.
enum class RouteWaits { ForTheDisk, ForDevices };

/// The framework's routes, one row each. Filled before the server starts; from then on only read, from any
/// thread.
class CRouteTable
{
public:
    /// url: see lpcforward::UrlMatches.
    void Add(const char* method, std::string url, RouteHandler handler,
             RouteWaits waits = RouteWaits::ForTheDisk);

    /// Whether a row has this url.
    bool Knows(const std::string& url) const;

    /// Of the row that Serve would take.
    RouteWaits WaitsOf(const std::string& url, const std::string& method) const;

    /// The answer of the first row that fits; status 404 for a url, 405 for a method that no row has.
    lpc::Message Serve(const std::string& url, const std::string& method, RouteRequest request) const;

private:
    struct Row
    {
        std::string method;
        std::string url;
        RouteHandler handler;
        RouteWaits waits;
    };
    std::vector<Row> m_rows;
};

} // namespace framework
