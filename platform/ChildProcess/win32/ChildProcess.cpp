#include "ChildProcess/ChildProcess.h"

#include <condition_variable>
#include <mutex>
#include <thread>

#define NOMINMAX
#include <windows.h>

namespace {

/// Exit codes from here on stand for signals, so that a status reads the same on every system.
constexpr DWORD kSignalBase = 0xE0530000;

constexpr struct
{
    const char* name;
    int number;
} kSignals[] = {{"SIGINT", 2}, {"SIGABRT", 6}, {"SIGKILL", 9}, {"SIGSEGV", 11}, {"SIGTERM", 15}};

std::wstring Wide(const std::string& text)
{
    const int length =
        MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring wide(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(), length);
    return wide;
}

/// One argument as CommandLineToArgvW reads it back.
std::wstring Quoted(const std::wstring& argument)
{
    std::wstring quoted = L"\"";
    size_t slashes = 0;
    for (const wchar_t letter : argument) {
        if (letter == L'\\') {
            ++slashes;
            continue;
        }
        quoted.append(letter == L'"' ? 2 * slashes + 1 : slashes, L'\\');
        quoted += letter;
        slashes = 0;
    }
    return quoted.append(2 * slashes, L'\\') + L"\"";
}

int StatusOf(DWORD code)
{
    return (code & 0xFFFF0000) == kSignalBase ? -static_cast<int>(code & 0xFFFF) : static_cast<int>(code);
}

HANDLE OpenOutput(const std::string& path)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return CreateFileW(Wide(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0,
                       nullptr);
}

} // namespace

struct CChildProcess::State
{
    ExitCallBack onExit;
    mutable std::mutex mutex;
    mutable std::condition_variable changed;
    PROCESS_INFORMATION process{};
    HANDLE job = nullptr;
    std::optional<int> status;
    std::thread waiter;

    void Await()
    {
        WaitForSingleObject(process.hProcess, INFINITE);
        DWORD code = 0;
        GetExitCodeProcess(process.hProcess, &code);
        {
            std::lock_guard<std::mutex> lock(mutex);
            status = StatusOf(code);
        }
        changed.notify_all();
        if (onExit)
            onExit(StatusOf(code));
    }
};

CChildProcess::CChildProcess(ExitCallBack onExit) : m_state(std::make_unique<State>())
{
    m_state->onExit = std::move(onExit);
}

CChildProcess::~CChildProcess()
{
    Signal(9);
    if (m_state->waiter.joinable())
        m_state->waiter.join();
    for (HANDLE handle : {m_state->process.hThread, m_state->process.hProcess, m_state->job})
        if (handle)
            CloseHandle(handle);
}

bool CChildProcess::Start(const std::vector<std::string>& command, const std::string& outputPath,
                          std::string& error)
{
    std::wstring line;
    for (const std::string& text : command)
        line += (line.empty() ? L"" : L" ") + Quoted(Wide(text));

    STARTUPINFOW start{};
    start.cb = sizeof start;
    HANDLE output = outputPath.empty() ? nullptr : OpenOutput(outputPath);
    if (output == INVALID_HANDLE_VALUE) {
        error = "cannot write " + outputPath;
        return false;
    }
    if (output) {
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
        start.hStdOutput = start.hStdError = output;
    }
    m_state->job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(m_state->job, JobObjectExtendedLimitInformation, &limits, sizeof limits);

    const bool started = CreateProcessW(nullptr, line.data(), nullptr, nullptr, output != nullptr,
                                        CREATE_SUSPENDED, nullptr, nullptr, &start, &m_state->process);
    const DWORD failure = GetLastError();
    if (output)
        CloseHandle(output);
    if (!started) {
        error = "system error " + std::to_string(failure);
        return false;
    }
    AssignProcessToJobObject(m_state->job, m_state->process.hProcess);
    ResumeThread(m_state->process.hThread);
    m_state->waiter = std::thread([state = m_state.get()] { state->Await(); });
    return true;
}

long long CChildProcess::Id() const
{
    return m_state->process.dwProcessId;
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
    return m_state->process.hProcess && !m_state->status &&
           TerminateProcess(m_state->process.hProcess, kSignalBase | static_cast<DWORD>(number));
}

std::optional<int> CChildProcess::SignalNumber(const std::string& name)
{
    for (const auto& signal : kSignals)
        if (name == signal.name)
            return signal.number;
    return std::nullopt;
}

std::string CChildProcess::DescribeStatus(int status)
{
    if (status >= 0)
        return "exit code " + std::to_string(status);
    for (const auto& signal : kSignals)
        if (-status == signal.number)
            return "signal " + std::to_string(-status) + " (" + signal.name + ")";
    return "exit code " + std::to_string(status);
}
