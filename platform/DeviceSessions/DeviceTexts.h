#pragma once

#include <cstddef>
#include <string>

namespace devices {

/// A text that a device sent: up to its zero byte or the capacity, cut to whole characters of UTF-8. What is
/// not UTF-8, or a control character, becomes "?". Shorter than the capacity.
std::string CleanText(const char* text, std::size_t capacity);

} // namespace devices
