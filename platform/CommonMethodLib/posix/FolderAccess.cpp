#include "CommonMethodLib/FolderAccess.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace comm_methodlib {

namespace {

std::string SystemText(int error)
{
    return std::system_category().message(error);
}

bool IsFolder(const std::string& path)
{
    struct stat found;
    return ::stat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode);
}

/// The mode is set once more because the umask took from it.
int MakeFolder(const std::string& path, int mode)
{
    const auto bits = static_cast<mode_t>(mode);
    if (::mkdir(path.c_str(), bits) != 0)
        return errno;
    return ::chmod(path.c_str(), bits) == 0 ? 0 : errno;
}

/// Why there is no folder at a path that mkdir refused.
std::string Reason(const std::string& path, int error)
{
    struct stat found;
    if (error != EEXIST)
        return SystemText(error);
    return ::stat(path.c_str(), &found) == 0 ? SystemText(ENOTDIR) : "it is a link that leads nowhere";
}

} // namespace

std::string MakeWritableFolder(const std::string& folder, int mode)
{
    for (std::size_t end = 0; end != std::string::npos && end + 1 < folder.size();) {
        end = folder.find('/', end + 1);
        const std::string part = folder.substr(0, end);
        const int error = IsFolder(part) ? 0 : MakeFolder(part, mode);
        // Another process may have made it meanwhile.
        if (error != 0 && !IsFolder(part))
            return Reason(part, error);
    }
    return ::access(folder.c_str(), R_OK | W_OK | X_OK) == 0 ? std::string() : SystemText(errno);
}

void LimitNewFiles(int dirMode, int fileMode)
{
    constexpr int kReadWrite = 0666;
    constexpr int kEnter = 0111;
    ::umask(static_cast<mode_t>((kReadWrite & ~fileMode) | (kEnter & ~dirMode)));
}

} // namespace comm_methodlib
