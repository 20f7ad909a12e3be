#pragma once

#include "DeviceStructures/Layout.h"

#include <optional>
#include <string>
#include <vector>

namespace devices {

/// The octets of one structure.
using Octets = std::vector<std::uint8_t>;

/// What a fresh device has.
Octets Defaults(const Layout& layout);

/// What is wrong with a structure, naming the first bad member and its value; nothing when all is well.
/// Checked are the size, the size member, ranges, and that texts end and are UTF-8. Reserved bytes may hold
/// anything: a newer device may have put members there.
std::optional<std::string> Check(const Layout& layout, const void* bytes, std::size_t size);

/// The number of a U8, U16, U32, I32 or Size field at its place.
std::int64_t ReadNumber(const Field& field, const std::uint8_t* at);
void WriteNumber(const Field& field, std::uint8_t* at, std::int64_t value);

/// The text of a field up to its zero byte or end.
std::string ReadText(const Field& field, const std::uint8_t* at);
/// False when it is too long or holds a zero byte.
[[nodiscard]] bool WriteText(const Field& field, std::uint8_t* at, std::string_view text);

/// The members of a set, ascending; writing gives false when one is outside of the set.
std::vector<unsigned> ReadNumbers(const Field& field, const std::uint8_t* at);
[[nodiscard]] bool WriteNumbers(const Field& field, std::uint8_t* at, const std::vector<unsigned>& numbers);

/// Octets as hexadecimal digits; reading gives false when they are not exactly the field's.
std::string ReadHex(const Field& field, const std::uint8_t* at);
[[nodiscard]] bool WriteHex(const Field& field, std::uint8_t* at, std::string_view digits);

bool IsNumber(const Field& field);
bool IsShown(const Field& field); ///< no size, no reserved bytes, no secret

/// Why a number is refused: "13 is not within 1 to 12".
std::string OutOfRange(const Field& field, std::int64_t value);

} // namespace devices
