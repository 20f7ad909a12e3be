#pragma once

#include <string>

namespace devices {

/// The tables of docs/device-structures.md in Markdown: all parameters with their commands, then the layout
/// of every structure.
std::string StructureTables();

} // namespace devices
