#include "ChildProcess/ChildProcess.h"

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

/// Runs in the child between fork and exec: only calls that are safe there. Returns when it failed, with
/// errno set.
void BecomeProgram(pid_t parent, char* const* arguments, int output)
{
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(127);
    if (output >= 0 && (dup2(output, STDOUT_FILENO) < 0 || dup2(output, STDERR_FILENO) < 0))
        return;
    close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);
    execvp(arguments[0], arguments);
}

/// What the child wrote before it gave up; 0 when it became the program, which closes the pipe.
int ReadError(int pipe)
{
    int number = 0;
    ssize_t got = 0;
    do {
        got = read(pipe, &number, sizeof number);
    } while (got < 0 && errno == EINTR);
    return got == sizeof number ? number : 0;
}

int StatusOf(int waited)
{
    return WIFSIGNALED(waited) ? -WTERMSIG(waited) : WEXITSTATUS(waited);
}

} // namespace

struct CChildProcess::State
{
    ExitCallBack onExit;
    mutable std::mutex mutex;
    mutable std::condition_variable changed;
    pid_t pid = 0;
    std::optional<int> status;
    std::thread waiter;

    /// Leaves the child unreaped until the lock is held, so that its number is never signalled after its end.
    void Await()
    {
        siginfo_t info;
        while (waitid(P_PID, static_cast<id_t>(pid), &info, WEXITED | WNOWAIT) != 0 && errno == EINTR)
            continue;
        int waited = 0;
        {
            std::lock_guard<std::mutex> lock(mutex);
            while (waitpid(pid, &waited, 0) < 0 && errno == EINTR)
                continue;
            status = StatusOf(waited);
        }
        changed.notify_all();
        if (onExit)
            onExit(StatusOf(waited));
    }
};

CChildProcess::CChildProcess(ExitCallBack onExit) : m_state(std::make_unique<State>())
{
    m_state->onExit = std::move(onExit);
}

CChildProcess::~CChildProcess()
{
    Signal(SIGKILL);
    if (m_state->waiter.joinable())
        m_state->waiter.join();
}

bool CChildProcess::Start(const std::vector<std::string>& command, const std::string& outputPath,
                          std::string& error)
{
    std::vector<char*> arguments;
    for (const std::string& text : command)
        arguments.push_back(const_cast<char*>(text.c_str()));
    arguments.push_back(nullptr);

    const int output =
        outputPath.empty() ? -1 : open(outputPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    int pipe[2];
    if ((!outputPath.empty() && output < 0) || pipe2(pipe, O_CLOEXEC) != 0) {
        error = std::strerror(errno);
        if (output >= 0)
            close(output);
        return false;
    }
    const pid_t parent = getpid();
    const pid_t pid = fork();
    if (pid == 0) {
        BecomeProgram(parent, arguments.data(), output);
        const int number = errno;
        [[maybe_unused]] const ssize_t written = write(pipe[1], &number, sizeof number);
        _exit(127);
    }
    int failure = pid < 0 ? errno : 0;
    close(pipe[1]);
    if (output >= 0)
        close(output);
    if (pid > 0)
        failure = ReadError(pipe[0]);
    close(pipe[0]);
    if (failure != 0) {
        if (pid > 0)
            waitpid(pid, nullptr, 0);
        error = std::strerror(failure);
        return false;
    }
    m_state->pid = pid;
    m_state->waiter = std::thread([state = m_state.get()] { state->Await(); });
    return true;
}

long long CChildProcess::Id() const
{
    return m_state->pid;
}

std::optional<int> CChildProcess::ExitStatus() const
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    return m_state->status;
}

std::optional<int> CChildProcess::WaitForExit(int timeoutMs) const
{
    std::unique_lock<std::mutex> lock(m_state->mutex);
    m_state->changed.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                              [this] { return m_state->status.has_value(); });
    return m_state->status;
}

bool CChildProcess::Signal(int number)
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    return m_state->pid > 0 && !m_state->status && kill(m_state->pid, number) == 0;
}

std::optional<int> CChildProcess::SignalNumber(const std::string& name)
{
    for (int number = 1; number < NSIG; ++number) {
        const char* abbreviation = sigabbrev_np(number);
        if (abbreviation && name == std::string("SIG") + abbreviation)
            return number;
    }
    return std::nullopt;
}

std::string CChildProcess::DescribeStatus(int status)
{
    if (status >= 0)
        return "exit code " + std::to_string(status);
    const char* abbreviation = sigabbrev_np(-status);
    return "signal " + std::to_string(-status) +
           (abbreviation ? std::string(" (SIG") + abbreviation + ")" : "");
}
