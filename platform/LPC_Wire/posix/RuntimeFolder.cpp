#include "LPC_Wire/LocalSocket.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace lpc {
namespace {

bool IsFolderToWriteIn(const std::string& path)
{
    struct stat state
    {};
    return stat(path.c_str(), &state) == 0 && S_ISDIR(state.st_mode) &&
           access(path.c_str(), W_OK | X_OK) == 0;
}

std::string FolderPath()
{
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime && runtime[0] == '/' && IsFolderToWriteIn(runtime))
        return std::string(runtime) + "/vantor";
    const char* temporary = std::getenv("TMPDIR");
    const std::string base = temporary && temporary[0] == '/' ? temporary : "/tmp";
    return base + "/vantor-" + std::to_string(geteuid());
}

/// Somebody else could have made the folder first: only one of our own, and no link, will do.
bool IsOurs(const std::string& path, std::string& why)
{
    struct stat state
    {};
    if (lstat(path.c_str(), &state) != 0 || !S_ISDIR(state.st_mode)) {
        why = path + " is no folder";
        return false;
    }
    if (state.st_uid != geteuid()) {
        why = path + " belongs to another user";
        return false;
    }
    if ((state.st_mode & 077) != 0 && chmod(path.c_str(), 0700) != 0) {
        why = path + " is open to others";
        return false;
    }
    return true;
}

} // namespace

std::string RuntimeFolder(std::string& why)
{
    const std::string path = FolderPath();
    if (mkdir(path.c_str(), 0700) != 0 && errno != EEXIST) {
        why = path + ": " + std::strerror(errno);
        return {};
    }
    return IsOurs(path, why) ? path + "/" : std::string();
}

} // namespace lpc
