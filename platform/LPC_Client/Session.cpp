#include "LPC_Client/Session.h"

#include "LPC_Wire/Hello.h"
#include "LPC_Wire/Limits.h"
#include "LPC_Wire/SocketName.h"

#include "Base/CredentialName.h"
#include "Base/Log.h"
#include "Base/ProcessUtil.h"

namespace lpcclient {
namespace {

/// Messages delivered in a row before the socket is looked at again.
constexpr int kDeliverInARow = 64;
constexpr std::size_t kEvents = 4;

} // namespace

CSession::CSession(std::string name, bool traceTraffic)
    : m_name(std::move(name)), m_traceTraffic(traceTraffic),
      m_inbound([this](RequestId id) { Refuse(id); }, [this] { m_poller.Wake(); })
{}

bool CSession::Start()
{
    if (const std::string why = m_poller.Failure(); !why.empty()) {
        BASE_ERROR_TO("VideoLogger", "LPC: the client cannot start: %s.", why.c_str());
        return false;
    }
    std::lock_guard<std::mutex> lock(m_mutex);
    m_thread = std::thread([self = shared_from_this()] { self->Run(); });
    return true;
}

void CSession::Stop()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    Disconnect();
    m_stop = true;
    m_poller.Wake();
    std::thread thread;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        thread = std::move(m_thread);
    }
    if (thread.get_id() == std::this_thread::get_id())
        thread.detach();
    else if (thread.joinable())
        thread.join();
}

// ---- the library's thread ----

void CSession::Run()
{
    Base::ProcessUtil::NameThisThread("lpc-client");
    OnLibraryThread() = true;
    m_orders.SetThread();
    lpc::CPoller::Event events[kEvents];
    while (!m_stop) {
        m_orders.SetBusy(true);
        FlushOrdered();
        const lpc::TimePoint deadline = DeliverSome() ? lpc::TimePoint() : lpc::kForever;
        m_orders.SetBusy(false);
        FlushOrdered();
        if (const auto connection = Connection())
            connection->ResumeReading();
        const std::size_t count = m_poller.Wait(events, kEvents, deadline);
        for (std::size_t i = 0; i < count; ++i)
            OnEvent(events[i]);
    }
    while (m_inbound.DeliverOne()) {
    }
}

bool CSession::DeliverSome()
{
    for (int i = 0; i < kDeliverInARow; ++i) {
        if (!m_inbound.DeliverOne())
            return false;
        FlushOrdered();
    }
    return true;
}

void CSession::FlushOrdered()
{
    if (!m_orders.Take())
        return;
    if (const auto connection = Connection())
        connection->FlushOrdered();
}

/// An event of an earlier connection may still be under way when a new one stands.
void CSession::OnEvent(const lpc::CPoller::Event& event)
{
    std::shared_ptr<CConnection> connection;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (event.key == m_key)
            connection = m_connection;
    }
    if (connection)
        connection->OnReady(event.ready);
}

void CSession::Refuse(RequestId id)
{
    const auto connection = Connection();
    if (connection)
        connection->Post(lpc::Kind::Refusal, id, lpc::RefusalHeaders(lpc::kTryAgain), {});
}

// ---- connecting ----

int CSession::Connect(const std::string& serverName)
{
    std::lock_guard<std::mutex> connecting(m_connecting);
    if (Connection())
        return lpc::kInvalidArgument;

    lpc::CLocalSocket socket;
    lpc::CFrameReader reader;
    if (const int error = Open(serverName, socket, reader))
        return error;

    std::shared_ptr<CConnection> connection;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_ending)
            return lpc::kNotInitialised;
        connection = std::make_shared<CConnection>(std::move(socket), std::move(reader), m_inbound, m_poller,
                                                   m_orders, ++m_key, m_lastId);
        m_connection = connection;
    }
    connection->Start();
    return lpc::kNoError;
}

int CSession::Open(const std::string& serverName, lpc::CLocalSocket& socket, lpc::CFrameReader& reader) const
{
    const lpc::TimePoint deadline = lpc::DeadlineAfter(lpc::kConnectTimeoutMs);
    std::string why;
    const std::string path = lpc::SocketPath(serverName, why);
    if (!path.empty())
        socket = lpc::CLocalSocket::Connect(path, deadline, why);
    if (socket.IsValid() && !socket.PeerIsThisUser()) {
        socket.Close();
        why = "the server belongs to another user";
    }
    if (!socket.IsValid()) {
        BASE_WARN_TO("VideoLogger", "LPC: no connection to [%s]: %s.", serverName.c_str(), why.c_str());
        return lpc::kCannotConnect;
    }
    const int error = ExchangeHello(socket, reader, deadline);
    if (error != lpc::kNoError)
        BASE_WARN_TO("VideoLogger", "LPC: the hello to [%s] failed. [error-%d]", serverName.c_str(), error);
    return error;
}

