#include "DeviceSessions/SessionSchedule.h"

#include <algorithm>

namespace devices {

void CSessionSchedule::PutAfter(const WatchedPtr& device, std::chrono::milliseconds pause)
{
    std::uniform_int_distribution<long long> sooner(0, pause.count() / 5);
    Put(device, Clock::now() + pause - std::chrono::milliseconds(sooner(m_random)));
}

void CSessionSchedule::Put(const WatchedPtr& device, Clock::time_point due)
{
    device->due = due;
    (device->login < 0 ? m_logins : m_looks).emplace(due, device);
}

WatchedPtr CSessionSchedule::Take(Clock::time_point now, bool mayLogIn)
{
    if (WatchedPtr device = TakeFrom(m_looks, now))
        return device;
    return mayLogIn ? TakeFrom(m_logins, now) : nullptr;
}

Clock::time_point CSessionSchedule::Next(bool mayLogIn)
{
    const Clock::time_point look = FirstOf(m_looks);
    return mayLogIn ? std::min(look, FirstOf(m_logins)) : look;
}

WatchedPtr CSessionSchedule::TakeFrom(Queue& queue, Clock::time_point now)
{
    if (FirstOf(queue) > now)
        return nullptr;
    const WatchedPtr device = queue.begin()->second;
    queue.erase(queue.begin());
    device->isBusy = true;
    return device;
}

Clock::time_point CSessionSchedule::FirstOf(Queue& queue)
{
    DropStale(queue);
    return queue.empty() ? Clock::time_point::max() : queue.begin()->first;
}

// A device that was put in again has left its earlier place behind.
void CSessionSchedule::DropStale(Queue& queue)
{
    const auto isStale = [](const auto& entry) {
        return entry.second->isGone || entry.second->isBusy || entry.second->due != entry.first;
    };
    while (!queue.empty() && isStale(*queue.begin()))
        queue.erase(queue.begin());
}

} // namespace devices
