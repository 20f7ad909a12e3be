#pragma once

#include <cstddef>
#include <string>

namespace protocol {

/// The longest text of a message that a log line holds, in bytes.
constexpr std::size_t kLoggedTextLimit = 4096;

/// A received text in the form in which it may stand in a log line: cut to kLoggedTextLimit, on one line, in
/// UTF-8, and with credentials replaced by "***". Works on any bytes, also when they are not JSON.
///
/// CredentialsInText.h says what a credential is, and that one in doubt is masked. Any thread.
std::string LoggableText(const std::string& text);

} // namespace protocol
