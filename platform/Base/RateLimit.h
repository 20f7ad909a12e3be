#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>

namespace Base {

/// Keeps a fault that repeats from filling the log: one line a second for each of Count kinds, after at most
/// Burst at once. Any thread.
template<std::size_t Count, unsigned Burst = 1>
class CRateLimit
{
public:
    using Clock = std::chrono::steady_clock;

    /// Whether a line of this kind may be written now. skipped receives how many were not since the last one.
    bool Allows(std::size_t kind, unsigned& skipped, Clock::time_point now = Clock::now())
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        Entry& entry = m_entries[kind];
        Refill(entry, now);
        if (entry.lines == 0) {
            ++entry.skipped;
            return false;
        }
        --entry.lines;
        skipped = entry.skipped;
        entry.skipped = 0;
        return true;
    }

    /// Forgets what was written.
    void Reset()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_entries = {};
    }

private:
    struct Entry
    {
        Clock::time_point counted; ///< up to when lines were granted
        unsigned lines = Burst;    ///< how many may be written at once
        unsigned skipped = 0;
    };

    static void Refill(Entry& entry, Clock::time_point now)
    {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now - entry.counted);
        if (seconds.count() >= static_cast<long long>(Burst - entry.lines)) {
            entry.lines = Burst;
            entry.counted = now;
        } else {
            entry.lines += static_cast<unsigned>(seconds.count());
            entry.counted += seconds;
        }
    }

    std::mutex m_mutex;
    std::array<Entry, Count> m_entries;
};

/// Grows whenever a log observer is set: what was written before is then no reason to leave out a line.
inline std::atomic<unsigned> g_lineLimitAge{0};

/// The same for one kind of line, whose text stays as it is while nothing was skipped.
template<unsigned Burst>
class CLineLimit
{
public:
    /// What to put behind the line: nothing, or " [skipped-5]". None when the line is to be left out.
    std::optional<std::string> Next()
    {
        unsigned skipped = 0;
        if (const unsigned age = g_lineLimitAge; m_age.exchange(age) != age)
            m_limit.Reset();
        if (!m_limit.Allows(0, skipped))
            return std::nullopt;
        return skipped == 0 ? std::string() : " [skipped-" + std::to_string(skipped) + "]";
    }

private:
    std::atomic<unsigned> m_age{0};
    CRateLimit<1, Burst> m_limit;
};

/// Of lines that one bad message causes: several different ones at once are all seen, a flood is not.
using CFaultLimit = CLineLimit<10>;

/// Of lines that the system wants for each good call.
using CCallLimit = CLineLimit<100>;

} // namespace Base

/// Writes a line of Base/Log.h as far as the limit allows, with the suffix about skipped ones; there must be
/// an argument besides the format: a fixed text is written by "%s". The arguments are evaluated only for
/// lines that are written.
///
///     BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "There is no window [%s] to show.", name.c_str());
#define BASE_LIMITED(Limit, log, format, ...)                                                                \
    do {                                                                                                     \
        static Limit limitOfThisLine;                                                                        \
        if (const auto skippedLines = limitOfThisLine.Next())                                                \
            log(format "%s", __VA_ARGS__, skippedLines->c_str());                                            \
    } while (false)
