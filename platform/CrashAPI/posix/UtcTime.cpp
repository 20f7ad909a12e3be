#include "CrashAPI/posix/UtcTime.h"

#include <ctime>

namespace crash {

namespace {

bool IsLeap(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

UtcTime ToUtc(std::int64_t seconds)
{
    constexpr int kSecondsOfDay = 86400;
    std::int64_t days = seconds / kSecondsOfDay;
    const int rest = static_cast<int>(seconds % kSecondsOfDay);
    int year = 1970;
    for (; days >= (IsLeap(year) ? 366 : 365); ++year)
        days -= IsLeap(year) ? 366 : 365;
    const int monthDays[] = {31, IsLeap(year) ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int month = 0;
    for (; days >= monthDays[month]; ++month)
        days -= monthDays[month];
    return {year, month + 1, static_cast<int>(days) + 1, rest / 3600, rest / 60 % 60, rest % 60};
}

} // namespace

UtcTime Now()
{
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return ToUtc(now.tv_sec);
}

void AddTime(SafeText& text, const UtcTime& time, const char* inDate, const char* between, const char* inTime)
{
    text.AddDecimal(time.year, 4).Add(inDate).AddDecimal(time.month, 2).Add(inDate).AddDecimal(time.day, 2);
    text.Add(between);
    text.AddDecimal(time.hour, 2).Add(inTime).AddDecimal(time.minute, 2).Add(inTime);
    text.AddDecimal(time.second, 2);
}

} // namespace crash
