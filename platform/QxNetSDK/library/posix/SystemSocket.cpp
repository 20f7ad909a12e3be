#include "QxNetSDK/library/transport/SystemSocket.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace sdk::system {

void StartSockets() {}

void AtExit(void (*work)())
{
    (void)std::atexit(work);
}

int LookUp(const std::string& host, std::uint16_t port, bool numericOnly, std::vector<Endpoint>& endpoints)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_NUMERICSERV | (numericOnly ? AI_NUMERICHOST : 0);
    addrinfo* found = nullptr;
    const int result = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found);
    // The numbers of these failures are negative here.
    if (result != 0)
        return result == EAI_SYSTEM ? errno : -result;
    for (const addrinfo* each = found; each; each = each->ai_next) {
        Endpoint endpoint;
        endpoint.family = each->ai_family;
        endpoint.length = each->ai_addrlen;
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
    const int handle = socket(endpoint.family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (handle < 0) {
        error = errno;
        return kNoSocket;
    }
    const int on = 1;
    (void)setsockopt(handle, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    return handle;
}

void Close(SocketHandle socket)
{
    (void)close(static_cast<int>(socket));
}

void ShutDown(SocketHandle socket)
{
    (void)shutdown(static_cast<int>(socket), SHUT_RDWR);
}

void LimitUnsent(SocketHandle socket, int bytes)
{
    (void)setsockopt(static_cast<int>(socket), SOL_SOCKET, SO_SNDBUF, &bytes, sizeof bytes);
}

int StartConnect(SocketHandle socket, const Endpoint& endpoint)
{
    const auto* address = reinterpret_cast<const sockaddr*>(endpoint.bytes.data());
    return connect(static_cast<int>(socket), address, endpoint.length) == 0 ? 0 : errno;
}

int ConnectResult(SocketHandle socket)
{
    int error = 0;
    socklen_t length = sizeof error;
    return getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_ERROR, &error, &length) == 0 ? error : errno;
}

bool IsUnderWay(int error)
{
    return error == EINPROGRESS || error == EINTR;
}

bool WouldBlock(int error)
{
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

unsigned Wait(SocketHandle socket, unsigned readiness, Deadline deadline, const std::atomic<bool>& woken)
{
    pollfd asked{};
    asked.fd = static_cast<int>(socket);
    asked.events =
        static_cast<short>((readiness & kReadable ? POLLIN : 0) | (readiness & kWritable ? POLLOUT : 0));
    while (!woken) {
        const int left = MillisecondsLeft(deadline);
        const int count = poll(&asked, 1, left);
        if (count > 0)
            break;
        if (left == 0 || (count < 0 && errno != EINTR))
            return 0;
    }
    if (woken || asked.revents & (POLLERR | POLLHUP | POLLNVAL))
        return readiness;
    return (asked.revents & POLLIN ? kReadable : 0u) | (asked.revents & POLLOUT ? kWritable : 0u);
}

std::ptrdiff_t Send(SocketHandle socket, const char* data, std::size_t size, int& error)
{
    const ssize_t sent = send(static_cast<int>(socket), data, size, MSG_NOSIGNAL);
    error = sent < 0 ? errno : 0;
    return sent;
}

std::ptrdiff_t Receive(SocketHandle socket, char* data, std::size_t size, int& error)
{
    const ssize_t came = recv(static_cast<int>(socket), data, size, 0);
    error = came < 0 ? errno : 0;
    return came;
}

} // namespace sdk::system
