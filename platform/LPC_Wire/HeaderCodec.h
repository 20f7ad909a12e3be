#pragma once

#include "LPC_Wire/Records.h"

#include <cstddef>
#include <string>

namespace lpc {

/// Bytes that the headers take in a frame; 0 when they are more or longer than the limits allow.
std::size_t EncodedHeaderBytes(const HeaderMap& headers);

/// Whether all keys and values are UTF-8, as the other end requires.
bool AreUtf8(const HeaderMap& headers);

/// Appends the headers: their count, then for each the length of the key, the key, the length of the value,
/// the value.
void AppendHeaders(const HeaderMap& headers, std::string& out);

/// Reads what AppendHeaders wrote. False for a length that points outside, a repeated or empty key, too many
/// headers, what is not UTF-8, or bytes left over.
bool ReadHeaders(const char* data, std::size_t size, HeaderMap& headers);

} // namespace lpc
