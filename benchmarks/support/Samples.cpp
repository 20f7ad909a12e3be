#include "support/Samples.h"

#include <algorithm>
#include <cstdio>

namespace bench {

void CSamples::Tick()
{
    const auto now = Clock::now();
    m_times.push_back(std::chrono::duration<double, std::micro>(now - m_last).count());
    m_last = now;
}

void CSamples::Add(std::chrono::nanoseconds time)
{
    m_times.push_back(std::chrono::duration<double, std::micro>(time).count());
    m_last += std::chrono::duration_cast<Clock::duration>(time);
}

double CSamples::Quantile(double part)
{
    const auto at =
        m_times.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(m_times.size() - 1));
    std::nth_element(m_times.begin(), at, m_times.end());
    return *at;
}

double CSamples::Median()
{
    return Quantile(0.5);
}

double CSamples::PerSecond() const
{
    return static_cast<double>(m_times.size()) / std::chrono::duration<double>(m_last - m_start).count();
}

void CSamples::Print(const std::string& group, const std::string& name, std::size_t size)
{
    std::printf("%s %s %zu %.2f %.2f %.0f\n", group.c_str(), name.c_str(), size, Quantile(0.5),
                Quantile(0.99), PerSecond());
    std::fflush(stdout);
}

} // namespace bench
