#include "Base/TimeUtil.h"

#include "Base/StringUtil.h"

#include <algorithm>
#include <array>

namespace Base::TimeUtil {

namespace {

constexpr std::int64_t kSecondsADay = 86400;
constexpr std::size_t kTextLength = 19;

struct Date
{
    std::int64_t year;
    int month;
    int day;
};

/// Days since 1970-01-01 of a date in the Gregorian calendar, counted in 400-year cycles of years that begin
/// in March (the usual civil-calendar arithmetic: 146097 days a cycle, 719468 days from 0000-03-01 to
/// 1970-01-01).
std::int64_t DaysOf(const Date& date)
{
    const std::int64_t year = date.month <= 2 ? date.year - 1 : date.year;
    const std::int64_t cycle = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t yearOfCycle = year - cycle * 400;
    const int monthFromMarch = (date.month + 9) % 12;
    const std::int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + date.day - 1;
    const std::int64_t dayOfCycle = yearOfCycle * 365 + yearOfCycle / 4 - yearOfCycle / 100 + dayOfYear;
    return cycle * 146097 + dayOfCycle - 719468;
}

Date DateOf(std::int64_t days)
{
    days += 719468;
    const std::int64_t cycle = (days >= 0 ? days : days - 146096) / 146097;
    const std::int64_t dayOfCycle = days - cycle * 146097;
    const std::int64_t yearOfCycle =
        (dayOfCycle - dayOfCycle / 1460 + dayOfCycle / 36524 - dayOfCycle / 146096) / 365;
    const std::int64_t dayOfYear = dayOfCycle - (365 * yearOfCycle + yearOfCycle / 4 - yearOfCycle / 100);
    const int monthFromMarch = static_cast<int>((5 * dayOfYear + 2) / 153);
    const int month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    const int day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    return {yearOfCycle + cycle * 400 + (month <= 2 ? 1 : 0), month, day};
}

bool IsLeapYear(std::int64_t year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysOfMonth(std::int64_t year, int month)
{
    static constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : kDays[static_cast<std::size_t>(month - 1)];
}

/// The number that the digits [from, from + count) spell; -1 when there is another character.
int Digits(std::string_view text, std::size_t from, std::size_t count)
{
    int value = 0;
    for (std::size_t i = from; i < from + count; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return -1;
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

} // namespace

std::string TimeT2StrDatetime(std::int64_t seconds)
{
    seconds = std::clamp(seconds, kFirstSecond, kLastSecond);
    std::int64_t days = seconds / kSecondsADay;
    std::int64_t rest = seconds % kSecondsADay;
    if (rest < 0) {
        rest += kSecondsADay;
        --days;
    }
    const Date date = DateOf(days);
    return StringUtil::Format("%04d-%02d-%02d %02d:%02d:%02d", static_cast<int>(date.year), date.month,
                              date.day, static_cast<int>(rest / 3600), static_cast<int>(rest / 60 % 60),
                              static_cast<int>(rest % 60));
}

std::optional<std::int64_t> StrDatetime2TimeT(std::string_view text)
{
    if (text.size() != kTextLength)
        return std::nullopt;
    if (text[4] != '-' || text[7] != '-' || text[10] != ' ' || text[13] != ':' || text[16] != ':')
        return std::nullopt;
    const Date date{Digits(text, 0, 4), Digits(text, 5, 2), Digits(text, 8, 2)};
    const int hour = Digits(text, 11, 2);
    const int minute = Digits(text, 14, 2);
    const int second = Digits(text, 17, 2);
    if (date.year < 0 || date.month < 1 || date.month > 12 || date.day < 1)
        return std::nullopt;
    if (date.day > DaysOfMonth(date.year, date.month))
        return std::nullopt;
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59)
        return std::nullopt;
    return DaysOf(date) * kSecondsADay + hour * 3600 + minute * 60 + second;
}

} // namespace Base::TimeUtil