int CSession::ExchangeHello(lpc::CLocalSocket& socket, lpc::CFrameReader& reader,
                            lpc::TimePoint deadline) const
{
    const std::string noBody;
    const lpc::CFrameSet hello(lpc::Kind::Hello, 0, lpc::HelloHeaders(m_name), noBody);
    // A server that has no room for another client may have refused and closed already; its refusal is still
    // to be read.
    socket.Write(hello.Spans().data(), hello.Spans().size());
    lpc::WireMessage answer;
    while (!reader.Next(answer)) {
        if (reader.GetFault() != lpc::Fault::None)
            return lpc::kRefused;
        if (socket.Wait(lpc::kReadable, deadline) == 0)
            return lpc::kTimedOut;
        const auto room = reader.Room();
        const lpc::IoResult result = socket.Read(room.data(), room.size());
        if (result.state == lpc::IoState::Closed)
            return lpc::kConnectionLost;
        reader.Commit(result.bytes);
    }
    return lpc::CheckHelloAnswer(answer);
}

void CSession::Disconnect()
{
    {
        std::lock_guard<std::mutex> connecting(m_connecting);
        std::shared_ptr<CConnection> connection;
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            connection = std::move(m_connection);
        }
        if (connection)
            connection->Close();
    }
    m_inbound.DropMessages();
}

std::shared_ptr<CConnection> CSession::Connection() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_connection && m_connection->IsOpen() ? m_connection : nullptr;
}

// ---- traffic ----

void CSession::SetReceiver(InvokeCallBack callback, void* user)
{
    m_inbound.SetReceiver(m_traceTraffic && callback ? Traced(std::move(callback)) : std::move(callback),
                          user);
    m_poller.Wake();
}

InvokeCallBack CSession::Traced(InvokeCallBack callback) const
{
    return [this, callback = std::move(callback)](const LPCCallBackData& data, void* user) {
        Trace("received", data.requestId, data.headers, data.body.size());
        return callback(data, user);
    };
}

int CSession::Send(const lpc::Message& request, AnswerCallBack onAnswer, RequestId& id)
{
    const auto connection = Connection();
    if (!connection)
        return lpc::kNotConnected;
    id = ++m_lastId;
    Trace("request", id, request.headers, request.body.size());
    if (onAnswer)
        return connection->Ask(id, request, std::move(onAnswer));
    return connection->Post(lpc::Kind::Request, id, request.headers, request.body);
}

int CSession::SendEx(lpc::Message& answer, const lpc::Message& request, RequestId& id,
                     std::uint32_t timeoutMs)
{
    const auto connection = Connection();
    if (!connection)
        return lpc::kNotConnected;
    id = ++m_lastId;
    Trace("request", id, request.headers, request.body.size());
    const int error = connection->Exchange(id, request, timeoutMs, answer);
    if (error == lpc::kNoError)
        Trace("answer", id, answer.headers, answer.body.size());
    return error;
}

int CSession::Notify(const lpc::Message& notification)
{
    const auto connection = Connection();
    if (!connection)
        return lpc::kNotConnected;
    Trace("notification", 0, notification.headers, notification.body.size());
    return connection->Post(lpc::Kind::Notification, 0, notification.headers, notification.body);
}

int CSession::Reply(const lpc::ReplyData& reply)
{
    if (reply.requestId == 0)
        return lpc::kInvalidArgument;
    const auto connection = Connection();
    if (!connection)
        return lpc::kNotConnected;
    Trace("reply", reply.requestId, reply.headers, reply.body.size());
    return connection->Post(lpc::Kind::Answer, reply.requestId, reply.headers, reply.body);
}

void CSession::Trace(const char* what, RequestId id, const HeaderMap& headers, std::size_t bodyBytes) const
{
    if (!m_traceTraffic)
        return;
    std::string text;
    for (const auto& [key, value] : headers)
        text += " [" + key + "-" + (Base::IsCredentialName(key) ? "***" : value) + "]";
    BASE_DEBUG("LPC %s %llu%s [%zu bytes]", what, static_cast<unsigned long long>(id), text.c_str(),
               bodyBytes);
}

} // namespace lpcclient
