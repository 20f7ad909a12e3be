#include "LPC_Wire/Poller.h"

#include <algorithm>
#include <mutex>
#include <vector>

#include <winsock2.h>

namespace lpc {
namespace {

struct Watched
{
    SocketHandle handle;
    std::uint64_t key;
    unsigned wanted;
};

WSAPOLLFD ToPoll(const Watched& watched)
{
    WSAPOLLFD entry{};
    entry.fd = static_cast<SOCKET>(watched.handle);
    entry.events = static_cast<SHORT>(((watched.wanted & kReadable) ? POLLRDNORM : 0) |
                                      ((watched.wanted & kWritable) ? POLLWRNORM : 0));
    return entry;
}

unsigned ReadyBits(SHORT events)
{
    if ((events & (POLLERR | POLLHUP | POLLNVAL)) != 0)
        return kReadable | kWritable;
    return ((events & POLLRDNORM) ? kReadable : 0U) | ((events & POLLWRNORM) ? kWritable : 0U);
}

/// A datagram socket connected to itself: what is sent wakes the poll.
SOCKET NewWakeSocket()
{
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
    const SOCKET wake = socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int size = sizeof address;
    bind(wake, reinterpret_cast<const sockaddr*>(&address), size);
    getsockname(wake, reinterpret_cast<sockaddr*>(&address), &size);
    connect(wake, reinterpret_cast<const sockaddr*>(&address), size);
    u_long on = 1;
    ioctlsocket(wake, FIONBIO, &on);
    return wake;
}

} // namespace

struct CPoller::System
{
    const SOCKET wake = NewWakeSocket();
    std::mutex mutex;
    std::vector<Watched> watched;

    ~System() { closesocket(wake); }

    /// Begins with another one each time, so that none is passed over when there are more events than asked
    /// for.
    std::vector<Watched> WithSomethingWanted()
    {
        std::lock_guard<std::mutex> lock(mutex);
        if (!watched.empty())
            std::rotate(watched.begin(), watched.begin() + 1, watched.end());
        std::vector<Watched> wanted;
        std::copy_if(watched.begin(), watched.end(), std::back_inserter(wanted),
                     [](const Watched& entry) { return entry.wanted != 0; });
        return wanted;
    }

    void Drain() const
    {
        char byte;
        while (recv(wake, &byte, 1, 0) > 0) {
        }
    }
};

CPoller::CPoller() : m_system(std::make_unique<System>()) {}

CPoller::~CPoller() = default;

std::string CPoller::Failure() const
{
    return m_system->wake == INVALID_SOCKET ? "no poll handle" : "";
}

void CPoller::Add(SocketHandle handle, std::uint64_t key, unsigned wanted)
{
    {
        std::lock_guard<std::mutex> lock(m_system->mutex);
        m_system->watched.push_back({handle, key, wanted});
    }
    Wake();
}

void CPoller::Modify(SocketHandle handle, std::uint64_t, unsigned wanted)
{
    {
        std::lock_guard<std::mutex> lock(m_system->mutex);
        for (Watched& entry : m_system->watched)
            if (entry.handle == handle)
                entry.wanted = wanted;
    }
    Wake(); // the poll under way has the old wish
}

void CPoller::Remove(SocketHandle handle)
{
    {
        std::lock_guard<std::mutex> lock(m_system->mutex);
        auto& watched = m_system->watched;
        watched.erase(std::remove_if(watched.begin(), watched.end(),
                                     [&](const Watched& entry) { return entry.handle == handle; }),
                      watched.end());
    }
    Wake();
}

std::size_t CPoller::Wait(Event* events, std::size_t count, TimePoint deadline)
{
    const std::vector<Watched> watched = m_system->WithSomethingWanted();
    std::vector<WSAPOLLFD> polled;
    std::transform(watched.begin(), watched.end(), std::back_inserter(polled), ToPoll);
    polled.push_back(ToPoll({static_cast<SocketHandle>(m_system->wake), 0, kReadable}));
    if (WSAPoll(polled.data(), static_cast<ULONG>(polled.size()), MillisecondsUntil(deadline)) <= 0)
        return 0;
    if (polled.back().revents != 0) {
        m_system->Drain();
        m_woken.store(false);
    }
    std::size_t used = 0;
    for (std::size_t i = 0; i < watched.size() && used < count; ++i)
        if (polled[i].revents != 0)
            events[used++] = {watched[i].key, ReadyBits(polled[i].revents)};
    return used;
}

void CPoller::Wake()
{
    if (!m_woken.exchange(true))
        send(m_system->wake, "", 1, 0);
}

/// The system's timers are too coarse for it.
void CPoller::WakeSoon()
{
    Wake();
}

} // namespace lpc
