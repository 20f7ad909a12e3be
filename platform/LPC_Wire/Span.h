#pragma once

#include <cstddef>

namespace lpc {

/// Memory to be written from; owned elsewhere.
struct ConstSpan
{
    const char* data = nullptr;
    std::size_t size = 0;
};

/// Memory to be read into; owned elsewhere.
struct MutableSpan
{
    char* data = nullptr;
    std::size_t size = 0;
};

} // namespace lpc
