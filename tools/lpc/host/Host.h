#pragma once

#include "LPC_Forward/Forwarder.h"
#include "lpc/host/Traffic.h"
#include "lpc/script/Answers.h"
#include "lpc/script/ComponentInbox.h"

#include <map>
#include <string>

namespace lpctool {

/// Stands in for the framework: the LPC server that the component joins. Answers the component's requests,
/// forwards what other clients address to it, and shows the traffic to watchers.
class CHost : private lpcserver::IServerEvents
{
public:
    /// The client of that name is the component; all others are callers and watchers.
    explicit CHost(std::string componentName);
    ~CHost() override;

    /// Listens under the name; an lpc::Error.
    [[nodiscard]] int Start(const std::string& serverName) { return m_server.Start(serverName); }

    CComponentInbox& Inbox() { return m_inbox; }
    CAnswers& Answers() { return m_answers; }
    void SetAccepting(bool accepting) { m_server.SetAccepting(accepting); }

    /// Sends a request to the component and waits for its answer; an lpc::Error. Not within an event.
    [[nodiscard]] int Invoke(lpcserver::ClientId component, const lpc::Message& request,
                             std::uint32_t timeoutMs, lpc::Message& answer);
    [[nodiscard]] int Notify(lpcserver::ClientId component, const lpc::Message& notification);

private:
    void OnClientConnected(lpcserver::ClientId client, const std::string& name) override;
    void OnClientDisconnected(lpcserver::ClientId client) override;
    void OnData(lpcserver::ClientId client, const lpc::CallBackData& data) override;

    void TakeFromComponent(lpcserver::ClientId client, const lpc::CallBackData& data);
    void TakeFromOther(lpcserver::ClientId client, const lpc::CallBackData& data);

    const std::string m_componentName;
    CComponentInbox m_inbox;
    CAnswers m_answers;
    std::map<lpcserver::ClientId, std::string> m_names; ///< only on the server's thread
    lpcserver::CLPCServer m_server;
    CTraffic m_traffic;
    lpcforward::CForwarder m_forwarder;
};

} // namespace lpctool
