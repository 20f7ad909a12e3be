#include "LPC_Wire/Poller.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/timerfd.h>
#include <unistd.h>

namespace lpc {
namespace {

constexpr std::uint64_t kWakeKey = ~std::uint64_t{0};
constexpr std::uint64_t kSoonKey = kWakeKey - 1;
constexpr std::size_t kMaxEvents = 64;

/// With nothing wanted the end of a connection is still reported; edge-triggered, it is reported once.
std::uint32_t EpollBits(unsigned wanted)
{
    if (wanted == 0)
        return EPOLLET;
    return ((wanted & kReadable) ? EPOLLIN : 0U) | ((wanted & kWritable) ? EPOLLOUT : 0U);
}

unsigned ReadyBits(std::uint32_t events)
{
    if ((events & (EPOLLERR | EPOLLHUP)) != 0)
        return kReadable | kWritable;
    return ((events & EPOLLIN) ? kReadable : 0U) | ((events & EPOLLOUT) ? kWritable : 0U);
}

} // namespace

struct CPoller::System
{
    const int epoll = epoll_create1(EPOLL_CLOEXEC);
    const int wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    const int soon = timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK);
    const int error = epoll < 0 || wake < 0 || soon < 0 ? errno : 0;

    ~System()
    {
        if (soon >= 0)
            close(soon);
        if (wake >= 0)
            close(wake);
        if (epoll >= 0)
            close(epoll);
    }

    void Control(int operation, SocketHandle handle, std::uint64_t key, std::uint32_t bits) const
    {
        epoll_event event{};
        event.events = bits;
        event.data.u64 = key;
        epoll_ctl(epoll, operation, static_cast<int>(handle), &event);
    }

    /// Eight bytes make an event or a timer quiet again.
    static void Quieten(int handle)
    {
        std::uint64_t ignored = 0;
        (void)!read(handle, &ignored, sizeof ignored);
    }
};

CPoller::CPoller() : m_system(std::make_unique<System>())
{
    m_system->Control(EPOLL_CTL_ADD, m_system->wake, kWakeKey, EPOLLIN);
    m_system->Control(EPOLL_CTL_ADD, m_system->soon, kSoonKey, EPOLLIN);
}

CPoller::~CPoller() = default;

std::string CPoller::Failure() const
{
    return m_system->error == 0 ? std::string()
                                : std::string("no poll handle: ") + std::strerror(m_system->error);
}

void CPoller::Add(SocketHandle handle, std::uint64_t key, unsigned wanted)
{
    m_system->Control(EPOLL_CTL_ADD, handle, key, EpollBits(wanted));
}

void CPoller::Modify(SocketHandle handle, std::uint64_t key, unsigned wanted)
{
    m_system->Control(EPOLL_CTL_MOD, handle, key, EpollBits(wanted));
}

void CPoller::Remove(SocketHandle handle)
{
    m_system->Control(EPOLL_CTL_DEL, handle, 0, 0);
}

std::size_t CPoller::Wait(Event* events, std::size_t count, TimePoint deadline)
{
    epoll_event ready[kMaxEvents];
    const int capacity = static_cast<int>(std::min(count, kMaxEvents));
    const int found = epoll_wait(m_system->epoll, ready, capacity, MillisecondsUntil(deadline));
    std::size_t used = 0;
    for (int i = 0; i < found; ++i) {
        const std::uint64_t key = ready[i].data.u64;
        if (key == kWakeKey) {
            System::Quieten(m_system->wake);
            m_woken.store(false);
        } else if (key == kSoonKey) {
            System::Quieten(m_system->soon);
            m_wakesSoon.store(false);
        } else {
            events[used++] = {key, ReadyBits(ready[i].events)};
        }
    }
    return used;
}

void CPoller::Wake()
{
    if (!m_woken.exchange(true))
        eventfd_write(m_system->wake, 1);
}

void CPoller::WakeSoon()
{
    if (m_wakesSoon || m_wakesSoon.exchange(true))
        return;
    itimerspec once{};
    once.it_value.tv_nsec = std::chrono::nanoseconds(kSoon).count();
    timerfd_settime(m_system->soon, 0, &once, nullptr);
}

} // namespace lpc
