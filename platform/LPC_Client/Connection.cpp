#include "LPC_Client/Connection.h"

#include "LPC_Wire/Limits.h"

#include <algorithm>

namespace lpcclient {
namespace {

/// From here on a time limit may be left to the socket, which counts in ticks of a few milliseconds.
constexpr std::uint32_t kCoarseWaitMs = 100;

bool HasPassed(lpc::TimePoint deadline)
{
    return deadline != lpc::kForever && std::chrono::steady_clock::now() >= deadline;
}

} // namespace

bool& OnLibraryThread()
{
    thread_local bool isLibraryThread = false;
    return isLibraryThread;
}

CConnection::CConnection(lpc::CLocalSocket socket, lpc::CFrameReader reader, CInbound& inbound,
                         lpc::CPoller& poller, lpc::CFlushOrders& orders, std::uint64_t key,
                         const std::atomic<RequestId>& lastId)
    : m_socket(std::move(socket)), m_reader(std::move(reader)), m_inbound(inbound), m_poller(poller),
      m_lastId(lastId), m_watch(poller, m_socket.Handle(), key),
      m_outbound(m_socket, lpc::kSendQueueBytes,
                 {[this](bool watch) { m_watch.Write(watch); }, [&orders] { return orders.Order(); }})
{}

void CConnection::Start()
{
    HandOut();
    m_watch.Start();
    std::lock_guard<std::mutex> lock(m_mutex);
    PassRole();
}

bool CConnection::IsOpen() const
{
    return !m_ended;
}

// ---- sending ----

int CConnection::Post(lpc::Kind kind, RequestId id, const HeaderMap& headers, const std::string& body)
{
    using Urgency = lpc::COutbound::Urgency;
    return m_outbound.Post(lpc::CFrameSet(kind, id, headers, body),
                           kind == lpc::Kind::Notification ? Urgency::MayWait : Urgency::AtOnce);
}

int CConnection::Ask(RequestId id, const lpc::Message& request, AnswerCallBack onAnswer)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_ended)
            return lpc::kConnectionLost;
        if (m_pending.size() >= lpc::kMaxPendingAnswers)
            return lpc::kTryAgain;
        m_pending.emplace(id, std::move(onAnswer));
    }
    const int error = Post(lpc::Kind::Request, id, request.headers, request.body);
    if (error == lpc::kNoError)
        return error;
    // When the connection ended in between, its end already told the callback.
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_pending.erase(id) == 0 ? lpc::kNoError : error;
}

int CConnection::Exchange(RequestId id, const lpc::Message& request, std::uint32_t timeoutMs,
                          lpc::Message& answer)
{
    const lpc::TimePoint deadline = lpc::DeadlineAfter(timeoutMs);
    const lpc::CFrameSet frames(lpc::Kind::Request, id, request.headers, request.body);
    if (frames.Error() != lpc::kNoError)
        return frames.Error();
    // On the library's own thread nobody would ever make room.
    if (OnLibraryThread() && AreCallersHeldBack())
        return lpc::kTryAgain;

    Waiter self;
    self.id = id;
    Enter(self);
    bool waited = false;
    int error = WriteRequest(frames, self, deadline, waited);
    if (error == lpc::kNoError)
        error = AwaitAnswer(self, waited ? 0 : timeoutMs, deadline);
    if (error == lpc::kNoError) {
        answer.headers = std::move(self.answer.headers);
        answer.body.swap(self.answer.body);
    }
    Leave(self, std::move(self.answer.body));
    return error;
}

/// The caller takes the role before it writes, so that its answer wakes no other thread.
void CConnection::Enter(Waiter& self)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_ended) {
        self.done = true;
        self.error = lpc::kConnectionLost;
        return;
    }
    m_waiters.push_back(&self);
    TakeRole(self);
}

void CConnection::Leave(Waiter& self, std::string&& spareBody)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    TakeWaiter(self.id);
    if (m_holder != &self)
        return;
    m_reader.Recycle(std::move(spareBody));
    PassRole();
}

/// The caller that waits for that answer, who is then no longer on the list.
CConnection::Waiter* CConnection::TakeWaiter(RequestId id)
{
    const auto found = std::find_if(m_waiters.begin(), m_waiters.end(),
                                    [id](const Waiter* waiter) { return waiter->id == id; });
    if (found == m_waiters.end())
        return nullptr;
    Waiter* const waiter = *found;
    m_waiters.erase(found);
    return waiter;
}

