#pragma once

#include "framework/core/TimedLoop.h"

#include <functional>
#include <optional>

namespace framework {

/// Passes values on, at most one in each period; of those that come faster only the newest. The last value is
/// always passed on. One thread.
template<typename T>
class TNewestOnly : Base::CNoncopyable
{
public:
    TNewestOnly(ITimer& timer, std::chrono::milliseconds period, std::function<void(const T&)> passOn)
        : m_timer(timer), m_period(period), m_passOn(std::move(passOn))
    {}

    void Put(const T& value)
    {
        m_newest = value;
        if (!m_isPausing)
            PassOn();
    }

private:
    void PassOn()
    {
        m_passOn(*m_newest);
        m_newest.reset();
        m_isPausing = true;
        m_timer.After(m_period, [this] {
            m_isPausing = false;
            if (m_newest)
                PassOn();
        });
    }

    ITimer& m_timer;
    const std::chrono::milliseconds m_period;
    const std::function<void(const T&)> m_passOn;
    std::optional<T> m_newest;
    bool m_isPausing = false;
};

} // namespace framework
