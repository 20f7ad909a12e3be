#include "Base/ProcessUtil.h"

#include "Base/ThreadName.h"

#include <pthread.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <thread>

namespace Base::ProcessUtil {

namespace {

sigset_t EndSignals()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGTERM);
    ::sigaddset(&signals, SIGINT);
    return signals;
}

} // namespace

void HoldEndRequests(ParentsEnd parentsEnd)
{
    const sigset_t signals = EndSignals();
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    if (parentsEnd == ParentsEnd::DoesNotCount)
        return;
    const pid_t parent = ::getppid();
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    // The parent may have ended before the signal was asked for; its successor's end means nothing to us.
    if (::getppid() != parent)
        ::kill(::getpid(), SIGTERM);
}

void OnEndRequest(std::function<void()> serve)
{
    std::thread([serve = std::move(serve)] {
        NameThisThread("end-request");
        const sigset_t signals = EndSignals();
        int received = 0;
        ::sigwait(&signals, &received);
        serve();
    }).detach();
}

void FailWritesInsteadOfEnding()
{
    for (const int number : {SIGPIPE, SIGXFSZ})
        ::signal(number, SIG_IGN);
}

std::int64_t ProcessId()
{
    return ::getpid();
}

void SetEnvironment(const std::string& name, const std::string& value)
{
    ::setenv(name.c_str(), value.c_str(), 1);
}

} // namespace Base::ProcessUtil

namespace Base {

void ShowThreadName(const std::string& name)
{
    ::pthread_setname_np(::pthread_self(), name.substr(0, 15).c_str());
}

} // namespace Base
