#include "QxNetSDK/library/transport/Socket.h"

namespace sdk {

CSocket::~CSocket()
{
    if (m_handle != system::kNoSocket)
        system::Close(m_handle);
}

bool CSocket::Open(const system::Endpoint& endpoint)
{
    m_handle = system::Open(endpoint, m_error);
    return m_handle != system::kNoSocket;
}

Failure CSocket::Connect(const system::Endpoint& endpoint, Deadline deadline)
{
    m_error = system::StartConnect(m_handle, endpoint);
    if (system::IsUnderWay(m_error)) {
        if (Wait(system::kWritable, deadline) == 0)
            return {QXNET_ERROR_CONNECT_TIMEOUT};
        m_error = system::ConnectResult(m_handle);
    }
    if (m_error != 0 || m_isWoken)
        return {QXNET_ERROR_UNREACHABLE, static_cast<std::uint32_t>(m_error)};
    return {};
}

Io CSocket::Receive(char* data, std::size_t size, std::size_t& came)
{
    const std::ptrdiff_t count = system::Receive(m_handle, data, size, m_error);
    came = count > 0 ? static_cast<std::size_t>(count) : 0;
    if (count == 0)
        return Io::Ended;
    if (count > 0)
        return Io::Done;
    return system::WouldBlock(m_error) ? Io::Blocked : Io::Lost;
}

Io CSocket::Send(const char* data, std::size_t size, std::size_t& sent)
{
    const std::ptrdiff_t count = system::Send(m_handle, data, size, m_error);
    sent = count > 0 ? static_cast<std::size_t>(count) : 0;
    if (count >= 0)
        return Io::Done;
    return system::WouldBlock(m_error) ? Io::Blocked : Io::Lost;
}

unsigned CSocket::Wait(unsigned readiness, Deadline deadline) const
{
    return Clock::now() >= deadline ? 0 : system::Wait(m_handle, readiness, deadline, m_isWoken);
}

void CSocket::Wake()
{
    m_isWoken = true;
    system::ShutDown(m_handle);
}

} // namespace sdk
