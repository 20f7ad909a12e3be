#include "Keyring/Keyring.h"

#include "Keyring/SystemKeyring.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace keyring {
namespace {

bool IsLetterOrDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool CanAskFor(const std::string& name, std::string& why)
{
    if (!IsOffered())
        why = "there is no keyring here";
    else if (!IsName(name))
        why = "it is no name of an entry";
    else
        return true;
    return false;
}

} // namespace

bool IsOffered()
{
    const char* choice = std::getenv("VANTOR_KEYRING");
    return !(choice && std::strcmp(choice, "none") == 0) && system::IsThere();
}

bool IsName(const std::string& text)
{
    return !text.empty() && text.size() <= kNameLimit &&
           std::all_of(text.begin(), text.end(), [](char c) { return c == '-' || IsLetterOrDigit(c); });
}

bool Store(const std::string& name, const std::string& label, const std::string& secret, std::string& why)
{
    if (!CanAskFor(name, why))
        return false;
    if (!secret.empty() && secret.size() <= kSecretLimit)
        return system::Store(name, label, secret, why);
    why = "the secret is empty or too long";
    return false;
}

std::optional<std::string> Load(const std::string& name, std::string& why)
{
    return CanAskFor(name, why) ? system::Load(name, why) : std::nullopt;
}

bool Remove(const std::string& name, std::string& why)
{
    return CanAskFor(name, why) && system::Remove(name, why);
}

} // namespace keyring
