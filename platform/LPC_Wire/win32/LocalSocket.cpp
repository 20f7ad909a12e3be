#include "LPC_Wire/LocalSocket.h"

#include <algorithm>
#include <cstring>

#include <winsock2.h>

#include <afunix.h>

namespace lpc {
namespace {

/// Winsock is started with the first socket and stays until the process ends.
void StartWinsock()
{
    static const int started = [] {
        WSADATA data;
        return WSAStartup(MAKEWORD(2, 2), &data);
    }();
    (void)started;
}

SOCKET Socket(SocketHandle handle)
{
    return static_cast<SOCKET>(handle);
}

std::string Reason(const char* what)
{
    return std::string(what) + ": Winsock error " + std::to_string(WSAGetLastError());
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

void SetNonBlocking(SOCKET socket)
{
    u_long on = 1;
    ioctlsocket(socket, FIONBIO, &on);
}

} // namespace

CLocalSocket& CLocalSocket::operator=(CLocalSocket&& other) noexcept
{
    std::swap(m_handle, other.m_handle);
    std::swap(m_readTimeoutMs, other.m_readTimeoutMs);
    return *this;
}

CLocalSocket CLocalSocket::Connect(const std::string& path, TimePoint, std::string& why)
{
    StartWinsock();
    sockaddr_un address;
    if (!MakeAddress(path, address)) {
        why = "path too long";
        return {};
    }
    CLocalSocket result(static_cast<SocketHandle>(socket(AF_UNIX, SOCK_STREAM, 0)));
    if (!result.IsValid() ||
        connect(Socket(result.Handle()), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        why = Reason("connect");
        return {};
    }
    SetNonBlocking(Socket(result.Handle()));
    return result;
}

/// The system names no user for the other end; the folder of the sockets admits only this one.
bool CLocalSocket::PeerIsThisUser() const
{
    return true;
}

IoResult CLocalSocket::Write(const ConstSpan* spans, std::size_t count)
{
    WSABUF parts[kMaxSpans];
    count = std::min(count, kMaxSpans);
    for (std::size_t i = 0; i < count; ++i)
        parts[i] = {static_cast<ULONG>(spans[i].size), const_cast<char*>(spans[i].data)};
    DWORD bytes = 0;
    if (WSASend(Socket(m_handle), parts, static_cast<DWORD>(count), &bytes, 0, nullptr, nullptr) == 0)
        return {IoState::Done, bytes};
    return {WSAGetLastError() == WSAEWOULDBLOCK ? IoState::WouldBlock : IoState::Closed, 0};
}

IoResult CLocalSocket::Read(const MutableSpan* spans, std::size_t count)
{
    WSABUF parts[2];
    count = std::min<std::size_t>(count, 2);
    for (std::size_t i = 0; i < count; ++i)
        parts[i] = {static_cast<ULONG>(spans[i].size), spans[i].data};
    DWORD bytes = 0;
    DWORD flags = 0;
    if (WSARecv(Socket(m_handle), parts, static_cast<DWORD>(count), &bytes, &flags, nullptr, nullptr) == 0)
        return {bytes > 0 ? IoState::Done : IoState::Closed, bytes};
    return {WSAGetLastError() == WSAEWOULDBLOCK ? IoState::WouldBlock : IoState::Closed, 0};
}

IoResult CLocalSocket::ReadWaiting(const MutableSpan* spans, std::size_t count, std::uint32_t timeoutMs)
{
    if (Wait(kReadable, DeadlineAfter(timeoutMs)) == 0)
        return {IoState::WouldBlock, 0};
    return Read(spans, count);
}

unsigned CLocalSocket::Wait(unsigned wanted, TimePoint deadline) const
{
    WSAPOLLFD watched{};
    watched.fd = Socket(m_handle);
    watched.events =
        static_cast<SHORT>(((wanted & kReadable) ? POLLRDNORM : 0) | ((wanted & kWritable) ? POLLWRNORM : 0));
    if (WSAPoll(&watched, 1, MillisecondsUntil(deadline)) <= 0)
        return 0;
    if ((watched.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0)
        return wanted;
    return ((watched.revents & POLLRDNORM) ? kReadable : 0U) |
           ((watched.revents & POLLWRNORM) ? kWritable : 0U);
}

bool CLocalSocket::HasHungUp() const
{
    WSAPOLLFD watched{};
    watched.fd = Socket(m_handle);
    return WSAPoll(&watched, 1, 0) > 0 && (watched.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0;
}

void CLocalSocket::Shutdown()
{
    shutdown(Socket(m_handle), SD_BOTH);
}

void CLocalSocket::Close()
{
    if (m_handle != kNoSocket)
        closesocket(Socket(m_handle));
    m_handle = kNoSocket;
}

/// A file that nobody else may open while this process has it, and that goes with the process.
bool CLocalListener::Lock(const std::string& path, std::string& why)
{
    const HANDLE lock = CreateFileA((path + ".lock").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (lock == INVALID_HANDLE_VALUE) {
        why = "a living process listens there, or the lock file cannot be made";
        return false;
    }
    m_lock = reinterpret_cast<std::intptr_t>(lock);
    return true;
}

bool CLocalListener::Listen(const std::string& path, std::string& why)
{
    StartWinsock();
    sockaddr_un address;
    if (!MakeAddress(path, address)) {
        why = "path too long";
        return false;
    }
    if (!Lock(path, why))
        return false;
    DeleteFileA(path.c_str());
    m_handle = static_cast<SocketHandle>(socket(AF_UNIX, SOCK_STREAM, 0));
    if (m_handle == kNoSocket ||
        bind(Socket(m_handle), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        listen(Socket(m_handle), SOMAXCONN) != 0) {
        why = Reason("listen");
        Close();
        return false;
    }
    SetNonBlocking(Socket(m_handle));
    m_path = path;
    return true;
}

IoState CLocalListener::Accept(CLocalSocket& socket)
{
    const SOCKET handle = accept(Socket(m_handle), nullptr, nullptr);
    if (handle == INVALID_SOCKET) {
        const int error = WSAGetLastError();
        return error == WSAEWOULDBLOCK || error == WSAECONNRESET ? IoState::WouldBlock : IoState::Closed;
    }
    SetNonBlocking(handle);
    socket = CLocalSocket(static_cast<SocketHandle>(handle));
    return IoState::Done;
}

void CLocalListener::Close()
{
    if (m_handle != kNoSocket)
        closesocket(Socket(m_handle));
    m_handle = kNoSocket;
    if (!m_path.empty())
        DeleteFileA(m_path.c_str());
    m_path.clear();
    if (m_lock != -1)
        CloseHandle(reinterpret_cast<HANDLE>(m_lock));
    m_lock = -1;
}

std::size_t MaxSocketPath()
{
    return UNIX_PATH_MAX - 1;
}

} // namespace lpc
