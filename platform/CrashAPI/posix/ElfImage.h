#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace crash {

/// A program or library as it lies in memory. All reading is guarded: what is no sound image gives nothing.
/// Safe in a signal handler.
struct ElfImage
{
    /// What the loader added to the addresses in the file; the file's own addresses are those that debuggers
    /// and symbol tables use.
    std::uint64_t bias = 0;
    std::uint64_t end = 0; ///< Behind its last byte in memory.
    std::uint64_t dynamic = 0;
    std::array<std::uint8_t, 20> buildId{};
    std::size_t buildIdSize = 0; ///< 0: it has none.
};

/// Reads the image that begins at the address. False when none begins there.
bool ReadElfImage(std::uint64_t start, ElfImage& image);

struct FunctionName
{
    std::array<char, 256> text{};
    std::uint64_t offset = 0; ///< From the function's first byte.
};

/// The exported function that the address lies in. False when there is none.
bool FindFunction(const ElfImage& image, std::uint64_t address, FunctionName& name);

} // namespace crash
