#pragma once

#include "LPC_Server/PendingRequests.h"
#include "LPC_Server/ServerClient.h"

#include "LPC_Wire/FlushOrders.h"
#include "LPC_Wire/RateLimit.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace lpcserver {

/// The server's thread with everything that it serves: the listener, the clients and the requests that wait
/// for them.
class CServerLoop
{
public:
    CServerLoop(IServerEvents& events, const ServerLimits& limits) : m_events(events), m_limits(limits) {}
    ~CServerLoop() { Stop(); }

    CServerLoop(const CServerLoop&) = delete;
    CServerLoop& operator=(const CServerLoop&) = delete;

    int Start(const std::string& serverName);
    void Stop();
    void SetAccepting(bool accepting) { m_accepting = accepting; }

    /// Sends a message to a client that passed the hello.
    int Post(ClientId client, lpc::Kind kind, RequestId id, const HeaderMap& headers,
             const std::string& body);
    int Ask(ClientId client, const lpc::Message& request, std::uint32_t timeoutMs, AnswerCallBack onAnswer);

    bool OnOwnThread() const { return m_threadId == std::this_thread::get_id(); }

private:
    using ClientPtr = std::shared_ptr<CServerClient>;

    /// What may befall a connection beside a malformed frame; each has its own rate of log lines.
    enum class Misfortune {
        CutOff,
        NoHello,
        DoesNotRead,
        OtherUser,
        TooMany,
        TooManyBytes,
        CannotAccept,
        StrayAnswer,
        Count_
    };

    static std::size_t Kind(Misfortune misfortune)
    {
        return static_cast<std::size_t>(lpc::Fault::Count_) + static_cast<std::size_t>(misfortune);
    }

    void Run();
    void OnEvent(const lpc::CPoller::Event& event);
    void FlushOrdered();
    void SayFarewell();
    void CloseAll();

    void AcceptSome();
    void Welcome(lpc::CLocalSocket socket);
    void WatchRoom(lpc::SocketHandle handle, ClientId id, bool watch);

    void OnReady(const ClientPtr& client, unsigned ready);
    void Read(const ClientPtr& client);
    bool HasRoomForBodies(CServerClient& client);
    bool Dispatch(const ClientPtr& client, lpc::WireMessage& message);
    bool Greet(const ClientPtr& client, const lpc::WireMessage& message);
    bool TakeMessage(const ClientPtr& client, lpc::WireMessage& message);
    bool TakeAnswer(const ClientPtr& client, int error, lpc::WireMessage& message);
    void Close(const ClientPtr& client);
    void CloseFaulty(const ClientPtr& client, lpc::Fault fault);
    void Drop(const ClientPtr& client, Misfortune misfortune);
    void Log(std::size_t kind, const std::string& client, const char* what);

    lpc::TimePoint Sleep();
    lpc::TimePoint NextDeadline() const;
    lpc::TimePoint DeadlineOf(CServerClient& client) const;
    void HandleDeadlines();

    std::vector<ClientPtr> Clients() const;
    ClientPtr Find(ClientId id) const;
    ClientPtr FindGreeted(ClientId id) const;

    IServerEvents& m_events;
    const ServerLimits m_limits;
    lpc::CPoller m_poller;
    lpc::CFlushOrders m_orders{m_poller};
    lpc::CLocalListener m_listener;
    CPendingRequests m_pending;
    std::atomic<bool> m_accepting{true};
    std::atomic<bool> m_stop{false};
    std::atomic<bool> m_reads{true}; ///< not at the end, when only what waits is written
    std::atomic<std::thread::id> m_threadId{};

    std::mutex m_starting; ///< one Start or Stop at a time
    std::thread m_thread;

    mutable std::mutex m_mutex;
    std::map<ClientId, ClientPtr> m_clients;

    // Of the server's thread:
    ClientId m_lastClient = 0;
    int m_newcomers = 0; ///< clients that have not said hello
    std::size_t m_unfinishedBytes = 0;
    lpc::TimePoint m_acceptAgain = lpc::kForever;
    lpc::TimePoint m_alarm = lpc::kForever;

    std::atomic<lpc::TimePoint> m_sleepsUntil{lpc::kForever};
    std::atomic<int> m_congested{0}; ///< clients whose queue waits for room
    lpc::CRateLimit<static_cast<std::size_t>(lpc::Fault::Count_) +
                    static_cast<std::size_t>(Misfortune::Count_)>
        m_rate;
};

} // namespace lpcserver
