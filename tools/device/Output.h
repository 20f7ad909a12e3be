#pragma once

#include "device/ErrorTexts.h"

#include <string>
#include <vector>

namespace devicetool {

using Row = std::vector<std::string>;

/// Rows in columns, two blanks between them, no blanks at the ends.
std::string Columns(const std::vector<Row>& rows);

/// A text as a JSON string, with its quotation marks.
std::string JsonString(const std::string& text);

/// Pieces of JSON as a list.
std::string JsonList(const std::vector<std::string>& pieces);

/// An error as a JSON object: error, module, own, text.
std::string JsonFailure(const Failure& failure);

} // namespace devicetool
