#include "CrashAPI/CrashHandler.h"
#include "CrashAPI/posix/CrashReport.h"
#include "CrashAPI/posix/Guard.h"

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
/// For the rest, when the folder itself is what the report got stuck on.
constexpr unsigned kGiveUpSeconds = 2;

struct sigaction g_before[std::size(kHandled)];
/// The thread that crashed first, and by what; 0 before.
std::atomic<pid_t> g_reporter{0};
std::atomic<int> g_signal{0};
std::atomic<bool> g_reported{false};

const struct sigaction& ActionBefore(int number)
{
    std::size_t i = 0;
    while (kHandled[i] != number)
        ++i;
    return g_before[i];
}

void Unblock(int number)
{
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, number);
    ::pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

void SendToThisThread(int number)
{
    ::syscall(SYS_tgkill, ::getpid(), ::gettid(), number);
}

/// Leaves the report as far as it is, and ends the process by the signal that it was about.
extern "C" void GiveUp(int)
{
    const int number = g_signal;
    std::signal(SIGALRM, SIG_DFL);
    Unblock(SIGALRM);
    ::alarm(kGiveUpSeconds);
    RemoveOldReports();
    std::signal(number, SIG_DFL);
    Unblock(number);
    SendToThisThread(number);
}

/// For a report that gets stuck, for example on a full network drive. Served by any thread.
void LimitReportTime()
{
    struct sigaction giveUp
    {};
    giveUp.sa_handler = GiveUp;
    giveUp.sa_flags = SA_ONSTACK;
    ::sigaction(SIGALRM, &giveUp, nullptr);
    Unblock(SIGALRM);
    ::alarm(kReportSeconds);
}

/// The thread that crashed first ends the process for all, at the latest when it gives up.
void WaitForTheEnd()
{
    const timespec step{0, 10 * 1000 * 1000};
    for (unsigned i = 0; i < (kReportSeconds + kGiveUpSeconds + 1) * 100; ++i)
        ::nanosleep(&step, nullptr);
}

/// A fault happens again when the handler returns to its instruction, now with the action that was there
/// before, which thus sees the true cause. A signal that was sent, and a trap, which counts as executed, are
/// sent once more.
void PassOn(int number, const siginfo_t& info)
{
    ::sigaction(number, &ActionBefore(number), nullptr);
    if (info.si_code <= 0 || number == SIGTRAP)
        SendToThisThread(number);
}

void Report(int number, const siginfo_t& info, const void* context)
{
    g_signal = number;
    // A sanitizer blocks everything while a handler runs; a second fault must come here all the same.
    for (const int handled : kHandled)
        Unblock(handled);
    LimitReportTime();
    WriteReport(number, info, context);
    ::alarm(0);
    g_reported = true;
}

extern "C" void OnCrash(int number, siginfo_t* info, void* context)
{
    const int error = errno;
    pid_t reporter = 0;
    if (g_reporter.compare_exchange_strong(reporter, ::gettid())) {
        Report(number, *info, context);
    } else if (reporter != ::gettid()) {
        WaitForTheEnd();
    } else if (!g_reported) {
        LeaveGuarded();
        GiveUp(number);
    }
    PassOn(number, *info);
    errno = error;
}

} // namespace

bool InstallHandlers()
{
    PrimeReport();
    g_reporter = 0;
    g_reported = false;
    struct sigaction own
    {};
    own.sa_sigaction = OnCrash;
    // Nothing is blocked meanwhile: a second fault of the same thread, in the report, comes here too.
    own.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
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
