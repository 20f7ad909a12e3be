#pragma once

#include "LPC_Server/LPC_Server.h"

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace lpctool {

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
