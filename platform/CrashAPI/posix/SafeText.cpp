#include "CrashAPI/posix/SafeText.h"

#include <unistd.h>

#include <cerrno>

namespace crash {

SafeText& SafeText::Add(const char* text)
{
    while (*text && m_size + 1 < m_text.size())
        m_text[m_size++] = *text++;
    m_text[m_size] = 0;
    return *this;
}

SafeText& SafeText::AddDecimal(std::int64_t value, int digits)
{
    if (value < 0)
        Add("-");
    // Negated as unsigned, since the smallest number has no positive counterpart.
    const auto bits = static_cast<std::uint64_t>(value);
    AddNumber(value < 0 ? 0 - bits : bits, 10, digits);
    return *this;
}

SafeText& SafeText::AddHex(std::uint64_t value, int digits)
{
    Add("0x");
    AddNumber(value, 16, digits);
    return *this;
}

SafeText& SafeText::AddBytes(const std::uint8_t* bytes, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        AddNumber(bytes[i], 16, 2);
    return *this;
}

void SafeText::AddNumber(std::uint64_t value, unsigned base, int digits)
{
    std::array<char, 24> text{};
    std::size_t first = text.size() - 1;
    while (first > 0 && (value > 0 || digits > 0)) {
        text[--first] = "0123456789abcdef"[value % base];
        value /= base;
        --digits;
    }
    Add(&text[first]);
}

bool SafeText::WriteTo(int fd)
{
    const bool written = WriteAll(fd, m_text.data(), m_size);
    m_size = 0;
    m_text[0] = 0;
    return written;
}

bool WriteAll(int fd, const char* data, std::size_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(fd, data, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        data += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

} // namespace crash
