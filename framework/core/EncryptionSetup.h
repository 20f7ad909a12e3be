#pragma once

#include "CommonMethod/DataEncryptionConfig.h"

#include <optional>
#include <string>

namespace framework {

/// The data-encryption setup of the user data root (local code page, ending in "/"): the one that is there;
/// else that of an older release, taken over; else a new one. Nothing, with an English sentence, when one is
/// there that cannot be read: databases depend on it, so it is neither replaced nor moved. Nothing as well
/// when it is missing though the component's database is encrypted, and when it cannot be written.
std::optional<comm_method::DataEncryption> PrepareEncryption(const std::string& root, std::string& error);

} // namespace framework
