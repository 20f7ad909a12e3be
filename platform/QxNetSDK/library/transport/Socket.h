#pragma once

#include "QxNetSDK/library/Failure.h"
#include "QxNetSDK/library/transport/Interrupt.h"
#include "QxNetSDK/library/transport/SystemSocket.h"

namespace sdk {

/// How an attempt to send or receive ended.
enum class Io {
    Done,
    Blocked, ///< nothing now: wait and try again
    Ended,   ///< the other side closed the stream
    Lost,    ///< the connection broke; Error says how
};

/// A TCP socket of one connection. One thread at a time, Wake excepted.
class CSocket : public IWaiting
{
public:
    CSocket() = default;
    ~CSocket() override;
    CSocket(const CSocket&) = delete;
    CSocket& operator=(const CSocket&) = delete;

    /// Before anybody may wake it.
    [[nodiscard]] bool Open(const system::Endpoint& endpoint);
    /// UNREACHABLE or CONNECT_TIMEOUT.
    Failure Connect(const system::Endpoint& endpoint, Deadline deadline);

    Io Receive(char* data, std::size_t size, std::size_t& came);
    Io Send(const char* data, std::size_t size, std::size_t& sent);
    /// See system::LimitUnsent.
    void LimitUnsent(int bytes) { system::LimitUnsent(m_handle, bytes); }
    /// See system::Wait; 0 once the deadline has passed, ready or not, so that nobody can go on for ever.
    unsigned Wait(unsigned readiness, Deadline deadline) const;

    /// The system's number of the last failure.
    int Error() const { return m_error; }

    void Wake() override;

private:
    system::SocketHandle m_handle = system::kNoSocket;
    std::atomic<bool> m_isWoken = false;
    int m_error = 0;
};

} // namespace sdk
