#pragma once

#include "DeviceStructures/Values.h"

#include <string>

namespace devices {

/// A structure for reading: a line a member with its path, as SetMember takes it, and its value, in columns.
/// Equal neighbours of a list share their lines; what is all zero is one line with "-". The bytes must have
/// passed Check.
std::string ToText(const Layout& layout, const std::uint8_t* bytes);

} // namespace devices
