#pragma once

#include <cjson/cJSON.h>

#include <memory>
#include <string>

/// Ownership of cJSON trees, and the way from text to tree and back. Every function may be called from any
/// thread.
namespace protocol::json {

struct TreeDeleter
{
    void operator()(cJSON* item) const { cJSON_Delete(item); }
};
using Tree = std::unique_ptr<cJSON, TreeDeleter>;

/// The tree of a whole JSON text. Nothing when the text is not JSON, is followed by anything but blanks, is
/// nested deeper than CJSON_NESTING_LIMIT, has more than a million values of less than 12 bytes on average,
/// is not UTF-8, or holds a NUL (also as an escape, which a C string would cut); error then says what is
/// wrong and at which byte. Writes no log line.
Tree ParseText(const std::string& text, std::string& error);

/// The shortest text of an item.
std::string PrintText(const cJSON* item);

/// As PrintText, with every number in the shortest form that reads back as the same value, which cJSON's own
/// printing does not promise.
std::string PrintExact(const cJSON* item);

/// New items. Out of memory throws std::bad_alloc.
Tree NewObject();
Tree NewArray();
Tree NewBool(bool value);

/// Bytes that are not UTF-8, and NULs, become U+FFFD, so that the body stays readable.
Tree NewText(const std::string& value);

/// Integers beyond 2^53 - 1, which a JSON number does not hold exactly everywhere, become their decimal text.
Tree NewInteger(long long value);
Tree NewInteger(unsigned long long value);

/// A value that is not finite becomes null.
Tree NewDouble(double value);

/// An item that prints as the given JSON text. A text that is not JSON is logged and becomes null.
Tree NewRaw(const std::string& text);

/// Adds the item to an object or array. The key must outlive the tree.
void Attach(cJSON* object, const char* key, Tree item);
void Append(cJSON* array, Tree item);

/// The object's first member of that key, in any letter case; nothing for other items.
const cJSON* Member(const cJSON* object, const char* key);

} // namespace protocol::json
