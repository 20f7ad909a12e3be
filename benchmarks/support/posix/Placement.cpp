#include "support/Placement.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <sched.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {
namespace {

void BindTo(int first, int last)
{
    cpu_set_t cpus;
    CPU_ZERO(&cpus);
    for (int cpu = first; cpu <= last; ++cpu)
        CPU_SET(cpu, &cpus);
    sched_setaffinity(0, sizeof cpus, &cpus);
}

int LastCpu()
{
    return static_cast<int>(sysconf(_SC_NPROCESSORS_CONF)) - 1;
}

} // namespace

const char* PlacementName(Placement placement)
{
    switch (placement) {
    case Placement::OneCpu:
        return "@1cpu";
    case Placement::TwoCpus:
        return "@2cpu";
    default:
        return "";
    }
}

void PlaceClient(Placement placement)
{
    BindTo(0, placement == Placement::Free ? LastCpu() : 0);
}

void PlaceServer(Placement placement)
{
    if (placement == Placement::TwoCpus)
        BindTo(1, 1);
    else
        PlaceClient(placement);
}

CSecondProcess::CSecondProcess(const std::function<void()>& body)
{
    int ready[2];
    if (pipe(ready) != 0)
        std::exit(2);
    m_child = fork();
    if (m_child == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        close(ready[0]);
        body();
        close(ready[1]);
        for (;;)
            pause();
    }
    close(ready[1]);
    char nothing;
    while (read(ready[0], &nothing, 1) > 0) {
    }
    close(ready[0]);
}

CSecondProcess::~CSecondProcess()
{
    kill(m_child, SIGKILL);
    waitpid(m_child, nullptr, 0);
}

struct CFreshRoot::Path
{
    std::string name = (std::filesystem::temp_directory_path() / "vantor-bench-XXXXXX").string();
};

CFreshRoot::CFreshRoot() : m_path(std::make_unique<Path>())
{
    if (!mkdtemp(m_path->name.data()))
        std::exit(2);
    setenv("VANTOR_USER_DATA", m_path->name.c_str(), 1);
    setenv("XDG_RUNTIME_DIR", m_path->name.c_str(), 1);
}

CFreshRoot::~CFreshRoot()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path->name, ignored);
}

} // namespace bench
