#pragma once

#include "Base/PrintfFormat.h"

#include <string>
#include <string_view>
#include <vector>

namespace Base {

namespace StringUtil {

/// The text with every occurrence of from replaced by to, found from the left; what was put in is not looked
/// at again. An empty from changes nothing.
std::string StringReplace(std::string_view text, std::string_view from, std::string_view to);

/// The parts between separators, empty ones kept; one part for a text without separator.
std::vector<std::string> Split(std::string_view text, char separator);

/// The text cut to at most limit bytes, never inside a UTF-8 sequence.
std::string CutUtf8(std::string_view text, std::size_t limit);

/// printf into a string.
std::string Format(const char* format, ...) BASE_PRINTF_FORMAT(1, 2);

} // namespace StringUtil

/// Text of the process's local code page (the locale's character set; Windows: the ANSI code page) as UTF-8,
/// and back. A byte that the code page does not know becomes "?".
std::string LocalToUTF8(const std::string& text);
std::string UTF8ToLocal(const std::string& text);

} // namespace Base
