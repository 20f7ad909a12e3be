#include "DatabaseUpdate/DatabaseFiles.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace DatabaseUpdate {

bool ReplaceFile(const std::string& from, const std::string& to)
{
    if (std::rename(from.c_str(), to.c_str()) != 0)
        return false;
    const std::string folder = to.substr(0, to.rfind('/') + 1);
    const int directory = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (directory >= 0) {
        ::fsync(directory);
        ::close(directory);
    }
    return true;
}

} // namespace DatabaseUpdate
