#pragma once

#include "DeviceSessions/DeviceCalls.h"

#include <map>
#include <memory>
#include <random>

/// Who is to be called next. One thread at a time.
namespace devices {

using Clock = std::chrono::steady_clock;

/// One device as it was added; another address makes another one.
struct Watched
{
    DeviceAddress address;
    DeviceStatus status;
    Heard heard;
    std::int32_t login = -1;
    std::chrono::milliseconds pause{}; ///< before the next login
    Clock::time_point due{};
    bool isBusy = false;  ///< somebody calls it
    bool isGone = false;  ///< removed, or replaced
    bool isHasty = false; ///< to be tried again as soon as it is not busy
};
using WatchedPtr = std::shared_ptr<Watched>;

/// Devices by the time at which they are due: those to look at, and those to log in to. Putting one in again
/// replaces its place.
class CSessionSchedule
{
public:
    /// At once, before all that wait.
    void PutFirst(const WatchedPtr& device) { Put(device, {}); }
    /// After the pause or up to a fifth sooner, so that not all come at once.
    void PutAfter(const WatchedPtr& device, std::chrono::milliseconds pause);

    /// A device that is due, which is then busy; null when there is none. Looks come first; mayLogIn: whether
    /// a login may be given.
    WatchedPtr Take(Clock::time_point now, bool mayLogIn);

    /// When Take is worth trying again.
    Clock::time_point Next(bool mayLogIn);

private:
    using Queue = std::multimap<Clock::time_point, WatchedPtr>;

    void Put(const WatchedPtr& device, Clock::time_point due);
    static WatchedPtr TakeFrom(Queue& queue, Clock::time_point now);
    static Clock::time_point FirstOf(Queue& queue);
    static void DropStale(Queue& queue);

    Queue m_looks;
    Queue m_logins;
    std::minstd_rand m_random{std::random_device()()};
};

} // namespace devices
