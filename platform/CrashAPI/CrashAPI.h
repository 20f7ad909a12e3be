#pragma once

/// Leaves a report of a crash of this process: what happened, where, and on which thread.
///
/// POSIX: handlers for SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT and SIGTRAP write one text file
/// "crash-YYYYMMDD-HHMMSS-PID.txt" (universal time, mode 0600) into the dump folder and then let the signal
/// take the effect that it had before CrashAPI_Init, so that whoever waits for the process sees the signal as
/// its end. They call nothing that is unsafe in a signal handler, and never the logger. A report that is not
/// finished after 10 s is given up, and the process ends. Windows: a minidump "crash-...dmp" of the stated
/// type.
///
/// Every function may be called in any order and again, from any thread, and gives true when afterwards
/// things are as asked. Sanitizers keep working: their handlers were there first and run after ours.
extern "C" {

/// Starts handling crashes and prepares the calling thread.
bool CrashAPI_Init();

/// Lets a stack overflow of the calling thread be reported too, which needs a stack of its own for the
/// handlers; every other crash is reported from any thread. Given back when the thread ends. The main thread
/// should call it when CrashAPI_Init runs on another one.
bool CrashAPI_PrepareThread();

/// The folder of the reports, in the local code page; created when missing. Without one no report is written.
/// False, and the folder stays as it was, when it cannot be created or written or its path is longer than
/// 1,000 bytes.
bool CrashAPI_SetDumpPath(const char* dumpPath);

/// Which memory a report shows: 0 the registers and the stack's return addresses, with any of the memory
/// flags of a Windows MINIDUMP_TYPE (0x1, 0x2, 0x40, 0x200) also the memory map.
bool CrashAPI_SetDumpType(unsigned type);

/// How many reports are kept, the newest, counting the one of the next crash; the default is 10. Removes what
/// is too many. False for less than 1.
bool CrashAPI_SetDumpMaxCount(int count);

/// Puts back the handlers that were there before CrashAPI_Init.
bool CrashAPI_Uninit();
}
