#include "simulator/server/HttpServer.h"

#include "Base/ProcessUtil.h"
#include "simulator/server/HttpConnection.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <thread>

namespace simulator {

using asio::ip::tcp;

namespace {

constexpr std::size_t kConnections = 256;

/// When the system has no descriptor for a connection, it would say so again at once.
constexpr std::chrono::milliseconds kTimeToAcceptAgain{100};

std::shared_ptr<asio::ssl::context> MakeTls(const TlsIdentity& identity)
{
    auto tls = std::make_shared<asio::ssl::context>(asio::ssl::context::tls_server);
    SSL_CTX_set_min_proto_version(tls->native_handle(), TLS1_2_VERSION);
    tls->use_certificate_chain(asio::buffer(identity.certificate));
    tls->use_private_key(asio::buffer(identity.key), asio::ssl::context::pem);
    return tls;
}

} // namespace

struct CServerThreads::State
{
    /// One thread's.
    struct Loop
    {
        asio::io_context io{1};
        asio::executor_work_guard<asio::io_context::executor_type> work = asio::make_work_guard(io);
        std::thread thread;
    };

    /// Where servers wait for connections.
    asio::io_context& Door() { return loops.front()->io; }

    /// Of the thread whose turn it is.
    asio::io_context& Next() { return loops[turn++ % loops.size()]->io; }

    std::vector<std::unique_ptr<Loop>> loops;
    std::atomic<unsigned> turn{0};
};

CServerThreads::CServerThreads(unsigned count) : m_state(std::make_unique<State>())
{
    for (unsigned i = 0; i < count; ++i)
        m_state->loops.push_back(std::make_unique<State::Loop>());
}

CServerThreads::~CServerThreads()
{
    Stop();
    // A connection that waits at the door belongs to another loop already, which must outlive it.
    m_state->loops.front().reset();
}

void CServerThreads::Start()
{
    for (const auto& loop : m_state->loops)
        loop->thread = std::thread([io = &loop->io] {
            Base::ProcessUtil::NameThisThread("device-sim");
            io->run();
        });
}

void CServerThreads::Stop()
{
    for (const auto& loop : m_state->loops)
        loop->io.stop();
    for (const auto& loop : m_state->loops)
        if (loop->thread.joinable())
            loop->thread.join();
}

void CServerThreads::After(std::chrono::milliseconds delay, std::function<void()> work)
{
    auto timer = std::make_shared<asio::steady_timer>(m_state->Next(), delay);
    timer->async_wait([timer, work = std::move(work)](ErrorCode error) {
        if (!error)
            work();
    });
}

struct CHttpServer::State : std::enable_shared_from_this<CHttpServer::State>
{
    State(CServerThreads::State& threadsToUse, IHttpHandler& served, const TlsIdentity* identity)
        : threads(threadsToUse), handler(served), tls(identity ? MakeTls(*identity) : nullptr)
    {}

    bool Listen(const std::string& address, std::uint16_t wanted, std::string& error);
    void Accept(std::shared_ptr<tcp::acceptor> from);
    void AcceptLater(std::shared_ptr<tcp::acceptor> from);
    void Serve(tcp::socket socket);
    bool Keep(const std::shared_ptr<IConnection>& connection);
    void Close();

    CServerThreads::State& threads;
    IHttpHandler& handler;
    std::shared_ptr<asio::ssl::context> tls;
    std::mutex mutex;
    std::shared_ptr<tcp::acceptor> acceptor;
    std::vector<std::weak_ptr<IConnection>> connections;
    std::uint16_t port = 0;
};

bool CHttpServer::State::Listen(const std::string& address, std::uint16_t wanted, std::string& error)
{
    ErrorCode failure;
    const auto host = asio::ip::make_address(address, failure);
    const tcp::endpoint endpoint(host, wanted == 0 ? port : wanted);
    auto opened = std::make_shared<tcp::acceptor>(threads.Door());
    if (!failure)
        opened->open(endpoint.protocol(), failure);
    if (!failure)
        opened->set_option(tcp::acceptor::reuse_address(true), failure);
    if (!failure)
        opened->bind(endpoint, failure);
    if (!failure)
        opened->listen(tcp::acceptor::max_listen_connections, failure);
    if (failure) {
        error = failure.message();
        return false;
    }
    std::lock_guard<std::mutex> lock(mutex);
    port = opened->local_endpoint().port();
    acceptor = opened;
    asio::post(opened->get_executor(), [self = shared_from_this(), opened] { self->Accept(opened); });
    return true;
}

void CHttpServer::State::Accept(std::shared_ptr<tcp::acceptor> from)
{
    if (!from->is_open())
        return;
    from->async_accept(threads.Next(),
                       [self = shared_from_this(), from](ErrorCode error, tcp::socket socket) {
                           if (error == asio::error::operation_aborted)
                               return;
                           if (error)
                               return self->AcceptLater(from);
                           self->Serve(std::move(socket));
                           self->Accept(from);
                       });
}

void CHttpServer::State::AcceptLater(std::shared_ptr<tcp::acceptor> from)
{
    auto timer = std::make_shared<asio::steady_timer>(from->get_executor(), kTimeToAcceptAgain);
    timer->async_wait([self = shared_from_this(), from, timer](ErrorCode) { self->Accept(from); });
}

void CHttpServer::State::Serve(tcp::socket socket)
{
    if (!handler.TakesConnection()) {
        ErrorCode ignored;
        socket.set_option(asio::socket_base::linger(true, 0), ignored);
        return;
    }
    const auto run = [this](auto connection) {
        if (Keep(connection))
            connection->Begin();
    };
    if (tls)
        run(std::make_shared<CConnection<TlsStream>>(handler, PlainStream(std::move(socket)), *tls));
    else
        run(std::make_shared<CConnection<PlainStream>>(handler, std::move(socket)));
}

bool CHttpServer::State::Keep(const std::shared_ptr<IConnection>& connection)
{
    std::lock_guard<std::mutex> lock(mutex);
    if (connections.size() >= kConnections)
        connections.erase(std::remove_if(connections.begin(), connections.end(),
                                         [](const auto& weak) { return weak.expired(); }),
                          connections.end());
    if (connections.size() >= kConnections || !acceptor)
        return false;
    connections.push_back(connection);
    return true;
}

void CHttpServer::State::Close()
{
    std::lock_guard<std::mutex> lock(mutex);
    if (acceptor) {
        asio::post(acceptor->get_executor(), [closed = acceptor] {
            ErrorCode ignored;
            closed->close(ignored);
        });
        acceptor.reset();
    }
    for (const auto& weak : connections)
        if (const auto connection = weak.lock())
            connection->Abort();
    connections.clear();
}

CHttpServer::CHttpServer(CServerThreads& threads, IHttpHandler& handler, const TlsIdentity* identity)
    : m_state(std::make_shared<State>(threads.Inner(), handler, identity))
{}

CHttpServer::~CHttpServer()
{
    Close();
}

bool CHttpServer::Listen(const std::string& address, std::uint16_t port, std::string& error)
{
    return m_state->Listen(address, port, error);
}

std::uint16_t CHttpServer::Port() const
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    return m_state->port;
}

bool CHttpServer::IsListening() const
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    return m_state->acceptor != nullptr;
}

void CHttpServer::Close()
{
    m_state->Close();
}

} // namespace simulator
