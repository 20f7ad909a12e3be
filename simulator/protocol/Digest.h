#pragma once

#include <map>
#include <string>

namespace simulator {

/// SHA-256 of the text in lower-case hexadecimal digits.
std::string Sha256Hex(const std::string& text);

/// Hexadecimal digits of that many random octets.
std::string RandomHex(std::size_t octets);

/// The members of an Authorization header "Digest name=value, ...", quotes taken off; none for anything else.
std::map<std::string, std::string> ParseDigestCredentials(const std::string& header);

/// Whether two texts are equal, in a time that does not depend on where they differ.
bool EqualsSecretly(const std::string& one, const std::string& other);

/// The realm of all devices.
constexpr const char* kRealm = "vantor-device";

/// SHA-256 of user, realm and password: what a device keeps of a password.
std::string DigestSecret(const std::string& user, const std::string& password);

/// Whether credentials (RFC 7616, SHA-256, qop "auth") come from somebody who knows the secret. Their nonce
/// is not judged.
bool ProvesSecret(const std::map<std::string, std::string>& credentials, const std::string& secret,
                  const std::string& method, const std::string& target);

} // namespace simulator
