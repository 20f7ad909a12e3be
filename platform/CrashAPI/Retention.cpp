#include "CrashAPI/Retention.h"

#include <cstring>

namespace crash {

namespace {

constexpr char kBegin[] = "crash-";
constexpr std::size_t kTimeBytes = sizeof "crash-YYYYMMDD-HHMMSS" - 1;

bool EndsIn(const char* name, std::size_t size, const char* end)
{
    return size >= std::strlen(end) && std::strcmp(name + size - std::strlen(end), end) == 0;
}

int CompareTimes(const ReportFile& one, const ReportFile& other, const char* now)
{
    const bool wrong = std::strncmp(one.name.data(), now, kTimeBytes) > 0;
    const bool otherWrong = std::strncmp(other.name.data(), now, kTimeBytes) > 0;
    if (wrong != otherWrong)
        return wrong ? -1 : 1;
    return std::strncmp(one.name.data(), other.name.data(), kTimeBytes);
}

} // namespace

bool IsReportName(const char* name)
{
    const std::size_t size = std::strlen(name);
    return size < sizeof(ReportFile::name) && std::strncmp(name, kBegin, sizeof kBegin - 1) == 0 &&
           (EndsIn(name, size, ".txt") || EndsIn(name, size, ".dmp"));
}

bool IsOlder(const ReportFile& one, const ReportFile& other, const char* now)
{
    if (const int order = CompareTimes(one, other, now); order != 0)
        return order < 0;
    if (one.written != other.written)
        return one.written < other.written;
    return std::strcmp(one.name.data(), other.name.data()) < 0;
}

} // namespace crash
