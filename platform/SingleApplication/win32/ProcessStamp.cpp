#include "SingleApplication/ProcessStamp.h"

#include <windows.h>

#include <sddl.h>

#include <vector>

namespace InstanceSystem {

namespace {

/// The creation time of a process in units of 100 ns, its lower half; 0 when the process is not open to us.
std::uint32_t StartTime(HANDLE process)
{
    FILETIME created, exited, kernel, user;
    return GetProcessTimes(process, &created, &exited, &kernel, &user) ? created.dwLowDateTime : 0;
}

} // namespace

std::uint64_t OwnStamp()
{
    return (static_cast<std::uint64_t>(GetCurrentProcessId()) << 32) | StartTime(GetCurrentProcess());
}

bool IsAlive(std::uint64_t stamp)
{
    const auto pid = static_cast<DWORD>(stamp >> 32);
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION | SYNCHRONIZE, FALSE, pid);
    if (!process)
        return false;
    const bool running = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    const bool same = StartTime(process) == static_cast<std::uint32_t>(stamp);
    CloseHandle(process);
    return running && same;
}

std::string UserIdentity()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    DWORD size = 0;
    GetTokenInformation(token, TokenUser, nullptr, 0, &size);
    std::vector<char> buffer(size);
    std::string identity;
    LPSTR text = nullptr;
    if (GetTokenInformation(token, TokenUser, buffer.data(), size, &size) &&
        ConvertSidToStringSidA(reinterpret_cast<TOKEN_USER*>(buffer.data())->User.Sid, &text)) {
        identity = text;
        LocalFree(text);
    }
    CloseHandle(token);
    return identity;
}

std::string ServerName(const std::string& key)
{
    return "vantor-" + key;
}

} // namespace InstanceSystem
