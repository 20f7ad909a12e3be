#include "XPR/XPR_File.h"

#include "Base/Error.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>

struct XPR_File
{
    int fd;
};

namespace {

/// The kernel moves at most this many bytes in one call.
constexpr std::size_t kLargestTransfer = 0x7ffff000;

std::optional<int> AccessFlags(int flags)
{
    switch (flags) {
    case XPR_OPEN_READ:
        return O_RDONLY;
    case XPR_OPEN_WRITE:
        return O_WRONLY;
    case XPR_OPEN_READ_WRITE:
        return O_RDWR;
    }
    return std::nullopt;
}

std::optional<int> ModeFlags(int mode)
{
    switch (mode) {
    case XPR_MODE_EXISTING:
        return 0;
    case XPR_MODE_CREATE:
        return O_CREAT;
    case XPR_MODE_CREATE_NEW:
        return O_CREAT | O_EXCL;
    case XPR_MODE_TRUNCATE:
        return O_CREAT | O_TRUNC;
    }
    return std::nullopt;
}

bool Failed(int error)
{
    Base::Error::SetLastError(error);
    return false;
}

/// Not blocking, so that opening a pipe does not wait for its other end.
int OpenWithoutWaiting(const char* path, int flags)
{
    int fd = -1;
    do
        fd = ::open(path, flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
    while (fd < 0 && errno == EINTR);
    return fd;
}

bool IsOrdinaryFile(int fd)
{
    struct stat found;
    if (::fstat(fd, &found) != 0)
        return Failed(errno);
    if (S_ISREG(found.st_mode))
        return true;
    return Failed(S_ISDIR(found.st_mode) ? EISDIR : EINVAL);
}

/// Repeats a transfer, which may move less than asked for, until all is moved or nothing comes any more.
template<typename Transfer>
std::int64_t MoveAll(std::size_t count, Transfer transfer)
{
    std::size_t done = 0;
    while (done < count) {
        const ssize_t moved = transfer(done, std::min(count - done, kLargestTransfer));
        if (moved < 0 && errno == EINTR)
            continue;
        if (moved < 0) {
            Base::Error::SetLastError(errno);
            return -1;
        }
        if (moved == 0)
            break;
        done += static_cast<std::size_t>(moved);
    }
    return static_cast<std::int64_t>(done);
}

} // namespace

XPR_FileHandle XPR_OpenFile(const char* path, int flags, int mode)
{
    const std::optional<int> access = AccessFlags(flags);
    const std::optional<int> before = ModeFlags(mode);
    if (!path || !access || !before || (flags == XPR_OPEN_READ && mode != XPR_MODE_EXISTING)) {
        Base::Error::SetLastError(EINVAL);
        return nullptr;
    }
    const int fd = OpenWithoutWaiting(path, *access | *before);
    if (fd < 0) {
        Base::Error::SetLastError(errno);
        return nullptr;
    }
    if (!IsOrdinaryFile(fd)) {
        ::close(fd);
        return nullptr;
    }
    return std::make_unique<XPR_File>(XPR_File{fd}).release();
}

std::int64_t XPR_ReadFile(XPR_FileHandle file, void* buffer, std::size_t count)
{
    return MoveAll(count, [&](std::size_t done, std::size_t left) {
        return ::read(file->fd, static_cast<char*>(buffer) + done, left);
    });
}

std::int64_t XPR_WriteFile(XPR_FileHandle file, const void* data, std::size_t count)
{
    return MoveAll(count, [&](std::size_t done, std::size_t left) {
        return ::write(file->fd, static_cast<const char*>(data) + done, left);
    });
}

bool XPR_FileStat(XPR_FileHandle file, XPR_STAT* stat)
{
    struct stat found;
    if (::fstat(file->fd, &found) != 0)
        return Failed(errno);
    *stat = {found.st_size, found.st_mtime};
    return true;
}

bool XPR_CloseFile(XPR_FileHandle file)
{
    if (!file)
        return Failed(EBADF);
    const std::unique_ptr<XPR_File> owned(file);
    // After EINTR the descriptor is closed all the same; closing it again could hit another file.
    return ::close(owned->fd) == 0 || errno == EINTR || Failed(errno);
}
