#include "Base/ProcessUtil.h"

#include "Base/ThreadName.h"

#include <windows.h>

#include <tlhelp32.h>

#include <cstdlib>
#include <thread>

namespace Base::ProcessUtil {

namespace {

ParentsEnd g_parentsEnd = ParentsEnd::Counts;

DWORD ParentProcessId()
{
    const HANDLE snapshot = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof(entry);
    DWORD parent = 0;
    for (BOOL more = ::Process32First(snapshot, &entry); more; more = ::Process32Next(snapshot, &entry))
        if (entry.th32ProcessID == ::GetCurrentProcessId())
            parent = entry.th32ParentProcessID;
    ::CloseHandle(snapshot);
    return parent;
}

} // namespace

// Windows has no signal to hold back: a console or session end closes the process, and the parent is watched
// below.
void HoldEndRequests(ParentsEnd parentsEnd)
{
    g_parentsEnd = parentsEnd;
}

void OnEndRequest(std::function<void()> serve)
{
    if (g_parentsEnd == ParentsEnd::DoesNotCount)
        return;
    const HANDLE parent = ::OpenProcess(SYNCHRONIZE, FALSE, ParentProcessId());
    if (!parent)
        return;
    std::thread([parent, serve = std::move(serve)] {
        ::WaitForSingleObject(parent, INFINITE);
        ::CloseHandle(parent);
        serve();
    }).detach();
}

void FailWritesInsteadOfEnding() {}

std::int64_t ProcessId()
{
    return ::GetCurrentProcessId();
}

void SetEnvironment(const std::string& name, const std::string& value)
{
    ::_putenv_s(name.c_str(), value.c_str());
}

} // namespace Base::ProcessUtil

namespace Base {

// Windows knows thread names since version 10; an older one goes without.
void ShowThreadName(const std::string& name)
{
    using SetDescription = HRESULT(WINAPI*)(HANDLE, PCWSTR);
    const auto address = ::GetProcAddress(::GetModuleHandleA("kernel32.dll"), "SetThreadDescription");
    const auto setDescription = reinterpret_cast<SetDescription>(reinterpret_cast<void*>(address));
    const std::wstring wide(name.begin(), name.end());
    if (setDescription)
        setDescription(::GetCurrentThread(), wide.c_str());
}

} // namespace Base
