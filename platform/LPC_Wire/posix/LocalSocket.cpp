#include "LPC_Wire/LocalSocket.h"

#include <cerrno>
#include <cstring>

#include <algorithm>
#include <cmath>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <unistd.h>

namespace lpc {
namespace {

using std::chrono::duration_cast;
using std::chrono::microseconds;
using std::chrono::nanoseconds;
using std::chrono::seconds;

/// What the system allows at most without privileges; fewer turns between the two ends for long bodies.
constexpr int kSocketBufferBytes = 1024 * 1024;

constexpr int kEndOfConnection = POLLERR | POLLHUP | POLLNVAL;

std::string Reason(const char* what)
{
    return std::string(what) + ": " + std::strerror(errno);
}

bool MakeAddress(const std::string& path, sockaddr_un& address)
{
    address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, path.data(), path.size());
    return true;
}

int NewSocket()
{
    const int handle = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (handle >= 0)
        setsockopt(handle, SOL_SOCKET, SO_SNDBUF, &kSocketBufferBytes, sizeof kSocketBufferBytes);
    return handle;
}

timeval ToTimeval(nanoseconds time)
{
    const auto whole = duration_cast<seconds>(time);
    timeval value{};
    value.tv_sec = static_cast<time_t>(whole.count());
    value.tv_usec = static_cast<suseconds_t>(duration_cast<microseconds>(time - whole).count());
    return value;
}

/// For kForever the result means nothing.
timespec TimeUntil(TimePoint deadline)
{
    const nanoseconds time =
        std::max<nanoseconds>(deadline - std::chrono::steady_clock::now(), nanoseconds(0));
    timespec value{};
    value.tv_sec = static_cast<time_t>(duration_cast<seconds>(time).count());
    value.tv_nsec = static_cast<long>((time % seconds(1)).count());
    return value;
}

IoResult ReadResult(ssize_t bytes)
{
    if (bytes > 0)
        return {IoState::Done, static_cast<std::size_t>(bytes)};
    const bool again = bytes < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR);
    return {again ? IoState::WouldBlock : IoState::Closed, 0};
}

IoResult WriteResult(ssize_t bytes)
{
    if (bytes >= 0)
        return {IoState::Done, static_cast<std::size_t>(bytes)};
    const bool again = errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR || errno == ENOBUFS;
    return {again ? IoState::WouldBlock : IoState::Closed, 0};
}

IoResult Receive(SocketHandle handle, const MutableSpan* spans, std::size_t count, int flags)
{
    if (count == 1 || spans[1].size == 0)
        return ReadResult(recv(static_cast<int>(handle), spans[0].data, spans[0].size, flags));
    iovec parts[2];
    count = std::min<std::size_t>(count, 2);
    for (std::size_t i = 0; i < count; ++i)
        parts[i] = {spans[i].data, spans[i].size};
    msghdr message{};
    message.msg_iov = parts;
    message.msg_iovlen = count;
    return ReadResult(recvmsg(static_cast<int>(handle), &message, flags));
}

} // namespace

CLocalSocket& CLocalSocket::operator=(CLocalSocket&& other) noexcept
{
    std::swap(m_handle, other.m_handle);
    std::swap(m_readTimeoutMs, other.m_readTimeoutMs);
    return *this;
}

