#include "CrashAPI/posix/ProcessState.h"

#include "CrashAPI/CrashSettings.h"
#include "CrashAPI/posix/SafeFiles.h"
#include "CrashAPI/posix/SafeText.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <cstring>

namespace crash {

bool WriteProcess(int fd)
{
    std::array<char, kPathLimit> program{};
    if (::readlink("/proc/self/exe", program.data(), program.size() - 1) < 0)
        program[0] = 0;
    std::array<char, 17> thread{};
    ::prctl(PR_GET_NAME, thread.data());

    SafeText line;
    const bool written =
        line.Add("process: ").AddDecimal(::getpid()).Add(" ").Add(program.data()).Add("\n").WriteTo(fd);
    return line.Add("thread: ").AddDecimal(::gettid()).Add(" ").Add(thread.data()).Add("\n").WriteTo(fd) &&
           written;
}

void WriteThreads(int fd)
{
    SafeText line;
    line.Add("\nthreads:\n").WriteTo(fd);
    FolderReader threads("/proc/self/task");
    while (const char* number = threads.Next()) {
        if (*number == '.')
            continue;
        SafeText path;
        LineReader name(path.Add("/proc/self/task/").Add(number).Add("/comm").Get());
        const char* text = name.Next();
        line.Add("  ").Add(number).Add(" ").Add(text ? text : "?").Add("\n").WriteTo(fd);
    }
}

void WriteMemoryMap(int fd)
{
    SafeText line;
    line.Add("\nmemory map:\n").WriteTo(fd);
    LineReader map("/proc/self/maps");
    while (const char* mapping = map.Next())
        if (!WriteAll(fd, mapping, std::strlen(mapping)) || !WriteAll(fd, "\n", 1))
            return;
}

} // namespace crash
