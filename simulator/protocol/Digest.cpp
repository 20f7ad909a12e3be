#include "simulator/protocol/Digest.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <vector>

namespace simulator {

namespace {

std::string Hex(const unsigned char* octets, std::size_t count)
{
    static const char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(count * 2);
    for (std::size_t i = 0; i < count; ++i) {
        text += digits[octets[i] >> 4];
        text += digits[octets[i] & 15];
    }
    return text;
}

void SkipBlanks(const std::string& text, std::size_t& at)
{
    while (at < text.size() && (text[at] == ' ' || text[at] == '\t' || text[at] == ','))
        ++at;
}

std::string TakeQuoted(const std::string& text, std::size_t& at)
{
    std::string value;
    for (++at; at < text.size() && text[at] != '"'; ++at) {
        if (text[at] == '\\' && at + 1 < text.size())
            ++at;
        value += text[at];
    }
    ++at;
    return value;
}

std::string TakeValue(const std::string& text, std::size_t& at)
{
    if (at < text.size() && text[at] == '"')
        return TakeQuoted(text, at);
    const std::size_t end = std::min(text.find_first_of(", \t", at), text.size());
    const std::string value = text.substr(at, end - at);
    at = end;
    return value;
}

} // namespace

std::string Sha256Hex(const std::string& text)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned length = 0;
    EVP_Digest(text.data(), text.size(), digest, &length, EVP_sha256(), nullptr);
    return Hex(digest, length);
}

std::string RandomHex(std::size_t octets)
{
    std::vector<unsigned char> random(octets);
    RAND_bytes(random.data(), static_cast<int>(random.size()));
    return Hex(random.data(), random.size());
}

std::map<std::string, std::string> ParseDigestCredentials(const std::string& header)
{
    std::map<std::string, std::string> members;
    if (header.compare(0, 7, "Digest ") != 0)
        return members;
    std::size_t at = 7;
    for (SkipBlanks(header, at); at < header.size(); SkipBlanks(header, at)) {
        const std::size_t equals = header.find('=', at);
        if (equals == std::string::npos)
            return {};
        const std::string name = header.substr(at, equals - at);
        at = equals + 1;
        if (!members.emplace(name, TakeValue(header, at)).second)
            return {};
    }
    return members;
}

bool EqualsSecretly(const std::string& one, const std::string& other)
{
    return one.size() == other.size() && CRYPTO_memcmp(one.data(), other.data(), one.size()) == 0;
}

std::string DigestSecret(const std::string& user, const std::string& password)
{
    return Sha256Hex(user + ':' + kRealm + ':' + password);
}

bool ProvesSecret(const std::map<std::string, std::string>& credentials, const std::string& secret,
                  const std::string& method, const std::string& target)
{
    const auto member = [&](const char* name) {
        const auto found = credentials.find(name);
        return found == credentials.end() ? std::string() : found->second;
    };
    const std::string count = member("nc");
    const bool isCount = count.size() == 8 && count != "00000000" &&
                         count.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
    if (!isCount || secret.empty() || member("qop") != "auth" || member("algorithm") != "SHA-256" ||
        member("nonce").empty() || member("cnonce").empty() || member("realm") != kRealm ||
        member("uri") != target)
        return false;
    const std::string expected = Sha256Hex(secret + ':' + member("nonce") + ':' + count + ':' +
                                           member("cnonce") + ":auth:" + Sha256Hex(method + ':' + target));
    return EqualsSecretly(expected, member("response"));
}

} // namespace simulator
