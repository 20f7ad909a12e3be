#pragma once

#include "LPC_Server/LPC_Server.h"
#include "lpc/json/Json.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>

namespace lpctool {

using Clock = std::chrono::steady_clock;

/// What the host knows about the component: whether it is connected, whether its process ended, and what it
/// sent that no step has asked for yet. Filled by the server's and the child's threads, awaited by the
/// player.
class CComponentInbox
{
public:
    enum class Kind { Notification, Request };

    /// Why a wait ended without what it waited for.
    enum class Outcome { Found, TimedOut, Ended, Interrupted };

    /// More messages than this are not kept; the oldest go.
    static constexpr std::size_t kKeptMessages = 1000;

    void Connected(lpcserver::ClientId client);
    void Disconnected(lpcserver::ClientId client);
    void Exited(int status);
    /// Ends every wait, now and later.
    void Interrupt();

    /// message: the headers as members and the body as "body".
    void Add(Kind kind, JsonValue message);

    /// The connected component; 0 when there is none.
    lpcserver::ClientId Client() const;
    std::optional<int> ExitStatus() const;
    bool Interrupted() const;

    Outcome WaitForConnection(Clock::time_point deadline, lpcserver::ClientId& client);
    /// Waits for the end of the process, and shortly for that of its connection.
    Outcome WaitForExit(Clock::time_point deadline, int& status);

    /// Waits for a message that the test accepts and takes it and all earlier ones of its kind out. The test
    /// is called once for each message, in order of arrival. Left messages stay for later waits.
    Outcome WaitForMessage(Kind kind, Clock::time_point deadline,
                           const std::function<bool(const cJSON&)>& accepts);

    /// Waits until the time has come; false when interrupted.
    bool SleepUntil(Clock::time_point deadline);

private:
    struct Queue
    {
        std::deque<JsonValue> messages;
        std::size_t gone = 0; ///< how many came before the first one here
    };

    Queue& Of(Kind kind) { return kind == Kind::Request ? m_requests : m_notifications; }
    bool Gone(Clock::time_point now) const;
    bool ExitIsSeen() const;
    Outcome Await(std::unique_lock<std::mutex>& lock, Clock::time_point deadline, bool endsWithChild,
                  const std::function<bool()>& found);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    lpcserver::ClientId m_client = 0;
    std::optional<int> m_exitStatus;
    Clock::time_point m_exitTime;
    bool m_interrupted = false;
    Queue m_notifications;
    Queue m_requests;
};

} // namespace lpctool
