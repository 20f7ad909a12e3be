#include "LPC_Server/ServerLoop.h"

#include "LPC_Wire/Hello.h"
#include "LPC_Wire/SocketName.h"

#include "Base/Log.h"
#include "Base/ProcessUtil.h"

#include <algorithm>

namespace lpcserver {
namespace {

constexpr std::uint64_t kListenerKey = 0;
constexpr std::size_t kEvents = 16;

/// Connections taken in a row before those that stand are served again.
constexpr int kAcceptInARow = 16;

/// How long no connection is taken after the system gave none, for example because all descriptors are in
/// use.
constexpr std::chrono::seconds kAcceptPause{1};

} // namespace

// ---- start and stop ----

int CServerLoop::Start(const std::string& serverName)
{
    if (OnOwnThread()) // a Stop in another thread may hold the lock and wait for this one
        return lpc::kInvalidArgument;
    std::lock_guard<std::mutex> starting(m_starting);
    if (m_thread.joinable()) {
        if (!m_stop)
            return lpc::kInvalidArgument;
        m_thread.join();
    }
    std::string why = m_poller.Failure();
    const std::string path = why.empty() ? lpc::SocketPath(serverName, why) : std::string();
    if (path.empty() || !m_listener.Listen(path, why)) {
        BASE_ERROR_TO("VideoLogger", "LPC: cannot listen for [%s]: %s.", serverName.c_str(), why.c_str());
        return lpc::kCannotListen;
    }
    m_poller.Add(m_listener.Handle(), kListenerKey, lpc::kReadable);
    m_stop = false;
    m_reads = true;
    m_thread = std::thread([this] { Run(); });
    return lpc::kNoError;
}

void CServerLoop::Stop()
{
    if (OnOwnThread()) {
        m_stop = true;
        return;
    }
    std::lock_guard<std::mutex> starting(m_starting);
    m_stop = true;
    m_poller.Wake();
    if (m_thread.joinable())
        m_thread.join();
}

void CServerLoop::Run()
{
    Base::ProcessUtil::NameThisThread("lpc-server");
    m_threadId = std::this_thread::get_id();
    m_orders.SetThread();
    lpc::CPoller::Event events[kEvents];
    while (!m_stop) {
        const std::size_t count = m_poller.Wait(events, kEvents, Sleep());
        m_orders.SetBusy(true);
        FlushOrdered();
        for (std::size_t i = 0; i < count && !m_stop; ++i)
            OnEvent(events[i]);
        HandleDeadlines();
        m_orders.SetBusy(false);
        FlushOrdered();
    }
    m_poller.Remove(m_listener.Handle());
    m_listener.Close();
    SayFarewell();
    CloseAll();
    m_threadId = std::thread::id();
}

void CServerLoop::FlushOrdered()
{
    if (!m_orders.Take())
        return;
    for (const ClientPtr& client : Clients())
        client->Outbound().FlushOrdered();
}

void CServerLoop::OnEvent(const lpc::CPoller::Event& event)
{
    if (event.key == kListenerKey) {
        AcceptSome();
        return;
    }
    if (const ClientPtr client = Find(event.key))
        OnReady(client, event.ready);
}

// ---- new connections ----

void CServerLoop::AcceptSome()
{
    for (int i = 0; i < kAcceptInARow; ++i) {
        lpc::CLocalSocket socket;
        const lpc::IoState state = m_listener.Accept(socket);
        if (state == lpc::IoState::Done) {
            Welcome(std::move(socket));
            continue;
        }
        if (state == lpc::IoState::Closed) {
            Log(Kind(Misfortune::CannotAccept), "", "the system gives no more connections");
            m_poller.Modify(m_listener.Handle(), kListenerKey, 0);
            m_acceptAgain = std::chrono::steady_clock::now() + kAcceptPause;
        }
        return;
    }
}

void CServerLoop::Welcome(lpc::CLocalSocket socket)
{
    const ClientId id = ++m_lastClient;
    const lpc::SocketHandle handle = socket.Handle();
    const bool isThisUser = socket.PeerIsThisUser();
    const lpc::COutbound::Hooks hooks{[=](bool watch) { WatchRoom(handle, id, watch); },
                                      [this] { return m_orders.Order(); }};
    const auto client =
        std::make_shared<CServerClient>(id, std::move(socket), m_limits.sendQueueBytes, hooks);
    std::size_t others = 0;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        others = m_clients.size();
        m_clients.emplace(id, client);
    }
    ++m_newcomers;
    client->helloDeadline = std::chrono::steady_clock::now() + m_limits.helloTimeout;
    m_poller.Add(handle, id, lpc::kReadable);
    if (!isThisUser) {
        Drop(client, Misfortune::OtherUser);
    } else if (others >= m_limits.clients) {
        client->Refuse(0, lpc::kTryAgain);
        Drop(client, Misfortune::TooMany);
    }
}

