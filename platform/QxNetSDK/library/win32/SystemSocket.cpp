#include "QxNetSDK/library/transport/SystemSocket.h"

#include <algorithm>
#include <cstring>
#include <winsock2.h>
#include <ws2tcpip.h>

namespace sdk::system {

void StartSockets()
{
    WSADATA ignored;
    (void)WSAStartup(MAKEWORD(2, 2), &ignored);
}

// The system has ended all other threads by then, perhaps with a lock in their hands.
void AtExit(void (*)()) {}

int LookUp(const std::string& host, std::uint16_t port, bool numericOnly, std::vector<Endpoint>& endpoints)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_NUMERICSERV | (numericOnly ? AI_NUMERICHOST : 0);
    addrinfo* found = nullptr;
    const int result = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found);
    if (result != 0)
        return result;
    for (const addrinfo* each = found; each; each = each->ai_next) {
        Endpoint endpoint;
        endpoint.family = each->ai_family;
        endpoint.length = static_cast<unsigned>(each->ai_addrlen);
        if (each->ai_addrlen <= endpoint.bytes.size()) {
            std::memcpy(endpoint.bytes.data(), each->ai_addr, each->ai_addrlen);
            endpoints.push_back(endpoint);
        }
    }
    freeaddrinfo(found);
    return 0;
}

SocketHandle Open(const Endpoint& endpoint, int& error)
{
    const SOCKET handle = WSASocketW(endpoint.family, SOCK_STREAM, IPPROTO_TCP, nullptr, 0,
                                     WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
    if (handle == INVALID_SOCKET) {
        error = WSAGetLastError();
        return kNoSocket;
    }
    u_long nonBlocking = 1;
    (void)ioctlsocket(handle, FIONBIO, &nonBlocking);
    const BOOL on = TRUE;
    (void)setsockopt(handle, IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&on), sizeof on);
    return static_cast<SocketHandle>(handle);
}

void Close(SocketHandle socket)
{
    (void)closesocket(static_cast<SOCKET>(socket));
}

void ShutDown(SocketHandle socket)
{
    (void)shutdown(static_cast<SOCKET>(socket), SD_BOTH);
}

void LimitUnsent(SocketHandle socket, int bytes)
{
    (void)setsockopt(static_cast<SOCKET>(socket), SOL_SOCKET, SO_SNDBUF,
                     reinterpret_cast<const char*>(&bytes), sizeof bytes);
}

int StartConnect(SocketHandle socket, const Endpoint& endpoint)
{
    const auto* address = reinterpret_cast<const sockaddr*>(endpoint.bytes.data());
    const int result = connect(static_cast<SOCKET>(socket), address, static_cast<int>(endpoint.length));
    return result == 0 ? 0 : WSAGetLastError();
}

int ConnectResult(SocketHandle socket)
{
    int error = 0;
    int length = sizeof error;
    const int result = getsockopt(static_cast<SOCKET>(socket), SOL_SOCKET, SO_ERROR,
                                  reinterpret_cast<char*>(&error), &length);
    return result == 0 ? error : WSAGetLastError();
}

bool IsUnderWay(int error)
{
    return error == WSAEWOULDBLOCK || error == WSAEINPROGRESS;
}

bool WouldBlock(int error)
{
    return error == WSAEWOULDBLOCK;
}

unsigned Wait(SocketHandle socket, unsigned readiness, Deadline deadline, const std::atomic<bool>& woken)
{
    // Ending a socket does not wake who waits for it here, so the wait is cut into slices.
    constexpr int kSliceMs = 20;
    WSAPOLLFD asked{};
    asked.fd = static_cast<SOCKET>(socket);
    asked.events = static_cast<SHORT>((readiness & kReadable ? POLLRDNORM : 0) |
                                      (readiness & kWritable ? POLLWRNORM : 0));
    while (!woken) {
        const int left = MillisecondsLeft(deadline);
        const int count = WSAPoll(&asked, 1, std::min(left, kSliceMs));
        if (count > 0)
            break;
        if (left == 0 || count < 0)
            return 0;
    }
    if (woken || asked.revents & (POLLERR | POLLHUP | POLLNVAL))
        return readiness;
    return (asked.revents & POLLRDNORM ? kReadable : 0u) | (asked.revents & POLLWRNORM ? kWritable : 0u);
}

std::ptrdiff_t Send(SocketHandle socket, const char* data, std::size_t size, int& error)
{
    const int part = static_cast<int>(std::min<std::size_t>(size, 1 << 20));
    const int sent = send(static_cast<SOCKET>(socket), data, part, 0);
    error = sent < 0 ? WSAGetLastError() : 0;
    return sent;
}

std::ptrdiff_t Receive(SocketHandle socket, char* data, std::size_t size, int& error)
{
    const int part = static_cast<int>(std::min<std::size_t>(size, 1 << 20));
    const int came = recv(static_cast<SOCKET>(socket), data, part, 0);
    error = came < 0 ? WSAGetLastError() : 0;
    return came;
}

} // namespace sdk::system
