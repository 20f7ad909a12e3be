#include "CrashAPI/CrashHandler.h"
#include "CrashAPI/CrashSettings.h"

#include <windows.h>

#include <dbghelp.h>

#include <atomic>
#include <csignal>
#include <cstdio>

namespace crash {

namespace {

/// What a thread keeps back for the filter after its stack overflowed.
constexpr ULONG kStackReserve = 64 * 1024;

LPTOP_LEVEL_EXCEPTION_FILTER g_before = nullptr;
void (*g_abortBefore)(int) = SIG_DFL;
std::atomic<bool> g_reporting{false};

HANDLE CreateReport(const char* folder)
{
    SYSTEMTIME time;
    ::GetSystemTime(&time);
    char path[kPathLimit + 64];
    std::snprintf(path, sizeof path, "%scrash-%04u%02u%02u-%02u%02u%02u-%lu.dmp", folder, time.wYear,
                  time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, ::GetCurrentProcessId());
    return ::CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
}

void WriteReport(EXCEPTION_POINTERS* exception)
{
    const char* folder = DumpPath();
    if (!folder || g_reporting.exchange(true))
        return;
    const HANDLE file = CreateReport(folder);
    if (file == INVALID_HANDLE_VALUE)
        return;
    MINIDUMP_EXCEPTION_INFORMATION cause{::GetCurrentThreadId(), exception, FALSE};
    const BOOL complete = ::MiniDumpWriteDump(::GetCurrentProcess(), ::GetCurrentProcessId(), file,
                                              static_cast<MINIDUMP_TYPE>(DumpType()),
                                              exception ? &cause : nullptr, nullptr, nullptr);
    ::CloseHandle(file);
    if (const char* old = ReportToReplace(); old && complete)
        ::DeleteFileA(old);
}

LONG WINAPI OnCrash(EXCEPTION_POINTERS* exception)
{
    WriteReport(exception);
    return g_before ? g_before(exception) : EXCEPTION_CONTINUE_SEARCH;
}

/// abort() reaches no exception filter.
void OnAbort(int)
{
    WriteReport(nullptr);
}

} // namespace

bool InstallHandlers()
{
    g_reporting = false;
    g_before = ::SetUnhandledExceptionFilter(OnCrash);
    g_abortBefore = std::signal(SIGABRT, OnAbort);
    return true;
}

void RemoveHandlers()
{
    const LPTOP_LEVEL_EXCEPTION_FILTER now = ::SetUnhandledExceptionFilter(g_before);
    if (now != OnCrash)
        ::SetUnhandledExceptionFilter(now);
    std::signal(SIGABRT, g_abortBefore);
}

bool PrepareThread()
{
    ULONG reserve = kStackReserve;
    return ::SetThreadStackGuarantee(&reserve) != 0;
}

} // namespace crash
