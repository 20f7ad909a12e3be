#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <mutex>

namespace lpc {

/// Keeps a fault that repeats from filling the log: one line a second for each of Count kinds. Any thread.
template<std::size_t Count>
class CRateLimit
{
public:
    /// Whether a line of this kind may be written now. skipped receives how many were not since the last one.
    bool Allows(std::size_t kind, unsigned& skipped)
    {
        const auto now = std::chrono::steady_clock::now();
        std::lock_guard<std::mutex> lock(m_mutex);
        Entry& entry = m_entries[kind];
        if (entry.used && now - entry.last < std::chrono::seconds(1)) {
            ++entry.skipped;
            return false;
        }
        skipped = entry.skipped;
        entry = {true, now, 0};
        return true;
    }

private:
    struct Entry
    {
        bool used = false;
        std::chrono::steady_clock::time_point last;
        unsigned skipped = 0;
    };

    std::mutex m_mutex;
    std::array<Entry, Count> m_entries;
};

} // namespace lpc
