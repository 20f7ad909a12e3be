#pragma once

#include <optional>
#include <string>

/// Small secrets in the keyring of the user's session: the Secret Service on Linux, the Credential Manager on
/// Windows.
///
/// Nothing here ever asks the user anything: a keyring that is locked counts as one that is not there. A call
/// that talks to the keyring takes 20 ms or so, and at most 2 s; nothing is done, loaded or started before
/// the first call. Any thread. A failure gives its reason in one sentence, which holds no secret; the caller
/// logs it.
namespace keyring {

/// The longest secret and name, in bytes.
constexpr std::size_t kSecretLimit = 2048;
constexpr std::size_t kNameLimit = 64;

/// Whether it is worth to try: false when VANTOR_KEYRING is "none", and on Linux without a session bus
/// ($DBUS_SESSION_BUS_ADDRESS or $XDG_RUNTIME_DIR/bus), which is never started. Costs no more than a look.
bool IsOffered();

/// Whether the text can be a name: 1 to kNameLimit letters, digits and "-".
bool IsName(const std::string& text);

/// Adds the secret to the default keyring. The name must be new: no entry is ever replaced. label: what the
/// user sees in the system's keyring program, UTF-8.
[[nodiscard]] bool Store(const std::string& name, const std::string& label, const std::string& secret,
                         std::string& why);

/// The secret of that name. The caller wipes it.
std::optional<std::string> Load(const std::string& name, std::string& why);

/// Removes the secret of that name; true when there is none afterwards.
[[nodiscard]] bool Remove(const std::string& name, std::string& why);

} // namespace keyring
