#include "Base/Encrypt.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace Base::Encrypt {
namespace {

struct FreeContext
{
    void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); }
};
using Context = std::unique_ptr<EVP_CIPHER_CTX, FreeContext>;

struct Shared
{
    std::mutex mutex;
    std::optional<AESParams> params;
};

Shared& TheShared()
{
    static Shared* const instance = new Shared();
    return *instance;
}

const unsigned char* Bytes(const std::string& text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

unsigned char* Bytes(std::string& text)
{
    return reinterpret_cast<unsigned char*>(text.data());
}

void Require(bool worked)
{
    if (!worked)
        throw std::runtime_error("the encryption library failed");
}

std::string ToBase64(const std::string& bytes)
{
    std::string text(4 * ((bytes.size() + 2) / 3) + 1, '\0');
    text.resize(
        static_cast<std::size_t>(EVP_EncodeBlock(Bytes(text), Bytes(bytes), static_cast<int>(bytes.size()))));
    return text;
}

std::optional<std::string> FromBase64(const std::string& text)
{
    if (text.empty() || text.size() % 4 != 0 || text.size() > INT_MAX)
        return std::nullopt;
    std::string bytes(text.size() / 4 * 3, '\0');
    if (EVP_DecodeBlock(Bytes(bytes), Bytes(text), static_cast<int>(text.size())) < 0)
        return std::nullopt;
    const std::size_t last = text.find_last_not_of('=');
    const std::size_t padding = last == std::string::npos ? text.size() : text.size() - 1 - last;
    if (padding > 2)
        return std::nullopt;
    bytes.resize(bytes.size() - padding);
    return bytes;
}

int HexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

const unsigned char* KeyOf(const AESParams& params)
{
    Require(params.key && params.key->size() == kKeyBytes);
    return Bytes(*params.key);
}

void WipeAndDelete(std::string* secret)
{
    Wipe(*secret);
    delete secret;
}

std::optional<std::string> Decrypt(const AESParams& params, const std::string& bytes)
{
    const int size = static_cast<int>(bytes.size() - kNonceBytes - kTagBytes);
    const unsigned char* nonce = Bytes(bytes);
    const unsigned char* cipher = nonce + kNonceBytes;
    std::string tag = bytes.substr(bytes.size() - kTagBytes);
    std::string plain(static_cast<std::size_t>(size), '\0');
    const Context context(EVP_CIPHER_CTX_new());
    Require(context != nullptr);
    int written = 0;
    Require(EVP_DecryptInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, KeyOf(params), nonce) == 1);
    Require(EVP_DecryptUpdate(context.get(), nullptr, &written, Bytes(params.label),
                              static_cast<int>(params.label.size())) == 1);
    Require(EVP_DecryptUpdate(context.get(), Bytes(plain), &written, cipher, size) == 1);
    Require(EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_SET_TAG, kTagBytes, tag.data()) == 1);
    unsigned char rest[kTagBytes];
    if (EVP_DecryptFinal_ex(context.get(), rest, &written) == 1)
        return plain;
    Wipe(plain);
    return std::nullopt;
}

} // namespace

std::optional<AESParams> ParamsOf(const std::string& keyText, const std::string& label)
{
    if (!IsKeyText(keyText))
        return std::nullopt;
    auto bytes = FromHex(keyText);
    return AESParams{{new std::string(std::move(*bytes)), WipeAndDelete}, label};
}

void SetAESParams(const AESParams& params)
{
    std::lock_guard<std::mutex> lock(TheShared().mutex);
    TheShared().params = params;
}

std::optional<AESParams> GetAESParams()
{
    std::lock_guard<std::mutex> lock(TheShared().mutex);
    return TheShared().params;
}

void ClearAESParams()
{
    std::lock_guard<std::mutex> lock(TheShared().mutex);
    TheShared().params.reset();
}

std::string Seal(const AESParams& params, const std::string& plain)
{
    Require(plain.size() < INT_MAX / 2);
    std::string bytes = RandomBytes(kNonceBytes);
    bytes.resize(kNonceBytes + plain.size() + kTagBytes);
    unsigned char* cipher = Bytes(bytes) + kNonceBytes;
    const Context context(EVP_CIPHER_CTX_new());
    Require(context != nullptr);
    int written = 0;
    Require(EVP_EncryptInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, KeyOf(params), Bytes(bytes)) == 1);
    Require(EVP_EncryptUpdate(context.get(), nullptr, &written, Bytes(params.label),
                              static_cast<int>(params.label.size())) == 1);
    Require(EVP_EncryptUpdate(context.get(), cipher, &written, Bytes(plain),
                              static_cast<int>(plain.size())) == 1);
    unsigned char* tag = cipher + plain.size();
    Require(EVP_EncryptFinal_ex(context.get(), tag, &written) == 1);
    Require(EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_GET_TAG, kTagBytes, tag) == 1);
    return ToBase64(bytes);
}

std::optional<std::string> Open(const AESParams& params, const std::string& sealed)
{
    const auto bytes = FromBase64(sealed);
    if (!bytes || bytes->size() < kNonceBytes + kTagBytes)
        return std::nullopt;
    return Decrypt(params, *bytes);
}

std::string RandomBytes(std::size_t count)
{
    Require(count < INT_MAX);
    std::string bytes(count, '\0');
    Require(RAND_bytes(Bytes(bytes), static_cast<int>(count)) == 1);
    return bytes;
}

std::string RandomKeyText()
{
    std::string bytes = RandomBytes(kKeyBytes);
    std::string text = ToHex(bytes);
    Wipe(bytes);
    return text;
}

bool IsKeyText(const std::string& text)
{
    return text.size() == 2 * kKeyBytes &&
           std::all_of(text.begin(), text.end(), [](char c) { return HexDigit(c) >= 0; });
}

std::string ToHex(const std::string& bytes)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const unsigned char byte : bytes) {
        text += kDigits[byte >> 4];
        text += kDigits[byte & 15];
    }
    return text;
}

std::optional<std::string> FromHex(const std::string& text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    std::string bytes;
    bytes.reserve(text.size() / 2);
    for (std::size_t at = 0; at < text.size(); at += 2) {
        const int high = HexDigit(text[at]);
        const int low = HexDigit(text[at + 1]);
        if (high < 0 || low < 0)
            return std::nullopt;
        bytes += static_cast<char>(high * 16 + low);
    }
    return bytes;
}

void Wipe(std::string& secret)
{
    OPENSSL_cleanse(secret.data(), secret.size());
    secret.clear();
}

} // namespace Base::Encrypt
