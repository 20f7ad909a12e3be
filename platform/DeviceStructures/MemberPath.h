#pragma once

#include "DeviceStructures/Values.h"

#include <string>
#include <string_view>

namespace devices {

/// Sets the members that a path names to a value as a person writes it, for example "week.days[0-4].allDay"
/// to "yes": elements count from 0, "[0-4]" names several, no brackets all. Numbers are decimal or one of the
/// value's names, sets "1-4,7" or "none", octets hexadecimal digits. What is wrong, or nothing; bytes are
/// changed only when all is well. Secrets are refused: what people write so can be seen by others.
[[nodiscard]] std::optional<std::string> SetMember(const Layout& layout, Octets& bytes, std::string_view path,
                                                   std::string_view value);

/// The name of a number's value; empty when it has none.
std::string_view ValueName(const Field& field, std::int64_t value);

/// "1-4,7" as ascending numbers from 1 to last, "none" as no number; nothing for another text.
std::optional<std::vector<unsigned>> ParseNumbers(std::string_view text, unsigned last);
std::string FormatNumbers(const std::vector<unsigned>& numbers);

} // namespace devices
