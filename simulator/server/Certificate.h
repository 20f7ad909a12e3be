#pragma once

#include "simulator/server/HttpServer.h"

#include <optional>

namespace simulator {

/// A fresh key (P-256) and a certificate signed with itself, good for twenty years.
std::optional<TlsIdentity> MakeIdentity();

/// That of the folder, which is made when it is missing or when another is wanted; without a folder a fresh
/// one. None with the reason in error when it cannot be read or kept.
std::optional<TlsIdentity> ProvideIdentity(const std::string& folder, bool wantsNew, std::string& error);

/// The certificate's SHA-256 in lower-case hexadecimal digits.
std::string FingerprintOf(const TlsIdentity& identity);

} // namespace simulator
