#pragma once

#include <cstddef>
#include <cstdint>

namespace simulator {

/// What a command's channel number counts.
enum class CommandScope { Device, Channel };

/// One configuration structure with its commands; set is 0 when it cannot be changed.
struct CommandRow
{
    unsigned get;
    unsigned set;
    std::size_t size;
    CommandScope scope;
};

/// Null for an unknown command.
const CommandRow* FindGet(unsigned command);
const CommandRow* FindSet(unsigned command);

} // namespace simulator
