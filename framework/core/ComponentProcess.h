#pragma once

#include "ChildProcess/ChildProcess.h"
#include "framework/core/Supervisor.h"

#include <functional>
#include <memory>
#include <vector>

namespace framework {

/// The component as a child process of this one. Used on one thread, which lives as long as the object; the
/// system ends the child with that thread.
class CComponentProcess : public IComponentProcess, Base::CNoncopyable
{
public:
    struct Ways
    {
        std::function<std::vector<std::string>()> command; ///< program and arguments, asked before each start
        std::string output;                                ///< see CChildProcess::Start
        std::function<bool()> askToEnd; ///< over the channel; false when that is not possible
        /// Called on another thread with words such as "exit code 3".
        std::function<void(const std::string& how)> onExit;
    };

    explicit CComponentProcess(Ways ways) : m_ways(std::move(ways)) {}

    [[nodiscard]] bool Start(std::string& error) override;
    void AskToEnd() override;
    void Kill() override;

private:
    const Ways m_ways;
    std::unique_ptr<CChildProcess> m_child;
};

} // namespace framework
