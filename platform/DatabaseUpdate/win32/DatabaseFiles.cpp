#include "DatabaseUpdate/DatabaseFiles.h"

#include <filesystem>

#include <windows.h>

// The system's header turns the name into ReplaceFileA or ReplaceFileW.
#undef ReplaceFile

namespace DatabaseUpdate {

bool ReplaceFile(const std::string& from, const std::string& to)
{
    const auto source = std::filesystem::u8path(from).wstring();
    const auto target = std::filesystem::u8path(to).wstring();
    return ::MoveFileExW(source.c_str(), target.c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

} // namespace DatabaseUpdate
