#include "Base/ProcessUtil.h"

#include <windows.h>

#include <tlhelp32.h>

#include <cstdlib>
#include <thread>

namespace Base::ProcessUtil {

namespace {

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

// A parent that uses a job object with "kill on close" needs nothing from us; this watch serves those that
// don't.
void EndWithParent()
{
    const HANDLE parent = ::OpenProcess(SYNCHRONIZE, FALSE, ParentProcessId());
    if (!parent)
        return;
    std::thread([parent] {
        ::WaitForSingleObject(parent, INFINITE);
        ::TerminateProcess(::GetCurrentProcess(), 1);
    }).detach();
}

void NameThisThread(const std::string& name)
{
    const std::wstring wide(name.begin(), name.end());
    ::SetThreadDescription(::GetCurrentThread(), wide.c_str());
}

std::int64_t ProcessId()
{
    return ::GetCurrentProcessId();
}

void SetEnvironment(const std::string& name, const std::string& value)
{
    ::_putenv_s(name.c_str(), value.c_str());
}

} // namespace Base::ProcessUtil
