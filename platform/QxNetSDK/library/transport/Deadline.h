#pragma once

#include <algorithm>
#include <chrono>

namespace sdk {

using Clock = std::chrono::steady_clock;
using Deadline = Clock::time_point;

/// Milliseconds that are left, rounded up; 0 when the deadline has passed.
inline int MillisecondsLeft(Deadline deadline)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
    return static_cast<int>(std::clamp<long long>(left, 0, 24 * 60 * 60 * 1000));
}

} // namespace sdk
