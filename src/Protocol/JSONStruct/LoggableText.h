#pragma once

#include <cstddef>
#include <string>

namespace protocol {

/// The longest text of a message that a log line holds, in bytes.
constexpr std::size_t kLoggedTextLimit = 4096;

/// A received text in the form in which it may stand in a log line: cut to kLoggedTextLimit, on one line, in
/// UTF-8, and with credentials replaced by "***". Works on any bytes, also when they are not JSON.
///
/// A credential is the value of a key that Base::IsCredentialName knows; of a key that is written with
/// escapes; and what stands before the "@" of a url. One that is cut off, or whose end is in doubt, is masked
/// further rather than shown. Any thread.
std::string LoggableText(const std::string& text);

} // namespace protocol
