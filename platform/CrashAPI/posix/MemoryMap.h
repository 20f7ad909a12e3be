#pragma once

#include "CrashAPI/posix/SafeFiles.h"

#include <cstdint>

namespace crash {

/// A range of the process's memory.
struct Mapping
{
    std::uint64_t start = 0;
    std::uint64_t end = 0;
    bool runs = false;        ///< Its content may be executed.
    std::uint64_t offset = 0; ///< In the file.
    const char* path = "";    ///< The file, or a name in brackets; valid until the next one is read.
};

/// The system's list of them, by rising addresses. Safe in a signal handler.
class MemoryMap
{
public:
    MemoryMap() : m_lines("/proc/self/maps") {}

    /// False behind the last one.
    bool Next(Mapping& mapping);

private:
    LineReader m_lines;
};

} // namespace crash
