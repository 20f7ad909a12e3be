#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace Base::ProcessUtil {

/// Whether the end of the process (POSIX: of its thread) that started this one is a request to end.
enum class ParentsEnd { Counts, DoesNotCount };

/// From here on a request to end waits until OnEndRequest names who serves it: the system's termination
/// signals, and perhaps the parent's end. Call from the main thread, before any other thread starts.
void HoldEndRequests(ParentsEnd parentsEnd = ParentsEnd::Counts);

/// Calls serve, once and on a thread of its own, when the process is asked to end or was asked already.
void OnEndRequest(std::function<void()> serve);

/// From here on a write to a pipe that nobody reads, or beyond the limit of a file's size, fails as any other
/// instead of ending the process. Windows does so anyway.
void FailWritesInsteadOfEnding();

/// Shows the calling thread under this name (at most 15 bytes are kept) in debuggers and crash reports, and
/// does what OnThreadStart asked for. Every thread of the system calls it first.
void NameThisThread(const std::string& name);

/// From here on each thread that starts calls prepare once it has its name, on itself; null ends that. For
/// what a library wants of every thread that this one must not know. Set it before threads start.
void OnThreadStart(void (*prepare)());

/// This process's number.
std::int64_t ProcessId();

/// Sets a variable of the process's environment. Only before other threads start.
void SetEnvironment(const std::string& name, const std::string& value);

} // namespace Base::ProcessUtil
