#pragma once

#include <string>

/// Passwords as they are kept: salted and stretched with scrypt (RFC 7914; N = 2^15, r = 8, p = 1: 32 MiB and
/// about a tenth of a second a guess). Any thread.
namespace framework {

/// "scrypt1:" with salt and hash in hexadecimal digits. A new random salt each time.
std::string HashPassword(const std::string& password);

/// Whether the hash is of this password. The time depends on neither; a text that is no hash matches none.
bool PasswordMatches(const std::string& password, const std::string& hash);

} // namespace framework
