#pragma once

#include "LPC_Server/LPC_Server.h"

#include "LPC_Wire/FrameReader.h"
#include "LPC_Wire/Outbound.h"

#include <string>

namespace lpcserver {

/// One connection. Read by the server's thread only; written to from any.
class CServerClient
{
public:
    CServerClient(ClientId id, lpc::CLocalSocket socket, std::size_t sendQueueBytes,
                  lpc::COutbound::Hooks hooks)
        : m_id(id), m_socket(std::move(socket)), m_outbound(m_socket, sendQueueBytes, std::move(hooks))
    {}

    ClientId Id() const { return m_id; }
    lpc::SocketHandle Handle() const { return m_socket.Handle(); }
    lpc::COutbound& Outbound() { return m_outbound; }
    lpc::CFrameReader& Reader() { return m_reader; }

    /// Reads once what has arrived; false when the connection ended.
    bool Read();

    int Post(lpc::Kind kind, RequestId id, const HeaderMap& headers, const std::string& body);
    int Refuse(RequestId id, int error)
    {
        return Post(lpc::Kind::Refusal, id, lpc::RefusalHeaders(error), {});
    }

    /// The name of the hello; empty before it. Set by the server's thread before others know the client.
    std::string name;
    /// What its unfinished bodies take of the server's limit. Of the server's thread.
    std::size_t unfinishedBytes = 0;
    /// Until when the hello must have come; kForever afterwards.
    lpc::TimePoint helloDeadline = lpc::kForever;

private:
    const ClientId m_id;
    lpc::CLocalSocket m_socket;
    lpc::CFrameReader m_reader;
    lpc::COutbound m_outbound;
};

} // namespace lpcserver
