#include "LPC_Wire/LocalSocket.h"

#include <algorithm>

namespace lpc {

int MillisecondsUntil(TimePoint deadline)
{
    using std::chrono::milliseconds;
    if (deadline == kForever)
        return -1;
    const auto left = std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now());
    return static_cast<int>(std::clamp<long long>(left.count(), 0, 3600 * 1000));
}

} // namespace lpc
