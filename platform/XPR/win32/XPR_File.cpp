#include "XPR/XPR_File.h"

#include "Base/Error.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

#include <windows.h>

struct XPR_File
{
    HANDLE handle;
};

namespace {

constexpr std::size_t kLargestTransfer = 0x40000000;

std::wstring Wide(const char* utf8)
{
    const int length = ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8, -1, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(std::max(length, 1)), L'\0');
    ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8, -1, text.data(), length);
    text.pop_back();
    return text;
}

std::optional<DWORD> Disposition(int mode)
{
    switch (mode) {
    case XPR_MODE_EXISTING:
        return OPEN_EXISTING;
    case XPR_MODE_CREATE:
        return OPEN_ALWAYS;
    case XPR_MODE_CREATE_NEW:
        return CREATE_NEW;
    case XPR_MODE_TRUNCATE:
        return CREATE_ALWAYS;
    }
    return std::nullopt;
}

bool Failed(DWORD error)
{
    Base::Error::SetLastError(static_cast<int>(error));
    return false;
}

/// A transfer gives the bytes moved, or nothing on failure.
template<typename Transfer>
std::int64_t MoveAll(std::size_t count, Transfer transfer)
{
    std::size_t done = 0;
    while (done < count) {
        const std::optional<DWORD> moved =
            transfer(done, static_cast<DWORD>(std::min(count - done, kLargestTransfer)));
        if (!moved) {
            Failed(::GetLastError());
            return -1;
        }
        if (*moved == 0)
            break;
        done += *moved;
    }
    return static_cast<std::int64_t>(done);
}

} // namespace

XPR_FileHandle XPR_OpenFile(const char* path, int flags, int mode)
{
    const std::optional<DWORD> disposition = Disposition(mode);
    const bool knownFlags = flags >= XPR_OPEN_READ && flags <= XPR_OPEN_READ_WRITE;
    if (!path || !disposition || !knownFlags || (flags == XPR_OPEN_READ && mode != XPR_MODE_EXISTING)) {
        Failed(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const DWORD access =
        (flags & XPR_OPEN_READ ? GENERIC_READ : 0) | (flags & XPR_OPEN_WRITE ? GENERIC_WRITE : 0);
    const HANDLE handle =
        ::CreateFileW(Wide(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, *disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        Failed(::GetLastError());
        return nullptr;
    }
    if (::GetFileType(handle) != FILE_TYPE_DISK) {
        ::CloseHandle(handle);
        Failed(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return std::make_unique<XPR_File>(XPR_File{handle}).release();
}

std::int64_t XPR_ReadFile(XPR_FileHandle file, void* buffer, std::size_t count)
{
    return MoveAll(count, [&](std::size_t done, DWORD left) -> std::optional<DWORD> {
        DWORD moved = 0;
        if (!::ReadFile(file->handle, static_cast<char*>(buffer) + done, left, &moved, nullptr))
            return std::nullopt;
        return moved;
    });
}

std::int64_t XPR_WriteFile(XPR_FileHandle file, const void* data, std::size_t count)
{
    return MoveAll(count, [&](std::size_t done, DWORD left) -> std::optional<DWORD> {
        DWORD moved = 0;
        if (!::WriteFile(file->handle, static_cast<const char*>(data) + done, left, &moved, nullptr))
            return std::nullopt;
        return moved;
    });
}

bool XPR_FileStat(XPR_FileHandle file, XPR_STAT* stat)
{
    BY_HANDLE_FILE_INFORMATION found;
    if (!::GetFileInformationByHandle(file->handle, &found))
        return Failed(::GetLastError());
    const auto join = [](DWORD high, DWORD low) { return static_cast<std::int64_t>(high) << 32 | low; };
    // File times count 100 ns from 1601 on, which is this many seconds before 1970.
    constexpr std::int64_t kSecondsTo1970 = 11644473600;
    const std::int64_t ticks =
        join(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime);
    *stat = {join(found.nFileSizeHigh, found.nFileSizeLow), ticks / 10000000 - kSecondsTo1970};
    return true;
}

bool XPR_CloseFile(XPR_FileHandle file)
{
    if (!file)
        return Failed(ERROR_INVALID_HANDLE);
    const std::unique_ptr<XPR_File> owned(file);
    return ::CloseHandle(owned->handle) || Failed(::GetLastError());
}
