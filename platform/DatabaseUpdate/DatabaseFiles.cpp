#include "DatabaseUpdate/DatabaseFiles.h"

#include "Base/FileUtil.h"
#include "Base/StringUtil.h"

#include <filesystem>

namespace DatabaseUpdate {

bool ReplaceDatabaseFile(const std::string& from, const std::string& to)
{
    return Base::FileUtil::PutInPlace(Base::UTF8ToLocal(from), Base::UTF8ToLocal(to));
}

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
