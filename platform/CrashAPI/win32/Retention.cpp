#include "CrashAPI/Retention.h"

#include "CrashAPI/CrashSettings.h"

#include <windows.h>

#include <cstdio>
#include <cstring>

namespace crash {

namespace {

using Path = char[kPathLimit + sizeof(ReportFile::name)];

struct Oldest
{
    int count = 0;
    ReportFile report;
};

ReportFile FromFound(const WIN32_FIND_DATAA& found)
{
    ReportFile report;
    std::strcpy(report.name.data(), found.cFileName);
    report.written = (static_cast<std::int64_t>(found.ftLastWriteTime.dwHighDateTime) << 32) |
                     found.ftLastWriteTime.dwLowDateTime;
    return report;
}

Oldest FindOldest(const char* folder, const char* now)
{
    Oldest oldest;
    Path pattern;
    std::snprintf(pattern, sizeof pattern, "%scrash-*", folder);
    WIN32_FIND_DATAA found;
    const HANDLE search = ::FindFirstFileA(pattern, &found);
    if (search == INVALID_HANDLE_VALUE)
        return oldest;
    do {
        if (!IsReportName(found.cFileName))
            continue;
        const ReportFile report = FromFound(found);
        if (oldest.count++ == 0 || IsOlder(report, oldest.report, now))
            oldest.report = report;
    } while (::FindNextFileA(search, &found));
    ::FindClose(search);
    return oldest;
}

} // namespace

void KeepNewestReports(const char* folder, int count)
{
    SYSTEMTIME time;
    ::GetSystemTime(&time);
    char now[64];
    std::snprintf(now, sizeof now, "crash-%04u%02u%02u-%02u%02u%02u", time.wYear, time.wMonth, time.wDay,
                  time.wHour, time.wMinute, time.wSecond);
    for (;;) {
        const Oldest oldest = FindOldest(folder, now);
        if (oldest.count <= count)
            return;
        Path path;
        std::snprintf(path, sizeof path, "%s%s", folder, oldest.report.name.data());
        if (!::DeleteFileA(path) && ::GetLastError() != ERROR_FILE_NOT_FOUND)
            return;
    }
}

} // namespace crash
