#include "QxNetSDK/library/session/TrustFile.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace sdk {

namespace {

constexpr std::size_t kMostBytes = 4 * 1024 * 1024;
constexpr int kLockAttempts = 100;
constexpr std::chrono::milliseconds kLockPause{10};

/// The system has no time limit for it.
bool Lock(int file)
{
    for (int attempt = 1; flock(file, LOCK_EX | LOCK_NB) != 0; ++attempt) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || attempt == kLockAttempts)
            return false;
        std::this_thread::sleep_for(kLockPause);
    }
    return true;
}

bool WriteAll(int file, const std::string& text)
{
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t written = write(file, text.data() + done, text.size() - done);
        if (written < 0 && errno != EINTR)
            return false;
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    return fsync(file) == 0;
}

} // namespace

CTrustFile::CTrustFile(const std::string& path) : m_path(path)
{
    m_lock = open((path + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_lock < 0 || !Lock(static_cast<int>(m_lock)))
        m_error = errno;
}

CTrustFile::~CTrustFile()
{
    if (m_lock >= 0)
        (void)close(static_cast<int>(m_lock));
}

bool CTrustFile::Read(std::string& text)
{
    text.clear();
    if (m_error != 0)
        return false;
    const int file = open(m_path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        m_error = errno == ENOENT ? 0 : errno;
        return m_error == 0;
    }
    char part[65536];
    ssize_t count = 0;
    while ((count = read(file, part, sizeof part)) > 0 && text.size() <= kMostBytes)
        text.append(part, static_cast<std::size_t>(count));
    m_error = count < 0 ? errno : text.size() > kMostBytes ? EFBIG : 0;
    (void)close(file);
    return m_error == 0;
}

bool CTrustFile::Write(const std::string& text)
{
    if (m_error != 0)
        return false;
    const std::string fresh = m_path + ".new";
    const int file = open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (file < 0 || fchmod(file, 0600) != 0 || !WriteAll(file, text))
        m_error = errno;
    if (file >= 0)
        (void)close(file);
    if (m_error == 0 && rename(fresh.c_str(), m_path.c_str()) != 0)
        m_error = errno;
    if (m_error != 0)
        (void)unlink(fresh.c_str());
    return m_error == 0;
}

} // namespace sdk
