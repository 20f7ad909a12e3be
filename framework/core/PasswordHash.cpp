#include "framework/core/PasswordHash.h"

#include "Base/Encrypt.h"
#include "Base/StringUtil.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <array>
#include <stdexcept>

namespace framework {

namespace {

constexpr const char* kScheme = "scrypt1";
constexpr std::uint64_t kCost = 1 << 15;
constexpr std::uint64_t kBlock = 8;
constexpr std::uint64_t kLanes = 1;
constexpr std::uint64_t kMemoryLimit = 64 * 1024 * 1024;
constexpr std::size_t kSaltBytes = 16;
constexpr std::size_t kHashBytes = 32;

std::string Stretch(const std::string& password, const std::string& salt)
{
    std::array<unsigned char, kHashBytes> hash{};
    if (EVP_PBE_scrypt(password.data(), password.size(), reinterpret_cast<const unsigned char*>(salt.data()),
                       salt.size(), kCost, kBlock, kLanes, kMemoryLimit, hash.data(), hash.size()) != 1)
        throw std::runtime_error("scrypt failed");
    return std::string(hash.begin(), hash.end());
}

/// Salt and hash; texts of the right length that match nothing when the text is no hash.
std::array<std::string, 2> PartsOf(const std::string& text)
{
    const auto parts = Base::StringUtil::Split(text, ':');
    if (parts.size() == 3 && parts[0] == kScheme) {
        auto salt = Base::Encrypt::FromHex(parts[1]);
        auto hash = Base::Encrypt::FromHex(parts[2]);
        if (salt && hash && salt->size() == kSaltBytes && hash->size() == kHashBytes)
            return {*salt, *hash};
    }
    return {std::string(kSaltBytes, '\0'), Base::Encrypt::RandomBytes(kHashBytes)};
}

} // namespace

std::string HashPassword(const std::string& password)
{
    const std::string salt = Base::Encrypt::RandomBytes(kSaltBytes);
    return std::string(kScheme) + ":" + Base::Encrypt::ToHex(salt) + ":" +
           Base::Encrypt::ToHex(Stretch(password, salt));
}

bool PasswordMatches(const std::string& password, const std::string& hash)
{
    const auto [salt, wanted] = PartsOf(hash);
    return CRYPTO_memcmp(Stretch(password, salt).data(), wanted.data(), kHashBytes) == 0;
}

} // namespace framework
