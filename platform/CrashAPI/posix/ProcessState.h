#pragma once

/// What a report says of the process as a whole. All are safe in a signal handler.
namespace crash {

/// The process and the calling thread. False when the file takes no more.
bool WriteProcess(int fd);

/// Number and name of every thread.
void WriteThreads(int fd);

/// What lies where in memory, in the system's own form.
void WriteMemoryMap(int fd);

} // namespace crash
