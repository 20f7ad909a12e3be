#include "Keyring/SystemKeyring.h"

#include <string>

#include <windows.h>

#include <wincred.h>

namespace keyring::system {
namespace {

std::wstring Wide(const std::string& utf8)
{
    const int size = static_cast<int>(utf8.size());
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), length);
    return text;
}

std::wstring Target(const std::string& name)
{
    return L"Vantor/" + Wide(name);
}

bool Failed(std::string& why)
{
    const DWORD error = ::GetLastError();
    why = error == ERROR_NOT_FOUND ? "the keyring has no such entry"
                                   : "the Credential Manager failed with error " + std::to_string(error);
    return false;
}

} // namespace

bool IsThere()
{
    return true;
}

bool Store(const std::string& name, const std::string& label, const std::string& secret, std::string& why)
{
    std::wstring target = Target(name);
    std::wstring comment = Wide(label).substr(0, CRED_MAX_STRING_LENGTH - 1);
    CREDENTIALW credential = {};
    credential.Type = CRED_TYPE_GENERIC;
    credential.TargetName = target.data();
    credential.Comment = comment.data();
    credential.CredentialBlobSize = static_cast<DWORD>(secret.size());
    credential.CredentialBlob = reinterpret_cast<LPBYTE>(const_cast<char*>(secret.data()));
    credential.Persist = CRED_PERSIST_LOCAL_MACHINE;
    return ::CredWriteW(&credential, 0) || Failed(why);
}

std::optional<std::string> Load(const std::string& name, std::string& why)
{
    PCREDENTIALW credential = nullptr;
    if (!::CredReadW(Target(name).c_str(), CRED_TYPE_GENERIC, 0, &credential)) {
        Failed(why);
        return std::nullopt;
    }
    std::string secret(reinterpret_cast<const char*>(credential->CredentialBlob),
                       credential->CredentialBlobSize);
    ::SecureZeroMemory(credential->CredentialBlob, credential->CredentialBlobSize);
    ::CredFree(credential);
    return secret;
}

bool Remove(const std::string& name, std::string& why)
{
    return ::CredDeleteW(Target(name).c_str(), CRED_TYPE_GENERIC, 0) || ::GetLastError() == ERROR_NOT_FOUND ||
           Failed(why);
}

} // namespace keyring::system
