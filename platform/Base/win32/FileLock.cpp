#include "Base/FileLock.h"

#include <windows.h>

namespace Base {

CFileLock::~CFileLock()
{
    if (m_file != -1)
        (void)CloseHandle(reinterpret_cast<HANDLE>(m_file));
}

// A file that is shared with nobody is held.
CFileLock::Result CFileLock::Take(const std::string& path)
{
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    m_file = reinterpret_cast<long long>(file);
    if (file != INVALID_HANDLE_VALUE)
        return Result::Held;
    return GetLastError() == ERROR_SHARING_VIOLATION ? Result::Busy : Result::Failed;
}

} // namespace Base
