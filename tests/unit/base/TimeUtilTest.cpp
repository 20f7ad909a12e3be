#include "Base/TimeUtil.h"

#include <gtest/gtest.h>

using namespace Base::TimeUtil;

namespace {

struct TimeText
{
    std::int64_t seconds;
    const char* text;
};

class ATimeWithItsText : public testing::TestWithParam<TimeText>
{};

TEST_P(ATimeWithItsText, ConvertsInBothDirections)
{
    EXPECT_EQ(TimeT2StrDatetime(GetParam().seconds), GetParam().text);
    EXPECT_EQ(StrDatetime2TimeT(GetParam().text), GetParam().seconds);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ATimeWithItsText,
    testing::Values(TimeText{0, "1970-01-01 00:00:00"}, TimeText{-1, "1969-12-31 23:59:59"},
                    TimeText{951782400, "2000-02-29 00:00:00"}, TimeText{1583020799, "2020-02-29 23:59:59"},
                    TimeText{4107542400, "2100-03-01 00:00:00"}, TimeText{2147483648, "2038-01-19 03:14:08"},
                    TimeText{kFirstSecond, "0000-01-01 00:00:00"},
                    TimeText{kLastSecond, "9999-12-31 23:59:59"}));

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

class ATextThatIsNoTime : public testing::TestWithParam<const char*>
{};

TEST_P(ATextThatIsNoTime, IsRefused)
{
    EXPECT_EQ(StrDatetime2TimeT(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Rows, ATextThatIsNoTime,
                         testing::Values("", "2020-01-01", "2020-01-01T00:00:00", "2020-1-01 00:00:00 ",
                                         "2020-00-01 00:00:00", "2020-13-01 00:00:00", "2020-01-00 00:00:00",
                                         "2021-02-29 00:00:00", "2100-02-29 00:00:00", "2020-04-31 00:00:00",
                                         "2020-01-01 24:00:00", "2020-01-01 00:60:00", "2020-01-01 00:00:60",
                                         "+020-01-01 00:00:00", "2020-01-01 00:00:0x",
                                         "2020-01-01 00:00:000"));

} // namespace
