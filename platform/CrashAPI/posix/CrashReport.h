#pragma once

#include <csignal>

namespace crash {

/// The name of one of the signals that end a faulty program; null for any other.
const char* SignalName(int number);

/// Loads what the report needs, so that nothing is loaded while it is written. Call before the first crash.
void PrimeReport();

/// Writes the report of the calling thread's crash into the dump folder. The arguments are the signal
/// handler's. Safe in a signal handler.
void WriteReport(int number, const siginfo_t& info, const void* context);

/// Removes the reports that are too many now. Safe in a signal handler; for one that had to be cut too.
void RemoveOldReports();

} // namespace crash
