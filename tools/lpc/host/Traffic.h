#pragma once

#include "LPC_Forward/Forwarder.h"
#include "LPC_Server/LPC_Server.h"

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace lpctool {

using lpcforward::Passage;

/// The passage as a JSON object on one line, credentials masked, bodies cut.
std::string PassageText(const Passage& passage);

/// Sends copies of what passes the host to the clients that asked for it. A watcher that reads too slowly
/// loses copies and stops nobody. Any thread.
class CTraffic
{
public:
    explicit CTraffic(lpcserver::CLPCServer& server) : m_server(server) {}

    void AddWatcher(lpcserver::ClientId client);
    void RemoveWatcher(lpcserver::ClientId client);
    void Show(const Passage& passage);

private:
    lpcserver::CLPCServer& m_server;
    std::mutex m_mutex;
    std::vector<lpcserver::ClientId> m_watchers;
};

} // namespace lpctool
