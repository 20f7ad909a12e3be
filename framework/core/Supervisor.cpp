#include "framework/core/Supervisor.h"

#include "Base/StringUtil.h"

#include <algorithm>
#include <utility>

namespace framework {

using namespace supervision;

namespace {

int Count(std::chrono::seconds time)
{
    return static_cast<int>(time.count());
}

} // namespace

CSupervisor::CSupervisor(IComponentProcess& process, ITimer& timer, OnState onState,
                         std::chrono::milliseconds endLimit)
    : m_process(process), m_timer(timer), m_onState(std::move(onState)), m_endLimit(endLimit)
{}

void CSupervisor::Set(ComponentState state, const std::string& detail)
{
    m_state = state;
    m_onState(state, detail);
}

void CSupervisor::AfterUnlessOver(std::chrono::milliseconds pause, Base::Task task)
{
    m_timer.After(pause, [this, epoch = m_epoch, task = std::move(task)] {
        if (epoch == m_epoch)
            task();
    });
}

void CSupervisor::ForgetFailures()
{
    m_starts.clear();
    m_pause = kFirstPause;
}

void CSupervisor::Start()
{
    if (m_isFinished)
        return;
    m_startAfterEnd = m_isEnding;
    if (m_runs)
        return;
    ForgetFailures();
    Launch();
}

void CSupervisor::Launch()
{
    ++m_epoch;
    m_starts.push_back(m_timer.Now());
    m_killReason.clear();
    m_isJoined = false;
    std::string error;
    if (!m_process.Start(error))
        return Died("The component cannot be started: " + error + ".");
    m_runs = true;
    Set(ComponentState::Starting, "The component was started.");
    KillUnlessEnded(kReadyLimit, "It was not ready in time.", true);
}

void CSupervisor::KillUnlessEnded(std::chrono::milliseconds limit, const char* reason, bool unlessReady)
{
    AfterUnlessOver(limit, [this, reason, unlessReady] {
        if (unlessReady && m_state == ComponentState::Ready)
            return;
        m_killReason = std::string(" ") + reason;
        m_process.Kill();
    });
}

void CSupervisor::Stop()
{
    m_startAfterEnd = false;
    if (m_isEnding)
        return;
    ++m_epoch;
    if (!m_runs) {
        if (m_state != ComponentState::Stopped)
            Set(ComponentState::Stopped, "The component is not started again.");
        return;
    }
    m_isEnding = true;
    Set(ComponentState::Stopped, "The component was asked to end.");
    m_process.AskToEnd();
    KillUnlessEnded(m_endLimit, "It did not end in time.", false);
}

void CSupervisor::Restart()
{
    Stop();
    Start();
}

void CSupervisor::Finish(Base::Task whenEnded)
{
    m_isFinished = true;
    Stop();
    if (!m_runs)
        return whenEnded();
    m_whenEnded = std::move(whenEnded);
}

void CSupervisor::OnReady()
{
    if (!m_isJoined || m_isEnding || m_state != ComponentState::Starting)
        return;
    m_readySince = m_timer.Now();
    Set(ComponentState::Ready, "The component is ready.");
}

void CSupervisor::OnLeft()
{
    if (std::exchange(m_isJoined, false) && m_runs && !m_isEnding)
        KillUnlessEnded(kLeaveLimit, "It had left the channel.", false);
}

void CSupervisor::OnExit(const std::string& how)
{
    m_runs = false;
    ++m_epoch;
    const std::string detail = "The component ended with " + how + "." + m_killReason;
    if (!m_isEnding) {
        Died(detail);
    } else {
        m_isEnding = false;
        Set(ComponentState::Stopped, detail);
        if (m_startAfterEnd)
            Start();
    }
    if (m_whenEnded)
        std::exchange(m_whenEnded, {})();
}

bool CSupervisor::MayStartAt(ITimer::TimePoint time) const
{
    const auto isRecent = [&](ITimer::TimePoint start) { return time - start < kStartsWindow; };
    return static_cast<std::size_t>(std::count_if(m_starts.begin(), m_starts.end(), isRecent)) < kMostStarts;
}

void CSupervisor::Died(const std::string& how)
{
    if (m_state == ComponentState::Ready && m_timer.Now() - m_readySince >= kSoundAfter)
        m_pause = kFirstPause;
    while (m_starts.size() > kMostStarts)
        m_starts.pop_front();
    const std::chrono::seconds pause = m_pause;
    if (!MayStartAt(m_timer.Now() + pause))
        return Set(ComponentState::GivenUp,
                   how + Base::StringUtil::Format(" It was started %zu times within a minute and is "
                                                  "given up.",
                                                  kMostStarts));
    m_pause = std::min(2 * pause, kLongestPause);
    Set(ComponentState::Waiting,
        how + Base::StringUtil::Format(" It is started again in %d s.", Count(pause)));
    AfterUnlessOver(pause, [this] { Launch(); });
}

} // namespace framework
