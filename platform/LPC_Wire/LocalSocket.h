#pragma once

#include "LPC_Wire/Span.h"

#include <chrono>
#include <cstdint>
#include <string>

/// The thin layer over the system's local stream sockets. What fails without a word here is told by the
/// caller, which knows the connection.
namespace lpc {

using TimePoint = std::chrono::steady_clock::time_point;
constexpr TimePoint kForever = TimePoint::max();

/// The moment that lies timeoutMs milliseconds ahead; 0 is never.
inline TimePoint DeadlineAfter(std::uint32_t timeoutMs)
{
    return timeoutMs == 0 ? kForever
                          : std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
}

/// The time left as the system's polls take it: whole milliseconds, at most an hour, rounded up so that the
/// deadline has come when the wait ends; -1 is never.
int MillisecondsUntil(TimePoint deadline);

using SocketHandle = std::intptr_t;
constexpr SocketHandle kNoSocket = -1;

enum Readiness : unsigned { kReadable = 1, kWritable = 2 };

enum class IoState { Done, WouldBlock, Closed };

struct IoResult
{
    IoState state = IoState::Closed;
    std::size_t bytes = 0;
};

/// Owns one end of a connection. Reading, writing and waiting may go on in different threads at once.
class CLocalSocket
{
public:
    CLocalSocket() = default;
    explicit CLocalSocket(SocketHandle handle) : m_handle(handle) {}
    ~CLocalSocket() { Close(); }
    CLocalSocket(CLocalSocket&& other) noexcept : m_handle(other.m_handle) { other.m_handle = kNoSocket; }
    CLocalSocket& operator=(CLocalSocket&& other) noexcept;

    /// Connects to the listener at the path; an invalid socket, and the system's reason in why, when there is
    /// none.
    static CLocalSocket Connect(const std::string& path, TimePoint deadline, std::string& why);

    bool IsValid() const { return m_handle != kNoSocket; }
    SocketHandle Handle() const { return m_handle; }

    /// Whether the process at the other end belongs to the user of this one.
    bool PeerIsThisUser() const;

    /// Writes in one call what the socket takes at once. At most kMaxSpans spans are looked at.
    IoResult Write(const ConstSpan* spans, std::size_t count);
    static constexpr std::size_t kMaxSpans = 64;

    /// Reads in one call what has arrived, at most two spans full.
    IoResult Read(const MutableSpan* spans, std::size_t count);

    /// The same, waiting up to timeoutMs milliseconds (0: for ever) for the first byte. Only one thread may
    /// use it.
    IoResult ReadWaiting(const MutableSpan* spans, std::size_t count, std::uint32_t timeoutMs);

    /// Waits until one of the wanted Readiness bits, or the end of the connection, holds; 0 when the deadline
    /// came first.
    unsigned Wait(unsigned wanted, TimePoint deadline) const;

    /// Whether the other end is gone, so that nothing more comes than what the system still holds.
    bool HasHungUp() const;

    /// Ends the connection in both directions and wakes everybody who waits for it; the handle stays until
    /// Close.
    void Shutdown();
    void Close();

private:
    SocketHandle m_handle = kNoSocket;
    std::uint32_t m_readTimeoutMs = 0;
};

/// Listens at a path of the runtime folder, and holds the lock that keeps a second listener away. The lock
/// goes with the process, so the socket of a dead one is replaced.
class CLocalListener
{
public:
    CLocalListener() = default;
    ~CLocalListener() { Close(); }
    CLocalListener(const CLocalListener&) = delete;
    CLocalListener& operator=(const CLocalListener&) = delete;

    /// False, and the reason in why, when a living process listens there or the system refuses.
    bool Listen(const std::string& path, std::string& why);

    /// The next connection. WouldBlock: none is waiting; Closed: the system gives no more just now.
    IoState Accept(CLocalSocket& socket);

    SocketHandle Handle() const { return m_handle; }
    void Close();

private:
    bool Lock(const std::string& path, std::string& why);

    SocketHandle m_handle = kNoSocket;
    std::intptr_t m_lock = -1;
    std::string m_path;
};

/// The folder of this user's sockets, made and checked (owner, no access for others); empty, with the reason
/// in why, when it cannot be had. Ends in "/".
std::string RuntimeFolder(std::string& why);

/// The longest path that a socket's address holds.
std::size_t MaxSocketPath();

} // namespace lpc
