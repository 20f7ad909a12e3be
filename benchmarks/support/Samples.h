#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace bench {

/// The times of the calls of one case, printed as one row `group case size median_us p99_us per_s`.
class CSamples
{
public:
    using Clock = std::chrono::steady_clock;

    explicit CSamples(std::size_t calls) { m_times.reserve(calls); }

    void Begin() { m_start = m_last = Clock::now(); }
    /// One call is done.
    void Tick();
    /// One call that took this long; instead of Begin and Tick.
    void Add(std::chrono::nanoseconds time);
    /// The whole is done; without it the last tick counts.
    void End() { m_last = Clock::now(); }

    void Print(const std::string& group, const std::string& name, std::size_t size);

    /// Of all calls, in microseconds.
    double Median();
    double PerSecond() const;

private:
    double Quantile(double part);

    Clock::time_point m_start;
    Clock::time_point m_last;
    std::vector<double> m_times;
};

} // namespace bench
