#pragma once

#include "Base/CancelableTask.h"
#include "Base/Noncopyable.h"

#include <chrono>
#include <memory>
#include <string>

namespace framework {

/// What has to do with time, so that tests need not wait.
class ITimer
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    virtual ~ITimer() = default;
    virtual TimePoint Now() const = 0;
    /// Runs the task after the time, on the thread that everything around the timer runs on.
    virtual void After(std::chrono::milliseconds pause, Base::Task task) = 0;
};

/// A thread that runs tasks one after the other, at once or later. Posting: any thread.
class CTimedLoop : public ITimer, Base::CNoncopyable
{
public:
    explicit CTimedLoop(const std::string& name);
    /// Stops.
    ~CTimedLoop() override;

    TimePoint Now() const override { return std::chrono::steady_clock::now(); }
    void After(std::chrono::milliseconds pause, Base::Task task) override;
    void Post(Base::Task task);

    /// Drops what has not begun and waits for the thread. Not from within a task. May be called again.
    void Stop();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace framework
