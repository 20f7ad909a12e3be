#pragma once

#include <cstddef>
#include <cstdint>

namespace crash {

struct Register
{
    const char* name;
    std::uint64_t value;
};

constexpr std::size_t kMostRegisters = 40;

/// The processor's registers at the place of a signal, from the third argument of its handler. Their count;
/// the first is the program counter. 0 on a processor that is not known here.
std::size_t ReadRegisters(const void* context, Register (&registers)[kMostRegisters]);

} // namespace crash
