#pragma once

#include "QxNetSDK/library/transport/Socket.h"

#include <memory>

namespace sdk {

/// What a connection reads and writes: the socket itself, or TLS over it. Attempts that never wait. One
/// thread at a time.
class IStream
{
public:
    virtual ~IStream() = default;

    virtual Io Receive(char* data, std::size_t size, std::size_t& came) = 0;
    virtual Io Send(const char* data, std::size_t size, std::size_t& sent) = 0;
    /// What the socket must be ready for before what was blocked may go on.
    virtual unsigned Wanted() const = 0;
};

/// The socket itself.
class CPlainStream : public IStream
{
public:
    explicit CPlainStream(CSocket& socket) : m_socket(socket) {}

    Io Receive(char* data, std::size_t size, std::size_t& came) override
    {
        m_wanted = system::kReadable;
        return m_socket.Receive(data, size, came);
    }
    Io Send(const char* data, std::size_t size, std::size_t& sent) override
    {
        m_wanted = system::kWritable;
        return m_socket.Send(data, size, sent);
    }
    unsigned Wanted() const override { return m_wanted; }

private:
    CSocket& m_socket;
    unsigned m_wanted = system::kReadable;
};

} // namespace sdk
