#include "CrashAPI/Retention.h"

#include "CrashAPI/posix/SafeFiles.h"
#include "CrashAPI/posix/UtcTime.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace crash {

namespace {

struct Oldest
{
    int count = 0;
    ReportFile report;
};

std::int64_t WrittenAt(int folder, const char* name)
{
    struct stat found
    {};
    if (::fstatat(folder, name, &found, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    return static_cast<std::int64_t>(found.st_mtim.tv_sec) * 1000 * 1000 * 1000 + found.st_mtim.tv_nsec;
}

Oldest FindOldest(FolderReader& folder, const char* now)
{
    Oldest oldest;
    while (const char* name = folder.Next()) {
        if (!IsReportName(name))
            continue;
        ReportFile report;
        std::strcpy(report.name.data(), name);
        report.written = WrittenAt(folder.Handle(), name);
        if (oldest.count++ == 0 || IsOlder(report, oldest.report, now))
            oldest.report = report;
    }
    return oldest;
}

} // namespace

void KeepNewestReports(const char* folder, int count)
{
    SafeText now;
    AddTime(now.Add("crash-"), Now(), "", "-", "");
    for (;;) {
        FolderReader reader(folder);
        const Oldest oldest = FindOldest(reader, now.Get());
        if (oldest.count <= count)
            return;
        // Another process may have been first, and then there may be enough room already.
        if (::unlinkat(reader.Handle(), oldest.report.name.data(), 0) != 0 && errno != ENOENT)
            return;
    }
}

} // namespace crash
