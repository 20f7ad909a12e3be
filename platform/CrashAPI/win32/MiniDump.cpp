#include "CrashAPI/CrashHandler.h"
#include "CrashAPI/CrashSettings.h"
#include "CrashAPI/Retention.h"

#include <windows.h>

#include <dbghelp.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace crash {

namespace {

/// What a thread keeps back for the filter after its stack overflowed.
constexpr ULONG kStackReserve = 64 * 1024;
constexpr DWORD kReportMilliseconds = 10000;

LPTOP_LEVEL_EXCEPTION_FILTER g_before = nullptr;
void (*g_abortBefore)(int) = SIG_DFL;
_purecall_handler g_pureCallBefore = nullptr;
_invalid_parameter_handler g_invalidBefore = nullptr;
std::atomic<bool> g_reporting{false};

/// What the thread that writes the dump is told of the one that crashed.
struct Crash
{
    DWORD thread;
    EXCEPTION_POINTERS* exception;
};

void MakePath(char (&path)[kPathLimit + 64], const char* folder)
{
    SYSTEMTIME time;
    ::GetSystemTime(&time);
    std::snprintf(path, sizeof path, "%scrash-%04u%02u%02u-%02u%02u%02u-%lu.dmp", folder, time.wYear,
                  time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, ::GetCurrentProcessId());
}

void WriteDump(const Crash& crash, const char* folder)
{
    char path[kPathLimit + 64];
    MakePath(path, folder);
    const HANDLE file =
        ::CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    MINIDUMP_EXCEPTION_INFORMATION cause{crash.thread, crash.exception, FALSE};
    const BOOL complete =
        ::MiniDumpWriteDump(::GetCurrentProcess(), ::GetCurrentProcessId(), file,
                            static_cast<MINIDUMP_TYPE>(DumpType()), &cause, nullptr, nullptr);
    ::CloseHandle(file);
    // A full disk must not cost the older report.
    if (!complete)
        ::DeleteFileA(path);
    KeepNewestReports(folder, MaxCount());
}

DWORD WINAPI DumpThread(void* crash)
{
    WriteDump(*static_cast<const Crash*>(crash), DumpPath());
    return 0;
}

/// On a thread of its own, since little is left of a stack that overflowed.
void Report(EXCEPTION_POINTERS* exception)
{
    if (!DumpPath() || g_reporting.exchange(true))
        return;
    static Crash crash;
    crash = {::GetCurrentThreadId(), exception};
    const HANDLE writer = ::CreateThread(nullptr, 0, DumpThread, &crash, 0, nullptr);
    if (!writer)
        return;
    ::WaitForSingleObject(writer, kReportMilliseconds);
    ::CloseHandle(writer);
}

LONG WINAPI OnException(EXCEPTION_POINTERS* exception)
{
    Report(exception);
    return g_before ? g_before(exception) : EXCEPTION_CONTINUE_SEARCH;
}

/// For an end that is no exception: the place where the program stands now.
void ReportHere()
{
    CONTEXT context;
    ::RtlCaptureContext(&context);
    EXCEPTION_RECORD record{};
    record.ExceptionCode = STATUS_NONCONTINUABLE_EXCEPTION;
    record.ExceptionFlags = EXCEPTION_NONCONTINUABLE;
    EXCEPTION_POINTERS exception{&record, &context};
    Report(&exception);
}

/// abort() reaches no exception filter; std::terminate ends in it.
void OnAbort(int)
{
    ReportHere();
}

void OnPureCall()
{
    ReportHere();
    std::abort();
}

void OnInvalidParameter(const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t)
{
    ReportHere();
    std::abort();
}

} // namespace

bool InstallHandlers()
{
    g_reporting = false;
    g_before = ::SetUnhandledExceptionFilter(OnException);
    g_abortBefore = std::signal(SIGABRT, OnAbort);
    g_pureCallBefore = ::_set_purecall_handler(OnPureCall);
    g_invalidBefore = ::_set_invalid_parameter_handler(OnInvalidParameter);
    return true;
}

void RemoveHandlers()
{
    const LPTOP_LEVEL_EXCEPTION_FILTER now = ::SetUnhandledExceptionFilter(g_before);
    if (now != OnException)
        ::SetUnhandledExceptionFilter(now);
    std::signal(SIGABRT, g_abortBefore);
    ::_set_purecall_handler(g_pureCallBefore);
    ::_set_invalid_parameter_handler(g_invalidBefore);
}

bool PrepareThread()
{
    ULONG reserve = kStackReserve;
    return ::SetThreadStackGuarantee(&reserve) != 0;
}

} // namespace crash
