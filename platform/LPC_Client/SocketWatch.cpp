#include "LPC_Client/SocketWatch.h"

namespace lpcclient {

CSocketWatch::CSocketWatch(lpc::CPoller& poller, lpc::SocketHandle handle, std::uint64_t key)
    : m_poller(poller), m_handle(handle), m_key(key)
{}

void CSocketWatch::Start()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state != State::New)
        return;
    m_state = State::Watching;
    m_poller.Add(m_handle, m_key, m_wanted);
}

void CSocketWatch::Stop()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state == State::Watching)
        m_poller.Remove(m_handle);
    m_state = State::Stopped;
}

void CSocketWatch::Set(unsigned bit, bool on)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const unsigned wanted = on ? m_wanted | bit : m_wanted & ~bit;
    if (wanted == m_wanted)
        return;
    m_wanted = wanted;
    if (m_state == State::Watching)
        m_poller.Modify(m_handle, m_key, m_wanted);
}

} // namespace lpcclient
