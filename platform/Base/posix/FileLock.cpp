#include "Base/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace Base {

CFileLock::~CFileLock()
{
    if (m_file >= 0)
        (void)::close(static_cast<int>(m_file));
}

CFileLock::Result CFileLock::Take(const std::string& path)
{
    m_file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_file < 0)
        return Result::Failed;
    if (::flock(static_cast<int>(m_file), LOCK_EX | LOCK_NB) == 0)
        return Result::Held;
    return errno == EWOULDBLOCK ? Result::Busy : Result::Failed;
}

} // namespace Base
