#pragma once

#include <array>
#include <cstdint>

/// Which reports stay in the dump folder.
namespace crash {

/// A report as it lies in the folder.
struct ReportFile
{
    std::array<char, 64> name{};
    /// When it was written; of any unit and beginning, the same for all.
    std::int64_t written = 0;
};

/// Whether a file of this name is a report of a crash, and not something else that lies there.
bool IsReportName(const char* name);

/// Whether one report is older than the other. now: what the name of a report begins with that is written
/// now; one that claims a later time, because the clock was wrong, counts as older than any other. Within a
/// second the time of writing decides.
bool IsOlder(const ReportFile& one, const ReportFile& other, const char* now);

/// Removes the oldest reports until count are left. folder: ends in "/". Safe in a crash handler, and while
/// other processes do the same. One file for each system.
void KeepNewestReports(const char* folder, int count);

} // namespace crash
