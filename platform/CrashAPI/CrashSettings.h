#pragma once

#include <string>

/// What the C interface was told, as the crash handlers read it: every getter is one atomic read and the
/// texts it gives are never freed.
namespace crash {

constexpr std::size_t kPathLimit = 1000;

/// Ends in "/"; null when no folder was set.
const char* DumpPath();

/// True when the report shall show memory too.
bool WantsMemory();

/// The dump type as it was set.
unsigned DumpType();

/// How many reports are kept.
int MaxCount();

/// Takes a folder that exists and can be written; false otherwise.
bool SetDumpPath(const std::string& path);
void SetDumpType(unsigned type);
/// count: at least 1.
void SetMaxCount(int count);

} // namespace crash
