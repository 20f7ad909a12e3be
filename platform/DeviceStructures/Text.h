#pragma once

#include "DeviceStructures/Values.h"

#include <string>
#include <string_view>

namespace devices {

/// A structure for reading: a line a member with its path, as SetMember takes it, and its value, in columns.
/// Equal neighbours of a list share their lines; what is all zero is one line with "-". The bytes must have
/// passed Check.
std::string ToText(const Layout& layout, const std::uint8_t* bytes);

/// A text of a device as it may be shown on a terminal: control characters, which could move the cursor or
/// worse, as "\u001b".
std::string Visible(std::string_view text);

} // namespace devices
