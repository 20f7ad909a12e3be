#include "DatabaseUpdate/DatabaseFiles.h"

#include <filesystem>

namespace DatabaseUpdate {

void RemoveJournals(const std::string& path)
{
    std::error_code ignored;
    for (const char* suffix : {"-journal", "-wal", "-shm"})
        std::filesystem::remove(std::filesystem::u8path(path + suffix), ignored);
}

void RemoveDatabaseFile(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::remove(std::filesystem::u8path(path), ignored);
    RemoveJournals(path);
}

} // namespace DatabaseUpdate
