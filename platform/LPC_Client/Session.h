#pragma once

#include "LPC_Client/Connection.h"

#include <memory>
#include <thread>

namespace lpcclient {

/// What lives from Init to Uninit: the client's name, the library's thread, the receiver and the connection.
/// Shared with its thread, so that it may be ended from within a callback.
class CSession : public std::enable_shared_from_this<CSession>
{
public:
    CSession(std::string name, bool traceTraffic);

    /// False, with a line in the log, when the system has no handles left.
    bool Start();

    /// Ends connection and thread; waits for the thread unless called on it.
    void Stop();

    int Connect(const std::string& serverName);
    void Disconnect();
    void SetReceiver(InvokeCallBack callback, void* user);

    int Send(const lpc::Message& request, AnswerCallBack onAnswer, RequestId& id);
    int SendEx(lpc::Message& answer, const lpc::Message& request, RequestId& id, std::uint32_t timeoutMs);
    int Notify(const lpc::Message& notification);
    int Reply(const lpc::ReplyData& reply);

private:
    void Run();
    bool DeliverSome();
    void FlushOrdered();
    void OnEvent(const lpc::CPoller::Event& event);
    void Refuse(RequestId id);
    int Open(const std::string& serverName, lpc::CLocalSocket& socket, lpc::CFrameReader& reader) const;
    int ExchangeHello(lpc::CLocalSocket& socket, lpc::CFrameReader& reader, lpc::TimePoint deadline) const;
    std::shared_ptr<CConnection> Connection() const;
    InvokeCallBack Traced(InvokeCallBack callback) const;
    void Trace(const char* what, RequestId id, const HeaderMap& headers, std::size_t bodyBytes) const;

    const std::string m_name;
    const bool m_traceTraffic;
    lpc::CPoller m_poller;
    lpc::CFlushOrders m_orders{m_poller};
    CInbound m_inbound;
    std::thread m_thread;
    std::atomic<bool> m_stop{false};
    std::atomic<RequestId> m_lastId{0};

    std::mutex m_connecting; ///< one Connect or Disconnect at a time
    mutable std::mutex m_mutex;
    std::shared_ptr<CConnection> m_connection;
    std::uint64_t m_key = 0;
    bool m_ending = false; ///< no connection is made any more
};

} // namespace lpcclient
