#pragma once

#include <array>
#include <cstdint>

namespace crash {

/// A line of text put together without heap, locale or locks, for use in signal handlers. What does not fit
/// is cut.
class SafeText
{
public:
    SafeText& Add(const char* text);
    /// At least digits digits, with leading zeros.
    SafeText& AddDecimal(std::int64_t value, int digits = 1);
    /// "0x" and digits hexadecimal digits or more.
    SafeText& AddHex(std::uint64_t value, int digits = 1);

    /// Two hexadecimal digits each.
    SafeText& AddBytes(const std::uint8_t* bytes, std::size_t count);

    const char* Get() const { return m_text.data(); }

    /// Writes the line and starts a new one. False when the file takes no more.
    bool WriteTo(int fd);

private:
    void AddNumber(std::uint64_t value, unsigned base, int digits);

    /// A folder of the longest permitted path and a file name; always ends in a zero.
    std::array<char, 1100> m_text{};
    std::size_t m_size = 0;
};

/// Writes all bytes, whatever interrupts.
bool WriteAll(int fd, const char* data, std::size_t size);

} // namespace crash
