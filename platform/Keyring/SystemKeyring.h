#pragma once

#include <optional>
#include <string>

/// The keyring of one system; see Keyring.h for the meaning. Names and sizes are checked already.
namespace keyring::system {

bool IsThere();
bool Store(const std::string& name, const std::string& label, const std::string& secret, std::string& why);
std::optional<std::string> Load(const std::string& name, std::string& why);
bool Remove(const std::string& name, std::string& why);

} // namespace keyring::system
