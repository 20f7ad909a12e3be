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
    return m_outbound.Post(lpc::CFrameSet(kind, id, headers, body));
}

} // namespace lpcserver
