#pragma once

#include <cstddef>
#include <cstdint>

namespace lpc {

/// Writes an unsigned number with its lowest byte first.
template<typename Number>
void PutNumber(char* out, Number number)
{
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        out[i] = static_cast<char>((number >> (8 * i)) & 0xFF);
}

/// Reads an unsigned number whose lowest byte comes first.
template<typename Number>
Number GetNumber(const char* in)
{
    Number number = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        number = static_cast<Number>(number | (Number{static_cast<unsigned char>(in[i])} << (8 * i)));
    return number;
}

} // namespace lpc
