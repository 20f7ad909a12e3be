#include "UiDataController/ProcessUsage.h"

#include <fstream>

#include <time.h>
#include <unistd.h>

namespace UiDataController {

namespace {

std::int64_t Milliseconds(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return static_cast<std::int64_t>(time.tv_sec) * 1000 + time.tv_nsec / 1'000'000;
}

} // namespace

std::optional<ProcessUsage> ReadProcessUsage()
{
    std::ifstream file("/proc/self/statm");
    std::int64_t totalPages = 0;
    std::int64_t residentPages = 0;
    if (!(file >> totalPages >> residentPages))
        return std::nullopt;
    ProcessUsage usage;
    usage.wallMs = Milliseconds(CLOCK_MONOTONIC);
    usage.cpuMs = Milliseconds(CLOCK_PROCESS_CPUTIME_ID);
    usage.residentBytes = residentPages * sysconf(_SC_PAGESIZE);
    return usage;
}

} // namespace UiDataController
