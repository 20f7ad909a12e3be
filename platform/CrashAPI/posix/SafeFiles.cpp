#include "CrashAPI/posix/SafeFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace crash {

LineReader::LineReader(const char* path) : m_file(::open(path, O_RDONLY | O_CLOEXEC)) {}

LineReader::~LineReader()
{
    if (m_file >= 0)
        ::close(m_file);
}

char* LineReader::Next()
{
    for (;;) {
        char* const line = m_buffer.data() + m_begin;
        if (void* const end = std::memchr(line, '\n', m_end - m_begin)) {
            *static_cast<char*>(end) = 0;
            m_begin = static_cast<std::size_t>(static_cast<char*>(end) - m_buffer.data()) + 1;
            return line;
        }
        if (!ReadMore())
            return nullptr;
    }
}

bool LineReader::ReadMore()
{
    std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
    ssize_t got = -1;
    do
        got = ::read(m_file, m_buffer.data() + m_end, m_buffer.size() - m_end);
    while (got < 0 && errno == EINTR);
    if (got > 0)
        m_end += static_cast<std::size_t>(got);
    return got > 0;
}

FolderReader::FolderReader(const char* path) : m_folder(::open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

FolderReader::~FolderReader()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

const char* FolderReader::Next()
{
    if (m_begin >= m_end) {
        const ssize_t got = ::getdents64(m_folder, m_buffer.data(), m_buffer.size());
        if (got <= 0)
            return nullptr;
        m_begin = 0;
        m_end = static_cast<std::size_t>(got);
    }
    const auto* entry = reinterpret_cast<const dirent64*>(m_buffer.data() + m_begin);
    m_begin += entry->d_reclen;
    return entry->d_name;
}

} // namespace crash
