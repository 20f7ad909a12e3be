#include "CrashAPI/posix/Guard.h"

#include <csetjmp>
#include <csignal>

namespace crash {

namespace {

sigjmp_buf g_wayOut;
volatile std::sig_atomic_t g_within = 0;

} // namespace

bool RunGuarded(void (*work)(void*), void* argument)
{
    // The signal mask needs no restoring: the handlers block nothing.
    if (sigsetjmp(g_wayOut, 0) != 0)
        return false;
    g_within = 1;
    work(argument);
    g_within = 0;
    return true;
}

void LeaveGuarded()
{
    if (g_within == 0)
        return;
    g_within = 0;
    siglongjmp(g_wayOut, 1);
}

} // namespace crash
