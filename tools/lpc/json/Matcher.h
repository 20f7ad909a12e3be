#pragma once

#include "lpc/json/Json.h"

#include <map>
#include <optional>
#include <string>

namespace lpctool {

/// The values that "$name" stands for, by name without the "$".
using Variables = std::map<std::string, JsonValue>;

/// Where two values part.
struct Mismatch
{
    std::string path; ///< JSON path from the root, "$.data.list[2]"
    std::string wanted;
    std::string got;
};

/// The name in a text of the form "$name" (a letter or "_", then letters, digits, "_"); none for any other
/// text.
std::optional<std::string> VariableName(const char* text);

/// Compares a value with a pattern; the first difference, or none when it matches.
///
/// In a pattern the text "*" matches anything that is there. "$name" stores what it meets the first time, and
/// demands an equal value later. "$$" at the start of a text stands for "$". An object demands its own
/// members and allows others. Arrays compare element by element and in length, numbers by value, everything
/// else exactly. The variables change only when the whole matches.
std::optional<Mismatch> Match(const cJSON& pattern, const cJSON& value, Variables& variables);

/// A copy of the value in which each text "$name" is replaced by the variable and a leading "$$" by "$". An
/// empty value, with the name in unknown, when there is no such variable.
JsonValue Substitute(const JsonValue& value, const Variables& variables, std::string& unknown);

} // namespace lpctool
