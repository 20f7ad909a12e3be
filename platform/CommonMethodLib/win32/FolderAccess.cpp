#include "CommonMethodLib/FolderAccess.h"

#include <filesystem>

#include <io.h>

namespace comm_methodlib {

std::string MakeWritableFolder(const std::string& folder, int)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!std::filesystem::is_directory(folder, error))
        return error ? error.message() : "a file of this name is in the way";
    constexpr int kReadAndWrite = 6;
    return ::_access(folder.c_str(), kReadAndWrite) == 0 ? std::string() : "permission denied";
}

// A user's profile is closed to other users by its access control list, which new files inherit.
void LimitNewFiles(int, int) {}

} // namespace comm_methodlib
