#include "UiDataController/ProcessUsage.h"

namespace UiDataController {

double CpuPercent(const ProcessUsage& before, const ProcessUsage& after)
{
    const std::int64_t wall = after.wallMs - before.wallMs;
    return wall > 0 ? 100.0 * static_cast<double>(after.cpuMs - before.cpuMs) / static_cast<double>(wall) : 0;
}

} // namespace UiDataController
