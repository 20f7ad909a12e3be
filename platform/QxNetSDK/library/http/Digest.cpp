#include "QxNetSDK/library/http/Digest.h"

#include "QxNetSDK/library/http/Hexadecimal.h"

#include <algorithm>
#include <map>
#include <openssl/evp.h>
#include <openssl/rand.h>
#include <stdexcept>

namespace sdk {

namespace {

constexpr char kCount[] = "00000001";

std::string Sha256(const std::string& text)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned length = 0;
    if (EVP_Digest(text.data(), text.size(), digest, &length, EVP_sha256(), nullptr) != 1)
        throw std::runtime_error("no SHA-256");
    return Hexadecimal(digest, length);
}

void SkipBlanks(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
}

/// Takes a quoted text, with its quotes and escapes removed; false when it does not end.
bool TakeQuoted(std::string_view& text, std::string& value)
{
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '"') {
            text.remove_prefix(i + 1);
            return true;
        }
        if (text[i] == '\\' && ++i == text.size())
            return false;
        value += text[i];
    }
    return false;
}

std::string Lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
    return text;
}

/// Takes `name=value` or `name="value"`, and the comma behind it.
bool TakeParameter(std::string_view& text, std::string& name, std::string& value)
{
    const std::size_t end = text.find_first_of("= \t,\"");
    if (end == std::string_view::npos || end == 0)
        return false;
    name = Lowered(std::string(text.substr(0, end)));
    text.remove_prefix(end);
    SkipBlanks(text);
    if (text.empty() || text.front() != '=')
        return false;
    text.remove_prefix(1);
    SkipBlanks(text);
    if (!text.empty() && text.front() == '"') {
        if (!TakeQuoted(text, value))
            return false;
    } else {
        const std::size_t length = std::min(text.find_first_of(" \t,"), text.size());
        value = text.substr(0, length);
        text.remove_prefix(length);
    }
    SkipBlanks(text);
    if (text.empty())
        return true;
    const bool isComma = text.front() == ',';
    text.remove_prefix(1);
    SkipBlanks(text);
    return isComma;
}

/// Whether a list such as "auth,auth-int" names it.
bool Lists(std::string_view list, std::string_view wanted)
{
    while (!list.empty()) {
        const std::size_t end = std::min(list.find_first_of(", "), list.size());
        if (list.substr(0, end) == wanted)
            return true;
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return false;
}

std::string Quoted(std::string_view text)
{
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted += '"';
}

std::string Response(const DigestChallenge& challenge, const DigestLogin& login)
{
    const std::string who =
        std::string(login.user).append(":").append(challenge.realm).append(":").append(login.password);
    const std::string what = std::string(login.method).append(":").append(login.target);
    return Sha256(Sha256(who) + ":" + challenge.nonce + ":" + kCount + ":" + std::string(login.clientNonce) +
                  ":auth:" + Sha256(what));
}

} // namespace

bool ReadChallenge(std::string_view text, DigestChallenge& challenge)
{
    constexpr std::size_t kScheme = sizeof "Digest";
    // Its parts become header lines of ours.
    const auto isControl = [](unsigned char c) { return (c < 0x20 && c != '\t') || c == 0x7F; };
    if (text.size() < kScheme || std::any_of(text.begin(), text.end(), isControl))
        return false;
    text.remove_prefix(kScheme);
    SkipBlanks(text);
    std::map<std::string, std::string> values;
    while (!text.empty()) {
        std::string name;
        std::string value;
        if (!TakeParameter(text, name, value) || !values.emplace(name, value).second)
            return false;
    }
    challenge = {values["realm"], values["nonce"], values["opaque"], Lowered(values["stale"]) == "true"};
    return values["algorithm"] == "SHA-256" && Lists(values["qop"], "auth") && !challenge.nonce.empty();
}

std::string DigestAuthorization(const DigestChallenge& challenge, const DigestLogin& login)
{
    std::string text = "Digest username=" + Quoted(login.user);
    text += ", realm=" + Quoted(challenge.realm);
    text += ", nonce=" + Quoted(challenge.nonce);
    text += ", uri=" + Quoted(login.target);
    text += ", algorithm=SHA-256, qop=auth, nc=";
    text += kCount;
    text += ", cnonce=" + Quoted(login.clientNonce);
    text += ", response=\"" + Response(challenge, login) + "\"";
    if (!challenge.opaque.empty())
        text += ", opaque=" + Quoted(challenge.opaque);
    return text;
}

std::string NewClientNonce()
{
    unsigned char bytes[16];
    if (RAND_bytes(bytes, sizeof bytes) != 1)
        throw std::runtime_error("no random numbers");
    return Hexadecimal(bytes, sizeof bytes);
}

} // namespace sdk
