#include "Base/TimeUtil.h"

#include <gtest/gtest.h>

using namespace Base::TimeUtil;

namespace {

TEST(ATimeWithItsText, ConvertsInBothDirections)
{
    const std::pair<std::int64_t, const char*> rows[] = {{0, "1970-01-01 00:00:00"},
                                                         {-1, "1969-12-31 23:59:59"},
                                                         {951782400, "2000-02-29 00:00:00"},
                                                         {1583020799, "2020-02-29 23:59:59"},
                                                         {4107542400, "2100-03-01 00:00:00"},
                                                         {2147483648, "2038-01-19 03:14:08"},
                                                         {kFirstSecond, "0000-01-01 00:00:00"},
                                                         {kLastSecond, "9999-12-31 23:59:59"}};
    for (const auto& [seconds, text] : rows) {
        EXPECT_EQ(TimeT2StrDatetime(seconds), text);
        EXPECT_EQ(StrDatetime2TimeT(text), seconds);
    }
}

TEST(TimesOutsideTheRange, GiveItsNearerEnd)
{
    EXPECT_EQ(TimeT2StrDatetime(kFirstSecond - 1), "0000-01-01 00:00:00");
    EXPECT_EQ(TimeT2StrDatetime(INT64_MAX), "9999-12-31 23:59:59");
}

TEST(EveryDayOfTwoCenturies, ComesBackAndSortsAfterTheDayBefore)
{
    std::string before = TimeT2StrDatetime(-86400LL * 36525);
    for (std::int64_t day = -36524; day < 36525; ++day) {
        const std::int64_t seconds = day * 86400 + 43200;
        const std::string text = TimeT2StrDatetime(seconds);
        ASSERT_EQ(StrDatetime2TimeT(text), seconds) << text;
        ASSERT_LT(before, text);
        before = text;
    }
}

TEST(ATextThatIsNoTime, IsRefused)
{
    for (const char* text :
         {"", "2020-01-01", "2020-01-01T00:00:00", "2020-1-01 00:00:00 ", "2020-00-01 00:00:00",
          "2020-13-01 00:00:00", "2020-01-00 00:00:00", "2021-02-29 00:00:00", "2100-02-29 00:00:00",
          "2020-04-31 00:00:00", "2020-01-01 24:00:00", "2020-01-01 00:60:00", "2020-01-01 00:00:60",
          "+020-01-01 00:00:00", "2020-01-01 00:00:0x", "2020-01-01 00:00:000"})
        EXPECT_EQ(StrDatetime2TimeT(text), std::nullopt) << text;
}

} // namespace