/// The thread may sleep without a limit; it has to learn that a queue must move within some time.
void CServerLoop::WatchRoom(lpc::SocketHandle handle, ClientId id, bool watch)
{
    m_congested += watch ? 1 : -1;
    m_poller.Modify(handle, id, (m_reads ? lpc::kReadable : 0U) | (watch ? lpc::kWritable : 0U));
    if (watch && !OnOwnThread())
        m_poller.Wake();
}

// ---- reading ----

void CServerLoop::OnReady(const ClientPtr& client, unsigned ready)
{
    if (ready & lpc::kWritable)
        client->Outbound().Flush();
    if (ready & lpc::kReadable)
        Read(client);
}

void CServerLoop::Read(const ClientPtr& client)
{
    const bool open = client->Read();
    lpc::WireMessage message;
    while (!m_stop && client->Reader().Next(message)) {
        if (!Dispatch(client, message))
            return;
        client->Reader().Recycle(std::move(message.body));
    }
    if (client->Reader().GetFault() != lpc::Fault::None)
        CloseFaulty(client, client->Reader().GetFault());
    else if (!HasRoomForBodies(*client))
        Drop(client, Misfortune::TooManyBytes);
    else if (!open && client->Reader().InsideMessage())
        Drop(client, Misfortune::CutOff);
    else if (!open)
        Close(client);
}

/// Counts what has arrived, not what was announced.
bool CServerLoop::HasRoomForBodies(CServerClient& client)
{
    const std::size_t bytes = client.Reader().UnfinishedBytes();
    m_unfinishedBytes += bytes - client.unfinishedBytes;
    const bool grows = bytes > client.unfinishedBytes;
    client.unfinishedBytes = bytes;
    return !grows || m_unfinishedBytes <= m_limits.unfinishedBytes;
}

/// False when the connection was closed over the message.
bool CServerLoop::Dispatch(const ClientPtr& client, lpc::WireMessage& message)
{
    if (client->name.empty())
        return Greet(client, message);
    switch (message.kind) {
    case lpc::Kind::Request:
    case lpc::Kind::Notification:
        return TakeMessage(client, message);
    case lpc::Kind::Answer:
        return TakeAnswer(client, lpc::kNoError, message);
    case lpc::Kind::Refusal:
        return TakeAnswer(client, lpc::RefusalError(message.headers), message);
    default:
        CloseFaulty(client, lpc::Fault::Order);
        return false;
    }
}

bool CServerLoop::Greet(const ClientPtr& client, const lpc::WireMessage& message)
{
    if (message.kind != lpc::Kind::Hello) {
        CloseFaulty(client, lpc::Fault::Order);
        return false;
    }
    if (lpc::CheckHello(message.headers) != lpc::kNoError) {
        client->Refuse(0, lpc::kRefused);
        CloseFaulty(client, lpc::Fault::Hello);
        return false;
    }
    // The answer comes first: from the name on, others may send to the client.
    client->Post(lpc::Kind::HelloAnswer, 0, lpc::HelloAnswerHeaders(), {});
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        client->name = lpc::HelloName(message.headers);
    }
    --m_newcomers;
    client->helloDeadline = lpc::kForever;
    m_events.OnClientConnected(client->Id(), client->name);
    return true;
}

bool CServerLoop::TakeMessage(const ClientPtr& client, lpc::WireMessage& message)
{
    if (message.id != 0 && !m_accepting) {
        if (client->Refuse(message.id, lpc::kTryAgain) != lpc::kTryAgain)
            return true;
        Drop(client, Misfortune::DoesNotRead);
        return false;
    }
    lpc::CallBackData data{message.id, std::move(message.headers), std::move(message.body)};
    m_events.OnData(client->Id(), data);
    message.body = std::move(data.body);
    return true;
}

