#pragma once

#include <string>

namespace Base::GuidUtil {

/// A new identifier of 36 characters: lower-case hexadecimal digits in groups of 8-4-4-4-12 (RFC 9562,
/// version 7). The first 48 bits are the time of its making in milliseconds, so that an index of identifiers
/// grows at its end and an insert touches a page that the last one touched too; 74 bits are random.
std::string CreateGuid();

} // namespace Base::GuidUtil
