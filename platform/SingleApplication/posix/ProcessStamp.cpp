#include "SingleApplication/ProcessStamp.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

namespace InstanceSystem {

namespace {

/// The socket's path must fit into sockaddr_un (108 bytes) together with the folder that Qt creates on the
/// way to it.
constexpr std::size_t kLongestRuntimeDir = 60;

/// The start time of a process in ticks since the system's start (field 22 of its stat file, see proc(5)); 0
/// when it does not run or the system does not say.
std::uint32_t StartTime(std::uint32_t pid)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    const std::string content((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    const auto nameEnd = content.rfind(')');
    if (nameEnd == std::string::npos)
        return 0;
    std::istringstream fields(content.substr(nameEnd + 1));
    char state = 0;
    fields >> state;
    if (state == 'Z' || state == 'X')
        return 0;
    std::string skipped;
    for (int field = 4; field < 22; ++field)
        fields >> skipped;
    std::uint64_t ticks = 0;
    fields >> ticks;
    return static_cast<std::uint32_t>(ticks);
}

bool IsFolderToWriteIn(const std::string& path)
{
    struct stat info = {};
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && access(path.c_str(), W_OK | X_OK) == 0;
}

} // namespace

std::uint64_t OwnStamp()
{
    const auto pid = static_cast<std::uint32_t>(getpid());
    return (static_cast<std::uint64_t>(pid) << 32) | StartTime(pid);
}

bool IsAlive(std::uint64_t stamp)
{
    const auto pid = static_cast<std::uint32_t>(stamp >> 32);
    const auto start = static_cast<std::uint32_t>(stamp);
    if (pid == 0)
        return false;
    if (start != 0)
        return StartTime(pid) == start;
    return kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM;
}

std::string UserIdentity()
{
    return std::to_string(geteuid());
}

std::string ServerName(const std::string& key)
{
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    const std::string folder = runtime ? runtime : "";
    const std::string name = "vantor-" + key;
    if (folder.empty() || folder.front() != '/' || folder.size() > kLongestRuntimeDir ||
        !IsFolderToWriteIn(folder))
        return name;
    return folder + "/" + name;
}

} // namespace InstanceSystem
