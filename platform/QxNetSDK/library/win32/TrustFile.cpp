#include "QxNetSDK/library/session/TrustFile.h"

#include <windows.h>

namespace sdk {

namespace {

constexpr std::size_t kMostBytes = 4 * 1024 * 1024;
constexpr int kLockAttempts = 100;
constexpr DWORD kLockPauseMs = 10;

/// The system has no time limit for it.
bool Lock(HANDLE file)
{
    constexpr DWORD kKind = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
    OVERLAPPED from{};
    for (int attempt = 1; !LockFileEx(file, kKind, 0, 1, 0, &from); ++attempt) {
        if (GetLastError() != ERROR_LOCK_VIOLATION || attempt == kLockAttempts)
            return false;
        Sleep(kLockPauseMs);
    }
    return true;
}

bool WriteAll(HANDLE file, const std::string& text)
{
    DWORD written = 0;
    return WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
           written == text.size() && FlushFileBuffers(file);
}

} // namespace

// A file is the user's own by the folder that it lies in.
CTrustFile::CTrustFile(const std::string& path) : m_path(path)
{
    const HANDLE lock = CreateFileA((path + ".lock").c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS, 0, nullptr);
    if (lock == INVALID_HANDLE_VALUE || !Lock(lock))
        m_error = static_cast<int>(GetLastError());
    m_lock = reinterpret_cast<long long>(lock);
}

CTrustFile::~CTrustFile()
{
    if (m_lock != -1)
        (void)CloseHandle(reinterpret_cast<HANDLE>(m_lock));
}

bool CTrustFile::Read(std::string& text)
{
    text.clear();
    if (m_error != 0)
        return false;
    const HANDLE file =
        CreateFileA(m_path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        m_error = error == ERROR_FILE_NOT_FOUND ? 0 : static_cast<int>(error);
        return m_error == 0;
    }
    LARGE_INTEGER size{};
    DWORD count = 0;
    if (!GetFileSizeEx(file, &size) || size.QuadPart > static_cast<LONGLONG>(kMostBytes)) {
        m_error = ERROR_FILE_TOO_LARGE;
    } else {
        text.resize(static_cast<std::size_t>(size.QuadPart));
        if (!ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &count, nullptr) ||
            count != text.size())
            m_error = ERROR_READ_FAULT;
    }
    (void)CloseHandle(file);
    return m_error == 0;
}

bool CTrustFile::Write(const std::string& text)
{
    if (m_error != 0)
        return false;
    const std::string fresh = m_path + ".new";
    const HANDLE file = CreateFileA(fresh.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    const bool isWritten = file != INVALID_HANDLE_VALUE && WriteAll(file, text);
    m_error = isWritten ? 0 : static_cast<int>(GetLastError());
    if (file != INVALID_HANDLE_VALUE)
        (void)CloseHandle(file);
    if (m_error == 0 &&
        !MoveFileExA(fresh.c_str(), m_path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        m_error = static_cast<int>(GetLastError());
    if (m_error != 0)
        (void)DeleteFileA(fresh.c_str());
    return m_error == 0;
}

} // namespace sdk
