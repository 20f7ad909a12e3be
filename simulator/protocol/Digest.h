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

/// The answer (RFC 7616, SHA-256, qop "auth") to the nonce in the credentials, for one user and password.
class CDigestSecret
{
public:
    CDigestSecret(const std::string& user, const std::string& realm, const std::string& password);

    /// Whether the credentials are this user's for the method and target. The nonce itself is not judged.
    bool Proves(const std::map<std::string, std::string>& credentials, const std::string& method,
                const std::string& target) const;

private:
    const std::string m_user;
    const std::string m_realm;
    const std::string m_secret; ///< SHA-256 of user, realm and password
};

} // namespace simulator
