#pragma once

#include <cstddef>
#include <cstdint>

/// Portable files. Paths are UTF-8. Only ordinary files are opened: a folder, device or pipe is refused, so
/// that no call waits for anything but the disk. Sizes and positions are 64 bits wide.
///
/// A function that fails says so in its result and leaves the system's error number in
/// Base::Error::GetLastError. A file may be used by one thread at a time.

struct XPR_File;
/// Owned by whoever opened it, until XPR_CloseFile.
using XPR_FileHandle = XPR_File*;

/// flags of XPR_OpenFile: what the file is opened for. The numbers are our own, except the first.
constexpr int XPR_OPEN_READ = 1;
constexpr int XPR_OPEN_WRITE = 2;
constexpr int XPR_OPEN_READ_WRITE = XPR_OPEN_READ | XPR_OPEN_WRITE;

/// mode of XPR_OpenFile: what the file may be before. All but the first want XPR_OPEN_WRITE.
constexpr int XPR_MODE_EXISTING = 0x1000;   ///< It must exist.
constexpr int XPR_MODE_CREATE = 0x2000;     ///< It is created when missing, and keeps its content otherwise.
constexpr int XPR_MODE_CREATE_NEW = 0x4000; ///< It must not exist.
constexpr int XPR_MODE_TRUNCATE = 0x8000;   ///< It is created when missing, and emptied otherwise.

struct XPR_STAT
{
    std::int64_t size;     ///< In bytes.
    std::int64_t modified; ///< Of the content; seconds since 1970, universal time.
};

/// The file, positioned at its start; null on failure. New files get the permissions that the umask leaves of
/// 0666.
[[nodiscard]] XPR_FileHandle XPR_OpenFile(const char* path, int flags, int mode);

/// Reads up to count bytes from the position on; fewer only at the end of the file. The number of bytes, -1
/// on failure.
[[nodiscard]] std::int64_t XPR_ReadFile(XPR_FileHandle file, void* buffer, std::size_t count);

/// Writes count bytes at the position. count, or -1 on failure; a part may have been written then.
[[nodiscard]] std::int64_t XPR_WriteFile(XPR_FileHandle file, const void* data, std::size_t count);

[[nodiscard]] bool XPR_FileStat(XPR_FileHandle file, XPR_STAT* stat);

/// Closes the file, also when it gives false, which means that data written before may be lost. Null does
/// nothing and gives false.
bool XPR_CloseFile(XPR_FileHandle file);
