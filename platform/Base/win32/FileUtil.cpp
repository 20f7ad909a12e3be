#include "Base/FileUtil.h"

#include "Base/GuidUtil.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace Base::FileUtil {

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

// The user's own folders are closed to others by what they inherit.
Exposure KeepPrivate(const std::string&)
{
    return Exposure::None;
}

bool WriteFileAtomically(const std::string& path, const std::string& content)
{
    const std::string temporary = path + "." + GuidUtil::CreateGuid();
    const HANDLE file = ::CreateFileA(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool complete =
        ::WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr) &&
        written == content.size() && ::FlushFileBuffers(file);
    ::CloseHandle(file);
    const DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (complete && ::MoveFileExA(temporary.c_str(), path.c_str(), flags))
        return true;
    ::DeleteFileA(temporary.c_str());
    return false;
}

bool MakeDirs(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::create_directories(path, ignored);
    return std::filesystem::is_directory(path, ignored);
}

} // namespace Base::FileUtil
