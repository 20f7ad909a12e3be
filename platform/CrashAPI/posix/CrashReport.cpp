#include "CrashAPI/posix/CrashReport.h"

#include "CrashAPI/CrashSettings.h"
#include "CrashAPI/Retention.h"
#include "CrashAPI/posix/Modules.h"
#include "CrashAPI/posix/ProcessState.h"
#include "CrashAPI/posix/Registers.h"
#include "CrashAPI/posix/SafeText.h"
#include "CrashAPI/posix/Stack.h"
#include "CrashAPI/posix/UtcTime.h"

#include <execinfo.h>
#include <fcntl.h>
#include <unistd.h>

namespace crash {

namespace {

struct NamedSignal
{
    int number;
    const char* name;
};
constexpr NamedSignal kSignals[] = {
    {SIGSEGV, "SIGSEGV"}, {SIGBUS, "SIGBUS"},   {SIGILL, "SIGILL"},
    {SIGFPE, "SIGFPE"},   {SIGABRT, "SIGABRT"}, {SIGTRAP, "SIGTRAP"},
};

struct NamedCause
{
    int number;
    int code;
    const char* text;
};
constexpr NamedCause kCauses[] = {
    {SIGSEGV, SEGV_MAPERR, "no memory at the address"},
    {SIGSEGV, SEGV_ACCERR, "access not permitted at the address"},
    {SIGBUS, BUS_ADRALN, "address not aligned"},
    {SIGBUS, BUS_ADRERR, "memory behind the address is gone"},
    {SIGILL, ILL_ILLOPC, "illegal instruction"},
    {SIGILL, ILL_ILLOPN, "illegal operand"},
    {SIGFPE, FPE_INTDIV, "integer division by zero"},
    {SIGFPE, FPE_INTOVF, "integer overflow"},
    {SIGFPE, FPE_FLTDIV, "floating-point division by zero"},
};

/// Too large for the handler's stack.
ModuleTable g_modules;

const char* CauseText(int number, const siginfo_t& info)
{
    for (const NamedCause& cause : kCauses)
        if (cause.number == number && cause.code == info.si_code)
            return cause.text;
    if (info.si_code > 0)
        return "raised by the processor";
    return info.si_pid == ::getpid() ? "raised by the program itself" : "sent by another process";
}

void MakePath(SafeText& path, const char* folder, const UtcTime& time)
{
    AddTime(path.Add(folder).Add("crash-"), time, "", "-", "");
    path.Add("-").AddDecimal(::getpid()).Add(".txt");
}

bool WriteCause(int fd, int number, const siginfo_t& info)
{
    SafeText line;
    const char* name = SignalName(number);
    line.Add("Vantor crash report\n\nsignal: ").Add(name ? name : "?").Add(" (").AddDecimal(number);
    line.Add("), code ").AddDecimal(info.si_code).Add(", ").Add(CauseText(number, info)).Add("\n");
    if (info.si_code > 0)
        line.Add("address: ").AddHex(reinterpret_cast<std::uintptr_t>(info.si_addr), 16);
    else
        line.Add("sender: process ").AddDecimal(info.si_pid);
    return line.Add("\n").WriteTo(fd);
}

bool WriteWhen(int fd, const UtcTime& time)
{
    SafeText line;
    AddTime(line.Add("time: "), time, "-", " ", ":");
    return line.Add(" UTC\ndump type: ").AddHex(DumpType()).Add("\n").WriteTo(fd);
}

bool WriteRegisters(int fd, const void* context)
{
    Register registers[kMostRegisters];
    const std::size_t count = ReadRegisters(context, registers);
    SafeText line;
    bool written = line.Add("\nregisters:\n").WriteTo(fd);
    for (std::size_t i = 0; i < count; ++i)
        written = line.Add("  ")
                      .Add(registers[i].name)
                      .Add(" ")
                      .AddHex(registers[i].value, 16)
                      .Add("\n")
                      .WriteTo(fd) &&
                  written;
    return written;
}

/// What a crash can be understood from. False when the file did not take it all.
bool WriteEssentials(int fd, int number, const siginfo_t& info, const void* context, const UtcTime& time)
{
    bool written = WriteCause(fd, number, info) && WriteProcess(fd) && WriteWhen(fd, time);
    written = written && WriteRegisters(fd, context);
    g_modules.Gather();
    return written && WriteStack(fd, ReadPlace(context), g_modules) && g_modules.WriteTo(fd);
}

void WriteMemory(int fd, const void* context)
{
    WriteThreads(fd);
    WriteStackContents(fd, ReadPlace(context).stackPointer);
    WriteMemoryMap(fd);
}

} // namespace

const char* SignalName(int number)
{
    for (const NamedSignal& signal : kSignals)
        if (signal.number == number)
            return signal.name;
    return nullptr;
}

void PrimeReport()
{
    // The first call loads the unwinder's library.
    void* frame = nullptr;
    ::backtrace(&frame, 1);
}

void WriteReport(int number, const siginfo_t& info, const void* context)
{
    const char* folder = DumpPath();
    if (!folder)
        return;
    const UtcTime time = Now();
    SafeText path;
    MakePath(path, folder, time);
    const int fd = ::open(path.Get(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0)
        return;
    const bool useful = WriteEssentials(fd, number, info, context, time);
    if (useful && WantsMemory())
        WriteMemory(fd, context);
    SafeText end;
    end.Add("\nend of report\n").WriteTo(fd);
    ::close(fd);
    // A full disk must not cost the older report, which tells more.
    if (!useful)
        ::unlink(path.Get());
    RemoveOldReports();
}

void RemoveOldReports()
{
    if (const char* folder = DumpPath())
        KeepNewestReports(folder, MaxCount());
}

} // namespace crash
