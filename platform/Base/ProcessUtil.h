#pragma once

#include <cstdint>

#include <string>

namespace Base::ProcessUtil {

/// Ends this process with the one that started it, however that one ends. Call from the main thread at start.
void EndWithParent();

/// Shows the calling thread under this name (at most 15 bytes are kept) in debuggers and crash reports.
void NameThisThread(const std::string& name);

/// This process's number.
std::int64_t ProcessId();

/// Sets a variable of the process's environment. Only before other threads start.
void SetEnvironment(const std::string& name, const std::string& value);

} // namespace Base::ProcessUtil
