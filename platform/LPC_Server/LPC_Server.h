#pragma once

#include "LPC_Wire/Records.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

/// The server end of the local channel.
namespace lpcserver {

using lpc::HeaderMap;
using lpc::RequestId;

/// Identifies a connected client; never used again in a process.
using ClientId = std::uint64_t;

/// What happens at a server. Called on the server's own thread, one call at a time; must return quickly.
class IServerEvents
{
public:
    virtual ~IServerEvents() = default;

    /// A client passed the hello.
    virtual void OnClientConnected(ClientId client, const std::string& name) = 0;
    virtual void OnClientDisconnected(ClientId client) = 0;

    /// A request (requestId not 0; answer it with Reply, now or later, from any thread) or notification.
    virtual void OnData(ClientId client, const lpc::CallBackData& data) = 0;
};

/// Takes the answer to a request on the server's thread; error is lpc::kNoError, or why there is none.
using AnswerCallBack = std::function<void(int error, const lpc::Message& answer)>;

/// What a server bears. The defaults are those that docs/lpc-protocol.md states.
struct ServerLimits
{
    std::size_t clients = 64; ///< connections at a time; more are refused with lpc::kTryAgain
    std::size_t sendQueueBytes = 16 * 1024 * 1024; ///< for each client; a full queue gives lpc::kTryAgain
    /// Bytes of bodies begun and not finished, over all connections: whose body goes beyond it is closed.
    std::size_t unfinishedBytes = 256 * 1024 * 1024;
    std::chrono::milliseconds helloTimeout{5000};  ///< for a new connection to say hello
    std::chrono::milliseconds stallTimeout{30000}; ///< for a client to read something of what waits for it
};

/// A listening socket with its clients and the thread that serves them. All functions may be called from any
/// thread, also from within events; results are lpc::Error numbers.
class CLPCServer
{
public:
    explicit CLPCServer(IServerEvents& events, const ServerLimits& limits = {});
    /// Stops; must not run inside an event.
    ~CLPCServer();

    CLPCServer(const CLPCServer&) = delete;
    CLPCServer& operator=(const CLPCServer&) = delete;

    /// Listens under the name in this user's data root. A socket that a dead server left behind is replaced;
    /// that of a living one gives lpc::kCannotListen.
    [[nodiscard]] int Start(const std::string& serverName);

    /// Closes all connections and ends the thread; waiting requests fail with lpc::kConnectionLost. Clients
    /// that read get what waits for them, within lpc::kServerFarewellMs in all. May be called again. From
    /// within an event the thread ends after that event.
    void Stop();

    /// While not accepting, connected clients' requests are refused with lpc::kTryAgain. Accepting at the
    /// start.
    void SetAccepting(bool accepting);

    /// Sends a notification. lpc::kTryAgain: the client's send queue is full; lpc::kNotConnected: there is no
    /// such client.
    [[nodiscard]] int Notify(ClientId client, const lpc::Message& notification);

    /// Answers a request of that client; errors as for Notify.
    [[nodiscard]] int Reply(ClientId client, const lpc::ReplyData& reply);

    /// Sends a request. onAnswer is called exactly once when the result is lpc::kNoError, after timeoutMs
    /// milliseconds (0: the end of the connection) at the latest, and never otherwise.
    [[nodiscard]] int Send(ClientId client, const lpc::Message& request, std::uint32_t timeoutMs,
                           AnswerCallBack onAnswer);

    /// The same, waiting for the answer. Not from within an event.
    [[nodiscard]] int SendEx(ClientId client, const lpc::Message& request, std::uint32_t timeoutMs,
                             lpc::Message& answer);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace lpcserver
