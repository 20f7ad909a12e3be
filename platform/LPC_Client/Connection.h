#pragma once

#include "LPC_Client/Inbound.h"
#include "LPC_Client/SocketWatch.h"

#include "LPC_Wire/FlushOrders.h"
#include "LPC_Wire/FrameReader.h"
#include "LPC_Wire/Outbound.h"
#include "LPC_Wire/RateLimit.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace lpcclient {

/// One connection to a server after the hello.
///
/// Exactly one thread reads at a time: a caller that waits for an answer reads the socket itself, without any
/// thread between; the library's thread watches the socket only while no caller reads. The role goes from
/// hand to hand under m_mutex, so what arrives keeps its order whoever reads it. While the receive queue is
/// full the library's thread does not read; a caller reads on for its answer, up to a limit of its own. When
/// the server is gone the rest is little, and its end must be seen: then it is read in any case.
class CConnection
{
public:
    /// Takes over the socket and what was read after the hello. key names the connection in the poller's
    /// events; lastId is the highest identifier given to a request so far.
    CConnection(lpc::CLocalSocket socket, lpc::CFrameReader reader, CInbound& inbound, lpc::CPoller& poller,
                lpc::CFlushOrders& orders, std::uint64_t key, const std::atomic<RequestId>& lastId);

    /// Begins to watch the socket, after what was already read has been handed out.
    void Start();

    bool IsOpen() const;

    /// Sends a message that nobody waits for. Never waits; an lpc::Error.
    int Post(lpc::Kind kind, RequestId id, const HeaderMap& headers, const std::string& body);

    /// Sends a request whose answer goes to onAnswer.
    int Ask(RequestId id, const lpc::Message& request, AnswerCallBack onAnswer);

    /// Sends a request and waits for the answer.
    int Exchange(RequestId id, const lpc::Message& request, std::uint32_t timeoutMs, lpc::Message& answer);

    /// The library's thread: the socket is ready.
    void OnReady(unsigned ready);

    /// The library's thread: lets reading go on that had stopped because the receive queue was full.
    void ResumeReading();

    /// The library's thread: writes what was kept back for it.
    void FlushOrdered() { m_outbound.FlushOrdered(); }

    /// Ends the connection from this side, without "clientDisconnected". What waits to be written still
    /// leaves, within kFarewellMs.
    void Close();

private:
    struct Waiter
    {
        RequestId id = 0;
        bool done = false;
        bool parked = false; ///< waits for its turn or its answer, and could read
        int error = lpc::kNoError;
        lpc::Message answer;
        std::condition_variable turn;
    };
    enum class Role { Free, Library, Caller, Stalled };

    int WriteRequest(const lpc::CFrameSet& frames, const Waiter& self, lpc::TimePoint deadline, bool& waited);
    int AwaitAnswer(Waiter& self, std::uint32_t firstWaitMs, lpc::TimePoint deadline);
    void Park(Waiter& self, std::unique_lock<std::mutex>& lock, lpc::TimePoint deadline);
    void Enter(Waiter& self);
    void Leave(Waiter& self, std::string&& spareBody);
    Waiter* TakeWaiter(RequestId id);
    bool Holds(const Waiter& self) const;
    bool IsHeldBack() const { return m_inbound.IsFull() && !m_socket.HasHungUp(); }
    bool AreCallersHeldBack() const { return m_inbound.IsFullForCallers() && !m_socket.HasHungUp(); }

    bool TakeRole(Waiter& self);
    void PassRole();
    void Stall();
    void ReadAsLibrary();

    void ReadNow();
    void ReadWaiting(std::uint32_t timeoutMs);
    void TakeIn(const lpc::IoResult& result);
    void HandOut();
    void WakeLibrary();
    bool Dispatch(lpc::WireMessage& message);
    void TakeMessage(lpc::WireMessage& message);
    void TakeAnswer(int error, lpc::WireMessage& message);
    void End(bool lost);
    void LogFault(lpc::Fault fault);

    lpc::CLocalSocket m_socket;
    lpc::CFrameReader m_reader;
    CInbound& m_inbound;
    lpc::CPoller& m_poller;
    const std::atomic<RequestId>& m_lastId;
    CSocketWatch m_watch;
    lpc::COutbound m_outbound;

    mutable std::mutex m_mutex;
    Role m_role = Role::Library;
    Waiter* m_holder = nullptr;     ///< the caller that reads
    std::vector<Waiter*> m_waiters; ///< those whose answer has not come
    std::unordered_map<RequestId, AnswerCallBack> m_pending;
    std::atomic<bool> m_ended{false};

    // Of the reader:
    bool m_handedOver = false; ///< something for the library's thread
    lpc::TimePoint m_lastWake;

    lpc::CRateLimit<1> m_strayAnswers;
};

/// Whether this is the library's thread of any session.
bool& OnLibraryThread();

} // namespace lpcclient
