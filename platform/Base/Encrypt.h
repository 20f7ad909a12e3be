#pragma once

#include <memory>
#include <optional>
#include <string>

/// Authenticated encryption (AES-256-GCM) for what lies on disk or travels enciphered.
namespace Base::Encrypt {

constexpr std::size_t kKeyBytes = 32;
constexpr std::size_t kNonceBytes = 12;
constexpr std::size_t kTagBytes = 16;

/// The process-wide parameters of the data encryption. label is authenticated with every text, so that a text
/// sealed under one label does not open under another.
struct AESParams
{
    /// kKeyBytes bytes; null without a key, and nothing can then be sealed or opened. They lie on the heap,
    /// so that no stack holds them, and crash reports do not show them. Copies share them; the last one wipes
    /// them.
    std::shared_ptr<const std::string> key;
    std::string label;
};

/// The parameters made of a key as hexadecimal digits; nothing for a text that is none.
std::optional<AESParams> ParamsOf(const std::string& keyText, const std::string& label);

/// Installs, reads and removes the process-wide parameters. Any thread.
void SetAESParams(const AESParams& params);
std::optional<AESParams> GetAESParams();
void ClearAESParams();

/// nonce, cipher text and tag of the plain text, in base64. A new random nonce each time. Throws without a
/// key.
std::string Seal(const AESParams& params, const std::string& plain);

/// The plain text of what Seal gave; nothing when it was changed, cut, or sealed otherwise.
std::optional<std::string> Open(const AESParams& params, const std::string& sealed);

/// count random bytes from the system.
std::string RandomBytes(std::size_t count);

/// A new random key of kKeyBytes, as hexadecimal digits.
std::string RandomKeyText();

/// Whether the text is a key of kKeyBytes, as hexadecimal digits.
bool IsKeyText(const std::string& text);

std::string ToHex(const std::string& bytes);
/// Nothing for a text of odd length or with another character.
std::optional<std::string> FromHex(const std::string& text);

/// Overwrites a secret before its memory is given back.
void Wipe(std::string& secret);

} // namespace Base::Encrypt
