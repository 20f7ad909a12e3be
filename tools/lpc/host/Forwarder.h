#pragma once

#include "lpc/host/Traffic.h"

#include <string>
#include <vector>

namespace lpctool {

/// Passes what other clients address to the component on to it, as a framework does, and relays the answers.
/// Only on the server's thread.
class CForwarder
{
public:
    CForwarder(lpcserver::CLPCServer& server, CTraffic& traffic, std::string componentName)
        : m_server(server), m_traffic(traffic), m_componentName(std::move(componentName))
    {}

    /// Takes the served list over from the body of a registration; a body without one empties the list.
    void Learn(const std::string& registration);

    /// Passes the message of a client (shown as name) on to the component (0: not connected). A request is
    /// always answered: by the component, or with status 404 (nobody serves it), 503 (not connected), 504 (no
    /// answer in time) or 502 (connection lost, or not taken).
    void Forward(lpcserver::ClientId client, const std::string& name, const lpc::CallBackData& data,
                 lpcserver::ClientId component);

private:
    bool Serves(const lpc::CallBackData& data) const;
    void ForwardRequest(lpcserver::ClientId client, const std::string& name, const lpc::CallBackData& data,
                        lpcserver::ClientId component);
    void Answer(lpcserver::ClientId client, const std::string& name, lpc::RequestId request,
                const lpc::Message& answer);

    lpcserver::CLPCServer& m_server;
    CTraffic& m_traffic;
    std::string m_componentName;
    std::vector<std::string> m_served;
};

} // namespace lpctool