/// Stays until the request is written, reading meanwhile if it has the role: two ends that only write would
/// wait for each other.
int CConnection::WriteRequest(const lpc::CFrameSet& frames, const Waiter& self, lpc::TimePoint deadline,
                              bool& waited)
{
    lpc::COutbound::Ticket ticket = 0;
    int error = m_outbound.PostShared(frames, ticket);
    if (ticket == 0)
        return error;
    waited = true;
    bool reads = Holds(self);
    while (error == lpc::kNoError && !m_ended && m_outbound.IsWaiting(ticket)) {
        if (reads && AreCallersHeldBack()) {
            error = OnLibraryThread() ? lpc::kTryAgain : lpc::kNoError;
            reads = false;
            std::lock_guard<std::mutex> lock(m_mutex);
            Stall();
            continue;
        }
        const unsigned ready = m_socket.Wait(lpc::kWritable | (reads ? lpc::kReadable : 0U), deadline);
        if (reads && (ready & lpc::kReadable))
            ReadNow();
        if (ready & lpc::kWritable)
            m_outbound.Flush();
        if (HasPassed(deadline))
            error = lpc::kTimedOut;
    }
    m_outbound.Finish(ticket);
    return m_outbound.IsBroken() ? lpc::kConnectionLost : error;
}

// ---- the reader's role ----

int CConnection::AwaitAnswer(Waiter& self, std::uint32_t firstWaitMs, lpc::TimePoint deadline)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    bool first = firstWaitMs >= kCoarseWaitMs || deadline == lpc::kForever;
    while (!self.done) {
        if (!TakeRole(self)) {
            if (m_role == Role::Stalled && OnLibraryThread())
                return lpc::kTryAgain;
            Park(self, lock, deadline);
        } else if (AreCallersHeldBack()) {
            Stall();
        } else {
            lock.unlock();
            if (first)
                ReadWaiting(firstWaitMs);
            else if (m_socket.Wait(lpc::kReadable, deadline) != 0)
                ReadNow();
            lock.lock();
        }
        first = false;
        if (!self.done && HasPassed(deadline))
            return lpc::kTimedOut;
    }
    return self.error;
}

void CConnection::Park(Waiter& self, std::unique_lock<std::mutex>& lock, lpc::TimePoint deadline)
{
    self.parked = true;
    if (deadline == lpc::kForever)
        self.turn.wait(lock);
    else
        self.turn.wait_until(lock, deadline);
    self.parked = false;
}

bool CConnection::Holds(const Waiter& self) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_holder == &self;
}

bool CConnection::TakeRole(Waiter& self)
{
    if (m_holder == &self)
        return true;
    if (m_role != Role::Free && (m_role != Role::Stalled || AreCallersHeldBack()))
        return false;
    m_role = Role::Caller;
    m_holder = &self;
    m_watch.Read(false);
    return true;
}

/// Gives the role to a caller that waits, else back to the library's thread.
void CConnection::PassRole()
{
    m_holder = nullptr;
    const auto next =
        std::find_if(m_waiters.begin(), m_waiters.end(), [](const Waiter* waiter) { return waiter->parked; });
    if (next == m_waiters.end()) {
        m_role = Role::Free;
        m_watch.Read(true);
        return;
    }
    m_role = Role::Caller;
    m_holder = *next;
    m_watch.Read(false);
    m_holder->turn.notify_one();
}

/// The library's thread is woken because it may have made room just before, and the callers because it may be
/// among them: then it must go and make room.
void CConnection::Stall()
{
    m_role = Role::Stalled;
    m_holder = nullptr;
    m_watch.Read(false);
    m_poller.Wake();
    for (Waiter* const waiter : m_waiters)
        waiter->turn.notify_one();
}

void CConnection::ResumeReading()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_role != Role::Stalled)
        return;
    const bool callerWaits =
        std::any_of(m_waiters.begin(), m_waiters.end(), [](const Waiter* waiter) { return waiter->parked; });
    if (m_inbound.HasRoom() || (callerWaits && !m_inbound.IsFull()) || m_socket.HasHungUp())
        PassRole();
}

void CConnection::OnReady(unsigned ready)
{
    if (ready & lpc::kWritable)
        m_outbound.Flush();
    if (ready & lpc::kReadable)
        ReadAsLibrary();
}

void CConnection::ReadAsLibrary()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_role != Role::Free)
            return;
        if (IsHeldBack()) {
            Stall();
            return;
        }
        m_role = Role::Library;
    }
    ReadNow();
    std::lock_guard<std::mutex> lock(m_mutex);
    PassRole();
}

} // namespace lpcclient
