#pragma once

#include "DeviceStructures/Values.h"

#include <string>
#include <string_view>

namespace devices {

/// A structure as a JSON object on one line, its members in their order: numbers as numbers, texts as
/// strings, sets as ascending lists, octets as hexadecimal digits, structures as objects, several elements as
/// a list. The size, reserved bytes and secrets are left out. The bytes must have passed Check.
std::string ToJson(const Layout& layout, const std::uint8_t* bytes);

/// Puts the members of a JSON object into a structure; those that are missing keep what bytes has. What is
/// wrong, naming the member, or nothing; bytes are changed only when all is well. Unknown members are wrong,
/// so that a mistyped one is not lost; a list may be shorter than the member's, not longer.
[[nodiscard]] std::optional<std::string> FromJson(const Layout& layout, std::string_view text, Octets& bytes);

} // namespace devices
