#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// One child process that never outlives its parent: the system ends it when the parent dies in whatever way,
/// and the destructor ends it otherwise.
///
/// An exit status is the program's exit code, or the negative number of the signal that ended it.
class CChildProcess
{
public:
    /// Called once with the exit status, on a thread of the object's own.
    using ExitCallBack = std::function<void(int status)>;

    explicit CChildProcess(ExitCallBack onExit = {});
    /// Kills the child if it runs, and waits until it is gone.
    ~CChildProcess();

    CChildProcess(const CChildProcess&) = delete;
    CChildProcess& operator=(const CChildProcess&) = delete;

    /// Starts command[0], searched as a shell would, with the other texts as its arguments. Its output goes
    /// to the file outputPath when that is not empty. To be called once, from a thread that lives as long as
    /// the process. False with the reason in error when the program cannot be run.
    [[nodiscard]] bool Start(const std::vector<std::string>& command, const std::string& outputPath,
                             std::string& error);

    /// The system's number of the child; 0 before Start.
    long long Id() const;

    /// The exit status; none while the child runs or was never started.
    std::optional<int> ExitStatus() const;

    /// Waits at most timeoutMs milliseconds for the exit.
    std::optional<int> WaitForExit(int timeoutMs) const;

    /// Sends the signal; false when the child does not run any more. Windows ends the process whatever the
    /// signal.
    bool Signal(int number);

    /// The number of a signal given as "SIGKILL"; none for an unknown name.
    static std::optional<int> SignalNumber(const std::string& name);

    /// "exit code 3" or "signal 9 (SIGKILL)".
    static std::string DescribeStatus(int status);

private:
    struct State;
    std::unique_ptr<State> m_state;
};
