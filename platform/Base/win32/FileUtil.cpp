#include "Base/FileUtil.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace Base::FileUtil {

namespace {

/// The file, empty, which nobody else may write or move until it is closed.
HANDLE OpenAlone(const std::string& path)
{
    return ::CreateFileA(path.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// Gives the open file another name, in place of the file that has it.
bool RenameOpen(HANDLE file, const std::string& path)
{
    const std::wstring name = std::filesystem::path(path).wstring();
    std::vector<char> memory(sizeof(FILE_RENAME_INFO) + name.size() * sizeof(wchar_t));
    auto* info = reinterpret_cast<FILE_RENAME_INFO*>(memory.data());
    info->ReplaceIfExists = TRUE;
    info->FileNameLength = static_cast<DWORD>(name.size() * sizeof(wchar_t));
    std::copy(name.begin(), name.end(), info->FileName);
    return ::SetFileInformationByHandle(file, FileRenameInfo, info, static_cast<DWORD>(memory.size())) != 0;
}

} // namespace

std::string GetCurExeDir()
{
    std::array<char, 32768> path{};
    const DWORD length = ::GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    std::string exe(path.data(), length);
    std::replace(exe.begin(), exe.end(), '\\', '/');
    return exe.substr(0, exe.rfind('/') + 1);
}

std::string UserDataRoot()
{
    const auto withSlash = [](std::string dir) {
        std::replace(dir.begin(), dir.end(), '\\', '/');
        return dir.back() == '/' ? dir : dir + '/';
    };
    if (const char* root = std::getenv("VANTOR_USER_DATA"); root && *root)
        return withSlash(root);
    if (const char* data = std::getenv("APPDATA"); data && *data)
        return withSlash(data) + "Vantor/";
    return {};
}

bool ReadFile(const std::string& path, std::string& content, std::size_t limit)
{
    std::ifstream file(path, std::ios::binary);
    std::error_code error;
    if (!file || std::filesystem::file_size(path, error) > limit || error)
        return false;
    std::ostringstream text;
    text << file.rdbuf();
    content = text.str();
    return content.size() <= limit;
}

bool WriteFileAtomically(const std::string& path, const std::string& content)
{
    const std::string temporary = path + ".writing";
    HANDLE file = OpenAlone(temporary);
    for (; file == INVALID_HANDLE_VALUE && ::GetLastError() == ERROR_SHARING_VIOLATION;
         file = OpenAlone(temporary))
        ::Sleep(1);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool inPlace =
        ::WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr) &&
        written == content.size() && ::FlushFileBuffers(file) && RenameOpen(file, path);
    ::CloseHandle(file);
    if (!inPlace)
        ::DeleteFileA(temporary.c_str());
    return inPlace;
}

bool PutInPlace(const std::string& from, const std::string& to)
{
    const DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return ::MoveFileExA(from.c_str(), to.c_str(), flags) != 0;
}

bool MakeDirs(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::create_directories(path, ignored);
    return std::filesystem::is_directory(path, ignored);
}

} // namespace Base::FileUtil
