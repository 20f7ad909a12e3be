#pragma once

#include <cstdint>
#include <optional>

namespace UiDataController {

/// What this process has used, read at one moment.
struct ProcessUsage
{
    std::int64_t wallMs = 0;        ///< milliseconds of a steady clock
    std::int64_t cpuMs = 0;         ///< processor time of all threads since the process started, milliseconds
    std::int64_t residentBytes = 0; ///< memory in use now
};

/// Nothing when the system does not say.
std::optional<ProcessUsage> ReadProcessUsage();

/// The share of one processor between two readings in percent; above 100 with several threads. 0 for readings
/// without time between them.
double CpuPercent(const ProcessUsage& before, const ProcessUsage& after);

} // namespace UiDataController
