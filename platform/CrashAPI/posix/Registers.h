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

/// The processor's registers at the place of a signal, from the third argument of its handler. Their count; 0
/// on a processor that is not known here.
std::size_t ReadRegisters(const void* context, Register (&registers)[kMostRegisters]);

/// Where a thread was at a signal; all 0 on a processor that is not known here.
struct ProgramPlace
{
    std::uint64_t programCounter = 0;
    std::uint64_t stackPointer = 0;
    std::uint64_t framePointer = 0;
    std::uint64_t linkRegister = 0; ///< 0 on processors that have none.
};

ProgramPlace ReadPlace(const void* context);

/// Where a function returns to of which nothing has run yet.
bool ReadReturnAddress(const ProgramPlace& place, std::uint64_t& address);

} // namespace crash