bool CServerLoop::TakeAnswer(const ClientPtr& client, int error, lpc::WireMessage& message)
{
    if (auto onAnswer = m_pending.Take(client->Id(), message.id)) {
        (*onAnswer)(error, {std::move(message.headers), std::move(message.body)});
        return true;
    }
    if (!m_pending.WasUsed(message.id))
        Log(Kind(Misfortune::StrayAnswer), client->name, "answered a request that was never sent");
    return true;
}

// ---- time ----

/// The moment until which to wait. It is announced before the deadlines are looked at, so that a request
/// added meanwhile is either seen here or wakes the thread. An alarm that is no longer needed is kept:
/// requests that follow one another then find it early enough and wake nobody.
lpc::TimePoint CServerLoop::Sleep()
{
    m_sleepsUntil = lpc::kForever;
    m_alarm = std::min(m_alarm, NextDeadline());
    m_sleepsUntil = m_alarm;
    return m_alarm;
}

lpc::TimePoint CServerLoop::DeadlineOf(CServerClient& client) const
{
    const lpc::TimePoint waiting = client.Outbound().WaitingSince();
    const lpc::TimePoint stalled = waiting == lpc::kForever ? lpc::kForever : waiting + m_limits.stallTimeout;
    return std::min(client.helloDeadline, stalled);
}

lpc::TimePoint CServerLoop::NextDeadline() const
{
    lpc::TimePoint next = std::min(m_acceptAgain, m_pending.NextDeadline());
    if (m_newcomers > 0 || m_congested > 0)
        for (const ClientPtr& client : Clients())
            next = std::min(next, DeadlineOf(*client));
    return next;
}

void CServerLoop::HandleDeadlines()
{
    if (m_alarm == lpc::kForever)
        return;
    const lpc::TimePoint now = std::chrono::steady_clock::now();
    if (now < m_alarm)
        return;
    m_alarm = lpc::kForever;
    for (const AnswerCallBack& onAnswer : m_pending.TakeExpired(now))
        onAnswer(lpc::kTimedOut, {});
    for (const ClientPtr& client : Clients())
        if (DeadlineOf(*client) <= now)
            Drop(client, client->helloDeadline <= now ? Misfortune::NoHello : Misfortune::DoesNotRead);
    if (m_acceptAgain <= now) {
        m_acceptAgain = lpc::kForever;
        m_poller.Modify(m_listener.Handle(), kListenerKey, lpc::kReadable);
    }
}

// ---- sending ----

int CServerLoop::Post(ClientId client, lpc::Kind kind, RequestId id, const HeaderMap& headers,
                      const std::string& body)
{
    const ClientPtr found = FindGreeted(client);
    return found ? found->Post(kind, id, headers, body) : lpc::kNotConnected;
}

int CServerLoop::Ask(ClientId client, const lpc::Message& request, std::uint32_t timeoutMs,
                     AnswerCallBack onAnswer)
{
    const ClientPtr found = FindGreeted(client);
    if (!found)
        return lpc::kNotConnected;
    const lpc::TimePoint deadline = lpc::DeadlineAfter(timeoutMs);
    const RequestId id = m_pending.Add(client, deadline, std::move(onAnswer));
    if (id == 0)
        return lpc::kTryAgain;
    const int error = found->Post(lpc::Kind::Request, id, request.headers, request.body);
    if (error != lpc::kNoError)
        // When the connection ended in between, its end already told the callback.
        return m_pending.Take(client, id) ? error : lpc::kNoError;
    if (deadline < m_sleepsUntil.load() && !OnOwnThread())
        m_poller.Wake();
    return lpc::kNoError;
}

std::vector<CServerLoop::ClientPtr> CServerLoop::Clients() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<ClientPtr> clients;
    clients.reserve(m_clients.size());
    for (const auto& [id, client] : m_clients)
        clients.push_back(client);
    return clients;
}

CServerLoop::ClientPtr CServerLoop::Find(ClientId id) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_clients.find(id);
    return found == m_clients.end() ? nullptr : found->second;
}

CServerLoop::ClientPtr CServerLoop::FindGreeted(ClientId id) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_clients.find(id);
    return found == m_clients.end() || found->second->name.empty() ? nullptr : found->second;
}

} // namespace lpcserver
