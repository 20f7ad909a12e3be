#pragma once

#include "framework/core/FrameworkEvents.h"
#include "framework/core/TimedLoop.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>

namespace framework {

/// The component's process, as its supervisor needs it.
class IComponentProcess
{
public:
    virtual ~IComponentProcess() = default;

    /// Starts it; its end is told to CSupervisor::OnExit. False with the reason.
    [[nodiscard]] virtual bool Start(std::string& error) = 0;
    virtual void AskToEnd() = 0;
    virtual void Kill() = 0;
};

/// Times and numbers of the supervision.
namespace supervision {
constexpr std::chrono::seconds kReadyLimit{60}; ///< from the start to "initFinish"
constexpr std::chrono::seconds kEndLimit{5};    ///< from "componentUninit" to the end
constexpr std::chrono::seconds kLeaveLimit{10}; ///< from the loss of the link to the end
constexpr std::chrono::seconds kFirstPause{1};  ///< before it is started again; doubled each time
constexpr std::chrono::seconds kLongestPause{16};
constexpr std::chrono::seconds kSoundAfter{60}; ///< ready for so long, it begins with the first pause again
constexpr std::chrono::seconds kStartsWindow{60};
constexpr std::size_t kMostStarts = 5; ///< within the window
} // namespace supervision

/// Decides when the component is started, started again, asked to end and killed. One thread.
class CSupervisor : Base::CNoncopyable
{
public:
    using OnState = std::function<void(ComponentState state, const std::string& detail)>;

    /// endLimit: how long the process may take to end when it is asked to.
    CSupervisor(IComponentProcess& process, ITimer& timer, OnState onState,
                std::chrono::milliseconds endLimit = supervision::kEndLimit);

    void Start();
    void Stop();
    void Restart();
    /// Stops for good: nothing starts it again. Calls the task when no process runs any more.
    void Finish(Base::Task whenEnded);

    // What happens to the component. Its readiness and its leaving count only after it has joined, because
    // they may be those of the process before, told late.
    void OnJoined() { m_isJoined = true; }
    void OnReady();
    void OnLeft();
    void OnExit(const std::string& how);

    ComponentState State() const { return m_state; }

private:
    void Launch();
    void Died(const std::string& how);
    void Set(ComponentState state, const std::string& detail);
    void ForgetFailures();
    bool MayStartAt(ITimer::TimePoint time) const;
    void KillUnlessEnded(std::chrono::milliseconds limit, const char* reason, bool unlessReady);
    /// Runs the task after the pause unless the component was started, asked to end or ended meanwhile.
    void AfterUnlessOver(std::chrono::milliseconds pause, Base::Task task);

    IComponentProcess& m_process;
    ITimer& m_timer;
    const OnState m_onState;
    const std::chrono::milliseconds m_endLimit;
    ComponentState m_state = ComponentState::Stopped;
    bool m_runs = false;
    bool m_isJoined = false;
    bool m_isEnding = false;
    bool m_startAfterEnd = false;
    bool m_isFinished = false;
    std::string m_killReason;
    std::uint64_t m_epoch = 0; ///< tells tasks of an earlier start or pause from present ones
    std::deque<ITimer::TimePoint> m_starts;
    ITimer::TimePoint m_readySince{};
    std::chrono::seconds m_pause = supervision::kFirstPause;
    Base::Task m_whenEnded;
};

} // namespace framework
