#pragma once

#include <cstddef>
#include <cstdint>

namespace crash {

/// Copies memory of this process from the address. False, and never a fault, when not all of it can be read.
/// Safe in a signal handler.
bool ReadMemory(std::uint64_t address, void* to, std::size_t size);

template<typename T>
bool ReadMemory(std::uint64_t address, T& to)
{
    return ReadMemory(address, &to, sizeof to);
}

} // namespace crash
