#include "CrashAPI/CrashHandler.h"
#include "CrashAPI/posix/CrashReport.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <iterator>

namespace crash {

namespace {

constexpr int kHandled[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT, SIGTRAP};
constexpr unsigned kReportSeconds = 10;

struct sigaction g_before[std::size(kHandled)];
std::atomic<bool> g_reporting{false};

const struct sigaction& ActionBefore(int number)
{
    std::size_t i = 0;
    while (kHandled[i] != number)
        ++i;
    return g_before[i];
}

/// Ends the process when the report gets stuck, for example on a lock of the loader that another thread
/// holds.
void LimitReportTime()
{
    std::signal(SIGALRM, SIG_DFL);
    sigset_t alarm;
    ::sigemptyset(&alarm);
    ::sigaddset(&alarm, SIGALRM);
    ::pthread_sigmask(SIG_UNBLOCK, &alarm, nullptr);
    ::alarm(kReportSeconds);
}

/// The thread that crashed first ends the process for all.
void WaitForTheEnd()
{
    const timespec step{0, 10 * 1000 * 1000};
    for (unsigned i = 0; i < kReportSeconds * 100; ++i)
        ::nanosleep(&step, nullptr);
}

/// A fault happens again when the handler returns to its instruction, now with the action that was there
/// before, which thus sees the true cause. A signal that was sent, and a trap, which counts as executed, are
/// sent once more.
void PassOn(int number, const siginfo_t& info)
{
    ::sigaction(number, &ActionBefore(number), nullptr);
    if (info.si_code <= 0 || number == SIGTRAP)
        ::syscall(SYS_tgkill, ::getpid(), ::gettid(), number);
}

extern "C" void OnCrash(int number, siginfo_t* info, void* context)
{
    const int error = errno;
    if (g_reporting.exchange(true)) {
        WaitForTheEnd();
    } else {
        LimitReportTime();
        WriteReport(number, *info, context);
        ::alarm(0);
    }
    PassOn(number, *info);
    errno = error;
}

} // namespace

bool InstallHandlers()
{
    PrimeReport();
    g_reporting = false;
    struct sigaction own
    {};
    own.sa_sigaction = OnCrash;
    own.sa_flags = SA_SIGINFO | SA_ONSTACK;
    // A second fault of the same thread, in the report, ends the process at once.
    for (const int number : kHandled)
        ::sigaddset(&own.sa_mask, number);
    bool installed = true;
    for (std::size_t i = 0; i < std::size(kHandled); ++i)
        installed = ::sigaction(kHandled[i], &own, &g_before[i]) == 0 && installed;
    return installed;
}

void RemoveHandlers()
{
    for (std::size_t i = 0; i < std::size(kHandled); ++i) {
        struct sigaction now
        {};
        ::sigaction(kHandled[i], nullptr, &now);
        if ((now.sa_flags & SA_SIGINFO) && now.sa_sigaction == OnCrash)
            ::sigaction(kHandled[i], &g_before[i], nullptr);
    }
}

} // namespace crash
