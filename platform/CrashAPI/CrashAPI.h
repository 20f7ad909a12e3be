#pragma once

/// Leaves a report of a crash of this process: what happened, where, and on which thread.
///
/// POSIX: handlers for SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT and SIGTRAP write one text file
/// "crash-YYYYMMDD-HHMMSS-PID.txt" (universal time, mode 0600) into the dump folder and then let the signal
/// take the effect that it had before CrashAPI_Init, so that whoever waits for the process sees the signal as
/// its end. They call nothing that is unsafe in a signal handler, and never the logger. A report that is not
/// finished after 10 s is left as it is, and the process ends by its signal. Windows: a minidump
/// "crash-...dmp" of the stated type. docs/crash-reports.md says what a report holds and how to read it.
///
/// Every function may be called in any order and again, from any thread, and gives true when afterwards
/// things are as asked. Sanitizers keep working: their handlers were there first and run after ours.
extern "C" {

/// Types of a report: a normal one, and one with all memory (on Windows data segments, full memory with its
/// information, handles, unloaded modules, indirectly referenced and private writable memory, process, thread
/// and auxiliary state).
enum CrashDumpType : unsigned { CRASH_DUMP_NORMAL = 0, CRASH_DUMP_FULL = 0x9B67 };

/// Starts handling crashes and prepares the calling thread.
bool CrashAPI_Init();

/// Lets a stack overflow of the calling thread be reported too, which needs a stack of its own for the
/// handlers; every other crash is reported from any thread. Given back when the thread ends. For the main
/// thread when CrashAPI_Init runs on another one, and for every thread that starts.
bool CrashAPI_PrepareThread();

/// The folder of the reports, in the local code page; created when missing. Without one no report is written.
/// False, and the folder stays as it was, when it cannot be created or written or its path is longer than
/// 1,000 bytes.
bool CrashAPI_SetDumpPath(const char* dumpPath);

/// How much a report shows: 0 the registers, the stack's calls and the loaded modules; with any of the memory
/// flags of a Windows MINIDUMP_TYPE (0x1, 0x2, 0x40, 0x200) also the threads, the contents of the crashed
/// thread's stack (64 KiB of it at most) and the memory map.
bool CrashAPI_SetDumpType(unsigned type);

/// How many reports are kept, the newest, counting the one of the next crash; the default is 10. Removes what
/// is too many, now and after every crash. False for less than 1.
bool CrashAPI_SetDumpMaxCount(int count);

/// Puts back the handlers that were there before CrashAPI_Init.
bool CrashAPI_Uninit();
}
