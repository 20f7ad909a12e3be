#pragma once

#include <cstdint>
#include <vector>

namespace bench {

/// What the system has counted of a process since its start, and what it holds now. Threads that have ended
/// are left out.
struct ProcessUse
{
    std::int64_t cpuNs = 0;
    std::int64_t wakeUps = 0; ///< how often a thread slept and was woken
    std::int64_t residentKiB = 0;
    std::int64_t shareKiB = 0; ///< of the resident memory, shared pages counted in parts
    std::int64_t threads = 0;
};

ProcessUse UseOf(int process);

/// The processes that a process has started and that run.
std::vector<int> ChildrenOf(int process);

} // namespace bench
