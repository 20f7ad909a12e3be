#include "Base/ProcessUtil.h"

#include <pthread.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace Base::ProcessUtil {

void EndWithParent()
{
    const pid_t parent = ::getppid();
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    // The parent may have ended before the request was made; the new parent's end means nothing to us.
    if (::getppid() != parent)
        std::raise(SIGTERM);
}

void NameThisThread(const std::string& name)
{
    ::pthread_setname_np(::pthread_self(), name.substr(0, 15).c_str());
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
