#pragma once

#include "LPC_Server/LPC_Server.h"

#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace lpcforward {

/// One message on its way, for showing.
struct Passage
{
    const char* kind; ///< "request", "reply" or "notify"
    std::string from;
    std::string to;
    const lpc::HeaderMap& headers;
    const std::string& body;
    int error = 0; ///< of a reply: why there is none
};

/// Sees what is forwarded, on the thread that passes it on.
using OnPassage = std::function<void(const Passage& passage)>;

/// Passes what other clients address to a component on to it, and relays the answers. Any thread; the server
/// stops before the forwarder goes.
class CForwarder
{
public:
    /// ownName is the server in what onPassage sees.
    CForwarder(lpcserver::CLPCServer& server, std::string ownName, std::string componentName,
               OnPassage onPassage = {});

    /// The urls, and methods of messages without url, that the component serves.
    void SetServed(std::vector<std::string> urls);

    /// Passes the message of a client (shown as name) on to the component (0: not connected). A request is
    /// always answered: by the component, or with status 404 (nobody serves it), 503 (not connected), 504 (no
    /// answer in the time of its header "timeout", or half a minute) or 502 (connection lost, or not taken).
    /// A notification that nobody serves is dropped.
    void Forward(lpcserver::ClientId client, const std::string& name, const lpc::CallBackData& data,
                 lpcserver::ClientId component);

private:
    bool Serves(const lpc::CallBackData& data) const;
    void ForwardRequest(lpcserver::ClientId client, const std::string& name, const lpc::CallBackData& data,
                        lpcserver::ClientId component);
    void Answer(lpcserver::ClientId client, const std::string& name, lpc::RequestId request,
                const lpc::Message& answer);
    void Show(const Passage& passage) const;

    lpcserver::CLPCServer& m_server;
    const std::string m_ownName;
    const std::string m_componentName;
    const OnPassage m_onPassage;
    mutable std::mutex m_mutex;
    std::vector<std::string> m_served;
};

} // namespace lpcforward
