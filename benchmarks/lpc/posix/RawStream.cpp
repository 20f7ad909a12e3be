#include "RawStream.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <sys/socket.h>
#include <unistd.h>

namespace bench {
namespace {

constexpr std::size_t kLengthBytes = 4;
constexpr std::size_t kBufferBytes = 2 * 1024 * 1024;

} // namespace

CRawStream::CRawStream(int handle) : m_handle(handle), m_out(kBufferBytes, 'b'), m_in(kBufferBytes, '\0') {}

CRawStream::~CRawStream()
{
    close(m_handle);
}

void CRawStream::Send(std::size_t size)
{
    const auto length = static_cast<std::uint32_t>(size);
    std::memcpy(m_out.data(), &length, kLengthBytes);
    std::size_t done = 0;
    while (done < size + kLengthBytes) {
        const ssize_t bytes = write(m_handle, m_out.data() + done, size + kLengthBytes - done);
        if (bytes <= 0)
            std::exit(0); // the other process ended
        done += static_cast<std::size_t>(bytes);
    }
}

std::size_t CRawStream::Receive()
{
    if (!Fill(kLengthBytes))
        return 0;
    std::uint32_t length = 0;
    std::memcpy(&length, m_in.data() + m_begin, kLengthBytes);
    if (!Fill(kLengthBytes + length))
        return 0;
    m_begin += kLengthBytes + length;
    if (m_begin == m_end)
        m_begin = m_end = 0;
    return length;
}

bool CRawStream::Fill(std::size_t wanted)
{
    if (m_begin + wanted > m_in.size()) {
        std::memmove(m_in.data(), m_in.data() + m_begin, m_end - m_begin);
        m_end -= m_begin;
        m_begin = 0;
    }
    while (m_end - m_begin < wanted) {
        const ssize_t bytes = read(m_handle, m_in.data() + m_end, m_in.size() - m_end);
        if (bytes <= 0)
            return false;
        m_end += static_cast<std::size_t>(bytes);
    }
    return true;
}

void MakeStreamPair(int handles[2])
{
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, handles) != 0)
        std::exit(2);
}

} // namespace bench
