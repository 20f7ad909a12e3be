#include "LPC_Server/ServerClient.h"

namespace lpcserver {

bool CServerClient::Read()
{
    const auto room = m_reader.Room();
    const lpc::IoResult result = m_socket.Read(room.data(), room.size());
    m_reader.Commit(result.bytes);
    return result.state != lpc::IoState::Closed;
}

int CServerClient::Post(lpc::Kind kind, RequestId id, const HeaderMap& headers, const std::string& body)
{
    using Urgency = lpc::COutbound::Urgency;
    return m_outbound.Post(lpc::CFrameSet(kind, id, headers, body),
                           kind == lpc::Kind::Notification ? Urgency::MayWait : Urgency::AtOnce);
}

} // namespace lpcserver