CLocalSocket CLocalSocket::Connect(const std::string& path, TimePoint deadline, std::string& why)
{
    sockaddr_un address;
    if (!MakeAddress(path, address)) {
        why = "path too long";
        return {};
    }
    CLocalSocket socket(NewSocket());
    if (!socket.IsValid()) {
        why = Reason("socket");
        return {};
    }
    const int handle = static_cast<int>(socket.Handle());
    const nanoseconds left =
        std::max<nanoseconds>(deadline - std::chrono::steady_clock::now(), std::chrono::milliseconds(1));
    const timeval timeout = ToTimeval(left);
    setsockopt(handle, SOL_SOCKET, SO_SNDTIMEO, &timeout, sizeof timeout);
    while (connect(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        if (errno == EINTR && std::chrono::steady_clock::now() < deadline)
            continue;
        why = Reason("connect");
        return {};
    }
    return socket;
}

bool CLocalSocket::PeerIsThisUser() const
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(static_cast<int>(m_handle), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == geteuid();
}

IoResult CLocalSocket::Write(const ConstSpan* spans, std::size_t count)
{
    constexpr int kFlags = MSG_DONTWAIT | MSG_NOSIGNAL;
    if (count == 1)
        return WriteResult(send(static_cast<int>(m_handle), spans[0].data, spans[0].size, kFlags));
    iovec parts[kMaxSpans];
    count = std::min(count, kMaxSpans);
    for (std::size_t i = 0; i < count; ++i)
        parts[i] = {const_cast<char*>(spans[i].data), spans[i].size};
    msghdr message{};
    message.msg_iov = parts;
    message.msg_iovlen = count;
    return WriteResult(sendmsg(static_cast<int>(m_handle), &message, kFlags));
}

IoResult CLocalSocket::Read(const MutableSpan* spans, std::size_t count)
{
    return Receive(m_handle, spans, count, MSG_DONTWAIT);
}

IoResult CLocalSocket::ReadWaiting(const MutableSpan* spans, std::size_t count, std::uint32_t timeoutMs)
{
    if (timeoutMs != m_readTimeoutMs) {
        const timeval timeout = ToTimeval(std::chrono::milliseconds(timeoutMs));
        setsockopt(static_cast<int>(m_handle), SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
        m_readTimeoutMs = timeoutMs;
    }
    return Receive(m_handle, spans, count, 0);
}

unsigned CLocalSocket::Wait(unsigned wanted, TimePoint deadline) const
{
    pollfd watched{static_cast<int>(m_handle), 0, 0};
    watched.events =
        static_cast<short>(((wanted & kReadable) ? POLLIN : 0) | ((wanted & kWritable) ? POLLOUT : 0));
    int found = 0;
    do {
        const timespec left = TimeUntil(deadline);
        found = ppoll(&watched, 1, deadline == kForever ? nullptr : &left, nullptr);
    } while (found < 0 && errno == EINTR);
    if (found <= 0)
        return 0;
    if ((watched.revents & kEndOfConnection) != 0)
        return wanted;
    return ((watched.revents & POLLIN) ? kReadable : 0U) | ((watched.revents & POLLOUT) ? kWritable : 0U);
}

bool CLocalSocket::HasHungUp() const
{
    pollfd watched{static_cast<int>(m_handle), 0, 0};
    return poll(&watched, 1, 0) > 0 && (watched.revents & kEndOfConnection) != 0;
}

void CLocalSocket::Shutdown()
{
    shutdown(static_cast<int>(m_handle), SHUT_RDWR);
}

void CLocalSocket::Close()
{
    if (m_handle != kNoSocket)
        close(static_cast<int>(m_handle));
    m_handle = kNoSocket;
}

bool CLocalListener::Lock(const std::string& path, std::string& why)
{
    const int lock = open((path + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (lock < 0) {
        why = Reason("lock file");
        return false;
    }
    m_lock = lock;
    if (flock(lock, LOCK_EX | LOCK_NB) == 0)
        return true;
    why = errno == EWOULDBLOCK ? "a living process listens there" : Reason("flock");
    return false;
}

bool CLocalListener::Listen(const std::string& path, std::string& why)
{
    sockaddr_un address;
    if (!MakeAddress(path, address)) {
        why = "path too long";
        return false;
    }
    if (!Lock(path, why)) {
        Close();
        return false;
    }
    unlink(path.c_str());
    m_handle = NewSocket();
    const int handle = static_cast<int>(m_handle);
    if (handle < 0 || bind(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        chmod(path.c_str(), 0600) != 0 || listen(handle, SOMAXCONN) != 0 ||
        fcntl(handle, F_SETFL, O_NONBLOCK) != 0) {
        why = Reason("listen");
        Close();
        return false;
    }
    m_path = path;
    return true;
}

IoState CLocalListener::Accept(CLocalSocket& socket)
{
    const int handle = accept4(static_cast<int>(m_handle), nullptr, nullptr, SOCK_CLOEXEC);
    if (handle < 0) {
        const bool none = errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR || errno == ECONNABORTED;
        return none ? IoState::WouldBlock : IoState::Closed;
    }
    setsockopt(handle, SOL_SOCKET, SO_SNDBUF, &kSocketBufferBytes, sizeof kSocketBufferBytes);
    socket = CLocalSocket(handle);
    return IoState::Done;
}

void CLocalListener::Close()
{
    if (!m_path.empty())
        unlink(m_path.c_str()); // before the lock goes, so that it is never a successor's socket
    m_path.clear();
    if (m_handle != kNoSocket)
        close(static_cast<int>(m_handle));
    m_handle = kNoSocket;
    if (m_lock >= 0)
        close(static_cast<int>(m_lock));
    m_lock = -1;
}

std::size_t MaxSocketPath()
{
    return sizeof sockaddr_un{}.sun_path - 1;
}

} // namespace lpc
