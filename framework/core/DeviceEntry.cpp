#include "framework/core/DeviceEntry.h"

#include "framework/core/Texts.h"

#include <algorithm>
#include <cctype>

namespace framework {

namespace {

constexpr std::size_t kNameLimit = 64;
constexpr std::size_t kAddressLimit = 253;    // of a host name, RFC 1035
constexpr std::size_t kCredentialLimit = 127; // of the device SDK
constexpr int kLastPort = 65535;

/// The letters of host names and of IPv4 and IPv6 addresses.
bool IsAddress(const std::string& text)
{
    const auto fits = [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return (byte < 0x80 && std::isalnum(byte)) || c == '.' || c == '-' || c == '_' || c == ':' ||
               c == '%';
    };
    return !text.empty() && text.size() <= kAddressLimit && std::all_of(text.begin(), text.end(), fits);
}

} // namespace

std::string ProblemOf(const DeviceEntry& entry)
{
    if (!IsName(entry.name, kNameLimit))
        return "The name must have 1 to 64 characters.";
    if (!IsAddress(entry.address))
        return "The address must be a host name or an IP address.";
    if (entry.port < 1 || entry.port > kLastPort)
        return "The port must be between 1 and 65535.";
    if (entry.userName.size() > kCredentialLimit)
        return "The user name must have at most 127 bytes.";
    if (entry.password.size() > kCredentialLimit)
        return "The password must have at most 127 bytes.";
    return {};
}

} // namespace framework
