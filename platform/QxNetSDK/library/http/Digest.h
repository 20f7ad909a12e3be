#pragma once

#include <string>
#include <string_view>

namespace sdk {

/// A digest challenge (RFC 7616), its quoted texts without their quotes.
struct DigestChallenge
{
    std::string realm;
    std::string nonce;
    std::string opaque; ///< may be empty: left out
    bool isStale = false;
};

/// False when it is not one for SHA-256 with qop "auth", or cannot be read.
[[nodiscard]] bool ReadChallenge(std::string_view text, DigestChallenge& challenge);

/// Who logs in, and for what.
struct DigestLogin
{
    std::string_view user;
    std::string_view password;
    std::string_view method;
    std::string_view target;
    std::string_view clientNonce;
};

/// The value of the header Authorization, with the count 00000001.
std::string DigestAuthorization(const DigestChallenge& challenge, const DigestLogin& login);

/// 32 hexadecimal digits that nobody can guess.
std::string NewClientNonce();

} // namespace sdk
