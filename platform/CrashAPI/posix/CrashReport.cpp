#include "CrashAPI/posix/CrashReport.h"

#include "CrashAPI/CrashSettings.h"
#include "CrashAPI/posix/Registers.h"
#include "CrashAPI/posix/SafeText.h"

#include <execinfo.h>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <ctime>

namespace crash {

namespace {

constexpr int kMostFrames = 128;

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

const char* CauseText(int number, const siginfo_t& info)
{
    for (const NamedCause& cause : kCauses)
        if (cause.number == number && cause.code == info.si_code)
            return cause.text;
    if (info.si_code > 0)
        return "raised by the processor";
    return info.si_pid == ::getpid() ? "raised by the program itself" : "sent by another process";
}

/// A date and time of day of universal time.
struct UtcTime
{
    int year, month, day, hour, minute, second;
};

bool IsLeap(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

/// The C library's own conversion takes locks.
UtcTime ToUtc(std::int64_t seconds)
{
    constexpr int kSecondsOfDay = 86400;
    std::int64_t days = seconds / kSecondsOfDay;
    const int rest = static_cast<int>(seconds % kSecondsOfDay);
    int year = 1970;
    for (; days >= (IsLeap(year) ? 366 : 365); ++year)
        days -= IsLeap(year) ? 366 : 365;
    const int monthDays[] = {31, IsLeap(year) ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int month = 0;
    for (; days >= monthDays[month]; ++month)
        days -= monthDays[month];
    return {year, month + 1, static_cast<int>(days) + 1, rest / 3600, rest / 60 % 60, rest % 60};
}

UtcTime Now()
{
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return ToUtc(now.tv_sec);
}

void AddTime(SafeText& text, const UtcTime& time, const char* inDate, const char* between, const char* inTime)
{
    text.AddDecimal(time.year, 4).Add(inDate).AddDecimal(time.month, 2).Add(inDate).AddDecimal(time.day, 2);
    text.Add(between);
    text.AddDecimal(time.hour, 2).Add(inTime).AddDecimal(time.minute, 2).Add(inTime);
    text.AddDecimal(time.second, 2);
}

int CreateReport(const char* folder, const UtcTime& time)
{
    SafeText path;
    AddTime(path.Add(folder).Add("crash-"), time, "", "-", "");
    path.Add("-").AddDecimal(::getpid()).Add(".txt");
    return ::open(path.Get(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
}

void WriteCause(int fd, int number, const siginfo_t& info)
{
    SafeText line;
    const char* name = SignalName(number);
    line.Add("signal: ").Add(name ? name : "?").Add(" (").AddDecimal(number).Add("), code ");
    line.AddDecimal(info.si_code).Add(", ").Add(CauseText(number, info)).Add("\n").WriteTo(fd);
    if (info.si_code > 0)
        line.Add("address: ")
            .AddHex(reinterpret_cast<std::uintptr_t>(info.si_addr), 16)
            .Add("\n")
            .WriteTo(fd);
    else
        line.Add("sender: process ").AddDecimal(info.si_pid).Add("\n").WriteTo(fd);
}

void WriteWhoAndWhen(int fd, const UtcTime& time)
{
    std::array<char, kPathLimit> program{};
    if (::readlink("/proc/self/exe", program.data(), program.size() - 1) < 0)
        program[0] = 0;
    std::array<char, 17> thread{};
    ::prctl(PR_GET_NAME, thread.data());

    SafeText line;
    line.Add("process: ").AddDecimal(::getpid()).Add(" ").Add(program.data()).Add("\n").WriteTo(fd);
    line.Add("thread: ").AddDecimal(::gettid()).Add(" ").Add(thread.data()).Add("\n").WriteTo(fd);
    AddTime(line.Add("time: "), time, "-", " ", ":");
    line.Add(" UTC\n").WriteTo(fd);
    line.Add("dump type: ").AddHex(DumpType()).Add("\n").WriteTo(fd);
}

/// Gives the program counter.
void* WriteRegisters(int fd, const void* context)
{
    Register registers[kMostRegisters];
    const std::size_t count = ReadRegisters(context, registers);
    SafeText line;
    line.Add("\nregisters:\n").WriteTo(fd);
    for (std::size_t i = 0; i < count; ++i)
        line.Add("  ").Add(registers[i].name).Add(" ").AddHex(registers[i].value, 16).Add("\n").WriteTo(fd);
    return count > 0 ? reinterpret_cast<void*>(registers[0].value) : nullptr;
}

/// The place of the crash and of the calls that led there, with module and offset. The frames of the handler
/// are left out. A caller's address is that of the last byte of its call, since the return address may belong
/// to the next function already.
void WriteStack(int fd, const void* programCounter)
{
    SafeText line;
    line.Add("\nstack:\n").WriteTo(fd);
    void* frames[kMostFrames];
    const int count = ::backtrace(frames, kMostFrames);
    int first = 0;
    while (first < count && frames[first] != programCounter)
        ++first;
    if (first == count)
        first = 0;
    for (int i = first + 1; i < count; ++i)
        frames[i] = static_cast<char*>(frames[i]) - 1;
    ::backtrace_symbols_fd(frames + first, count - first, fd);
    if (count == kMostFrames)
        line.Add("(more frames are not shown)\n").WriteTo(fd);
}

void WriteMemoryMap(int fd)
{
    SafeText line;
    line.Add("\nmemory map:\n").WriteTo(fd);
    const int map = ::open("/proc/self/maps", O_RDONLY | O_CLOEXEC);
    if (map < 0)
        return;
    std::array<char, 4096> buffer;
    for (;;) {
        const ssize_t got = ::read(map, buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0 || !WriteAll(fd, buffer.data(), static_cast<std::size_t>(got)))
            break;
    }
    ::close(map);
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
    const int fd = CreateReport(folder, time);
    if (fd < 0)
        return;
    SafeText line;
    line.Add("Vantor crash report\n\n").WriteTo(fd);
    WriteCause(fd, number, info);
    WriteWhoAndWhen(fd, time);
    WriteStack(fd, WriteRegisters(fd, context));
    if (WantsMemory())
        WriteMemoryMap(fd);
    const bool complete = line.Add("\nend of report\n").WriteTo(fd);
    ::close(fd);
    if (const char* old = ReportToReplace(); old && complete)
        ::unlink(old);
}

} // namespace crash
