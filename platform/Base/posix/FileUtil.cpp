#include "Base/FileUtil.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>

namespace Base::FileUtil {

namespace {

/// A file descriptor that closes itself.
class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Get() const { return m_fd; }
    bool IsOpen() const { return m_fd >= 0; }

private:
    int m_fd;
};

bool WriteAll(int fd, const std::string& content)
{
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t written = ::write(fd, content.data() + done, content.size() - done);
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            done += static_cast<std::size_t>(written);
    }
    return true;
}

std::string HomeDir()
{
    if (const char* home = std::getenv("HOME"); home && *home)
        return home;
    const passwd* user = ::getpwuid(::getuid());
    return user && user->pw_dir ? user->pw_dir : "";
}

std::string WithSlash(std::string dir)
{
    if (!dir.empty() && dir.back() != '/')
        dir += '/';
    return dir;
}

void SyncFolderOf(const std::string& path)
{
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    const Descriptor open(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (open.IsOpen())
        ::fsync(open.Get());
}

/// Whether the path still leads to the open file.
bool IsStillNamed(int fd, const std::string& path)
{
    struct stat open;
    struct stat named;
    return ::fstat(fd, &open) == 0 && ::lstat(path.c_str(), &named) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

/// The file, empty and locked by this caller alone until it is closed; -1 when the system refuses.
int OpenAlone(const std::string& path)
{
    for (;;) {
        const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
        if (fd < 0)
            return -1;
        while (::flock(fd, LOCK_EX) != 0 && errno == EINTR)
            continue;
        // Whoever held the lock may have put the file in place meanwhile.
        if (IsStillNamed(fd, path)) {
            if (::fchmod(fd, 0600) == 0 && ::ftruncate(fd, 0) == 0)
                return fd;
            ::close(fd);
            return -1;
        }
        ::close(fd);
    }
}

} // namespace

std::string GetCurExeDir()
{
    std::array<char, PATH_MAX> path{};
    const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size() - 1);
    if (length <= 0)
        return "./";
    const std::string exe(path.data(), static_cast<std::size_t>(length));
    return exe.substr(0, exe.rfind('/') + 1);
}

std::string UserDataRoot()
{
    if (const char* root = std::getenv("VANTOR_USER_DATA"); root && *root)
        return WithSlash(root);
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data)
        return WithSlash(data) + "Vantor/";
    const std::string home = HomeDir();
    return home.empty() ? std::string() : WithSlash(home) + ".local/share/Vantor/";
}

bool ReadFile(const std::string& path, std::string& content, std::size_t limit)
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.IsOpen())
        return false;
    content.clear();
    std::array<char, 64 * 1024> buffer;
    for (;;) {
        const ssize_t got = ::read(file.Get(), buffer.data(), buffer.size());
        if (got == 0)
            return true;
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0 || content.size() + static_cast<std::size_t>(got) > limit)
            return false;
        content.append(buffer.data(), static_cast<std::size_t>(got));
    }
}

bool WriteFileAtomically(const std::string& path, const std::string& content)
{
    const std::string temporary = path + ".writing";
    const Descriptor file(OpenAlone(temporary));
    if (!file.IsOpen())
        return false;
    if (WriteAll(file.Get(), content) && ::fsync(file.Get()) == 0 && PutInPlace(temporary, path))
        return true;
    ::unlink(temporary.c_str());
    return false;
}

bool PutInPlace(const std::string& from, const std::string& to)
{
    if (::rename(from.c_str(), to.c_str()) != 0)
        return false;
    SyncFolderOf(to);
    return true;
}

bool MakeDirs(const std::string& path)
{
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        const std::string part = path.substr(0, end);
        if (::mkdir(part.c_str(), 0700) != 0 && errno != EEXIST && errno != EISDIR)
            if (::access(part.c_str(), F_OK) != 0)
                return false;
        if (end == std::string::npos || end + 1 == path.size())
            break;
    }
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

} // namespace Base::FileUtil
