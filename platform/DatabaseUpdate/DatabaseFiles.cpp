#include "DatabaseUpdate/DatabaseFiles.h"

#include <filesystem>

namespace DatabaseUpdate {

void RemoveDatabaseFile(const std::string& path)
{
    std::error_code ignored;
    for (const char* suffix : {"", "-journal", "-wal", "-shm"})
        std::filesystem::remove(std::filesystem::u8path(path + suffix), ignored);
}

} // namespace DatabaseUpdate
