#include "lpc/script/ComponentInbox.h"

#include <algorithm>

namespace lpctool {

namespace {

/// What an ended process sent last may still be on its way through the socket.
constexpr std::chrono::milliseconds kAfterExit{300};

} // namespace

void CComponentInbox::Connected(lpcserver::ClientId client)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_client = client;
    m_changed.notify_all();
}

void CComponentInbox::Disconnected(lpcserver::ClientId client)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_client == client)
        m_client = 0;
    m_changed.notify_all();
}

void CComponentInbox::Exited(int status)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_exitStatus = status;
    m_exitTime = Clock::now();
    m_changed.notify_all();
}

void CComponentInbox::Interrupt()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_interrupted = true;
    m_changed.notify_all();
}

void CComponentInbox::Add(Kind kind, JsonValue message)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    Queue& queue = Of(kind);
    if (queue.messages.size() == kKeptMessages) {
        queue.messages.pop_front();
        ++queue.gone;
    }
    queue.messages.push_back(std::move(message));
    m_changed.notify_all();
}

lpcserver::ClientId CComponentInbox::Client() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_client;
}

std::optional<int> CComponentInbox::ExitStatus() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_exitStatus;
}

bool CComponentInbox::Interrupted() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_interrupted;
}

bool CComponentInbox::Gone(Clock::time_point now) const
{
    return m_exitStatus && m_client == 0 && now >= m_exitTime + kAfterExit;
}

bool CComponentInbox::ExitIsSeen() const
{
    return m_exitStatus && (m_client == 0 || Clock::now() >= m_exitTime + kAfterExit);
}

CComponentInbox::Outcome CComponentInbox::Await(std::unique_lock<std::mutex>& lock,
                                                Clock::time_point deadline, bool endsWithChild,
                                                const std::function<bool()>& found)
{
    for (;;) {
        const Clock::time_point now = Clock::now();
        if (found())
            return Outcome::Found;
        if (m_interrupted)
            return Outcome::Interrupted;
        if (endsWithChild && Gone(now))
            return Outcome::Ended;
        if (now >= deadline)
            return Outcome::TimedOut;
        const Clock::time_point settled = m_exitTime + kAfterExit;
        const bool settling = m_exitStatus && now < settled;
        m_changed.wait_until(lock, settling ? std::min(deadline, settled) : deadline);
    }
}

CComponentInbox::Outcome CComponentInbox::WaitForConnection(Clock::time_point deadline,
                                                            lpcserver::ClientId& client)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const Outcome outcome = Await(lock, deadline, true, [this] { return m_client != 0; });
    client = m_client;
    return outcome;
}

CComponentInbox::Outcome CComponentInbox::WaitForExit(Clock::time_point deadline, int& status)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const Outcome outcome = Await(lock, deadline, false, [this] { return ExitIsSeen(); });
    status = m_exitStatus.value_or(0);
    return outcome == Outcome::TimedOut && m_exitStatus ? Outcome::Found : outcome;
}

CComponentInbox::Outcome CComponentInbox::WaitForMessage(Kind kind, Clock::time_point deadline,
                                                         const std::function<bool(const cJSON&)>& accepts)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    Queue& queue = Of(kind);
    std::size_t next = queue.gone;
    return Await(lock, deadline, true, [&] {
        next = std::max(next, queue.gone);
        while (next < queue.gone + queue.messages.size()) {
            const std::size_t index = next++ - queue.gone;
            if (!accepts(*queue.messages[index]))
                continue;
            queue.messages.erase(queue.messages.begin(),
                                 queue.messages.begin() + static_cast<long>(index) + 1);
            queue.gone = next;
            return true;
        }
        return false;
    });
}

bool CComponentInbox::SleepUntil(Clock::time_point deadline)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return Await(lock, deadline, false, [] { return false; }) != Outcome::Interrupted;
}

} // namespace lpctool
