#pragma once

#include "QxNetSDK/library/transport/Deadline.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// What differs between the systems' sockets. Each function is one or two calls of the system.
namespace sdk::system {

using SocketHandle = std::intptr_t;
constexpr SocketHandle kNoSocket = -1;

/// A socket address as the system has it.
struct Endpoint
{
    int family = 0;
    unsigned length = 0;
    alignas(8) std::array<unsigned char, 128> bytes{};
};

/// Must have been called before the others; may be called again.
void StartSockets();

/// Has the work done when the process ends while its other threads still run; never where they do not. May be
/// called once.
void AtExit(void (*work)());

/// Looks a host up; numericOnly: an IP address without asking anybody. 0, or the system's number of the
/// failure. Waits as long as the system likes.
int LookUp(const std::string& host, std::uint16_t port, bool numericOnly, std::vector<Endpoint>& endpoints);

/// A new TCP socket that never blocks, sends at once and is not inherited. kNoSocket and error on failure.
SocketHandle Open(const Endpoint& endpoint, int& error);
void Close(SocketHandle socket);
/// Ends both directions, which wakes who waits for the socket.
void ShutDown(SocketHandle socket);

/// How many bytes that were not sent yet the system may keep, about.
void LimitUnsent(SocketHandle socket, int bytes);

/// 0: connected. IsUnderWay(result): wait until it is writable, then ask ConnectResult. Otherwise why not.
int StartConnect(SocketHandle socket, const Endpoint& endpoint);
int ConnectResult(SocketHandle socket);
bool IsUnderWay(int error);
bool WouldBlock(int error);

enum Readiness : unsigned { kReadable = 1, kWritable = 2 };

/// Waits until the socket is ready in one of the ways, has failed, or the deadline or a wake-up has come.
/// What it is ready for; 0 at the deadline. A failed socket is ready for what was asked.
unsigned Wait(SocketHandle socket, unsigned readiness, Deadline deadline, const std::atomic<bool>& woken);

/// The bytes that went or came, 0 at the end of the stream; -1 and error on failure.
std::ptrdiff_t Send(SocketHandle socket, const char* data, std::size_t size, int& error);
std::ptrdiff_t Receive(SocketHandle socket, char* data, std::size_t size, int& error);

} // namespace sdk::system
