#pragma once

#include "simulator/server/Http.h"

#include <functional>

namespace simulator {

/// The certificate that a server shows and its key, as PEM.
struct TlsIdentity
{
    std::string certificate;
    std::string key;
};

/// The threads on which servers wait and handlers run. Each has its own connections, so that a request costs
/// no change of thread.
class CServerThreads
{
public:
    explicit CServerThreads(unsigned count);
    /// Ends what is under way without finishing it. Servers must be gone before.
    ~CServerThreads();

    CServerThreads(const CServerThreads&) = delete;
    CServerThreads& operator=(const CServerThreads&) = delete;

    void Start();
    /// After it returned, no handler runs and none will.
    void Stop();

    /// Runs the work on one of the threads after a while, unless they were stopped.
    void After(std::chrono::milliseconds delay, std::function<void()> work);

    struct State;
    State& Inner() { return *m_state; }

private:
    std::unique_ptr<State> m_state;
};

/// An HTTP/1.1 server on one port that keeps the limits of the device protocol: 256 connections, 60 seconds
/// for a request from the end of the one before, 16384 octets and 64 lines of headers, a body of 16 MiB.
class CHttpServer
{
public:
    /// identity is null for a server without TLS. The handler and the threads must live as long as the
    /// threads run.
    CHttpServer(CServerThreads& threads, IHttpHandler& handler, const TlsIdentity* identity);
    ~CHttpServer();

    CHttpServer(const CHttpServer&) = delete;
    CHttpServer& operator=(const CHttpServer&) = delete;

    /// Listens; port 0 is any free one, and the same when it is called again. False with the reason in error.
    [[nodiscard]] bool Listen(const std::string& address, std::uint16_t port, std::string& error);
    std::uint16_t Port() const;
    bool IsListening() const;

    /// Ends listening and all connections, from any thread. Listen may follow.
    void Close();

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace simulator
