#include "UiDataController/ProcessUsage.h"

#include <windows.h>

#include <psapi.h>

namespace UiDataController {

namespace {

/// A file time counts units of 100 ns.
std::int64_t Milliseconds(const FILETIME& time)
{
    return ((static_cast<std::int64_t>(time.dwHighDateTime) << 32) | time.dwLowDateTime) / 10'000;
}

} // namespace

std::optional<ProcessUsage> ReadProcessUsage()
{
    FILETIME created, exited, kernel, user;
    PROCESS_MEMORY_COUNTERS memory = {};
    if (!GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernel, &user) ||
        !K32GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof(memory)))
        return std::nullopt;
    ProcessUsage usage;
    usage.wallMs = static_cast<std::int64_t>(GetTickCount64());
    usage.cpuMs = Milliseconds(kernel) + Milliseconds(user);
    usage.residentBytes = static_cast<std::int64_t>(memory.WorkingSetSize);
    return usage;
}

} // namespace UiDataController
