#pragma once

#include "LPC_Wire/Records.h"

#include <cjson/cJSON.h>

#include <memory>
#include <string>

namespace lpctool {

/// A JSON value that is shared and never changed. Empty: no value at all (not JSON null).
using JsonValue = std::shared_ptr<const cJSON>;

/// Takes over a tree that cJSON made; an empty value for a null pointer.
JsonValue OwnJson(cJSON* tree);

/// The value of a whole text. Empty, with the place of the fault in error when that is given, for anything
/// that is not exactly one JSON value.
JsonValue ParseJson(const std::string& text, std::string* error = nullptr);

/// The value of a message body: parsed, or the text itself as a JSON string when it is no JSON.
JsonValue BodyValue(const std::string& body);

/// Headers as an object of texts.
JsonValue HeadersValue(const lpc::HeaderMap& headers);

/// The body that a value stands for: a string as it is, anything else as JSON text; empty for no value.
std::string BodyText(const JsonValue& value);

/// On one line.
std::string ToText(const cJSON& value);

/// Over several lines, indented, for people.
std::string ToPrettyText(const cJSON& value);

/// The member of an object, by its exact name; null when it is missing.
const cJSON* Member(const cJSON* object, const char* name);

/// Puts a new value in an item's place; it keeps the item's name. The item is deleted.
void ReplaceItem(cJSON* parent, cJSON* item, cJSON* replacement);

/// The text of a string member; empty when it is missing or no string.
std::string TextMember(const cJSON* object, const char* name);

} // namespace lpctool
