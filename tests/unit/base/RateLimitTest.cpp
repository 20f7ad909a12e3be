#include "Base/RateLimit.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Clock = std::chrono::steady_clock;

/// What happens at each of the times, in milliseconds: "-" for a line left out, else how many were before it.
template<typename Limit>
std::string At(const std::vector<int>& times)
{
    Limit limit;
    std::string seen;
    for (const int ms : times) {
        unsigned skipped = 0;
        const auto when = Clock::time_point(std::chrono::hours(1) + std::chrono::milliseconds(ms));
        seen += limit.Allows(0, skipped, when) ? std::to_string(skipped) : "-";
    }
    return seen;
}

TEST(ARateLimit, WritesABurstThenOneLineASecondAndTellsWhatItLeftOut)
{
    EXPECT_EQ(At<Base::CRateLimit<1>>({0, 0, 999, 1000, 1001, 5000, 5001}), "0--2-1-");
    using OfThree = Base::CRateLimit<1, 3>;
    EXPECT_EQ(At<OfThree>({0, 0, 0, 0, 0, 1000, 1000, 2500}), "000--2-1");
    EXPECT_EQ(At<OfThree>({0, 0, 0, 10000, 10000, 10000, 10000, 11000}), "000000-1");
    EXPECT_EQ(At<OfThree>({0, 600, 1200, 1200, 1200, 1900, 2200}), "0000--2");
}

TEST(ARateLimit, KeepsKindsApart)
{
    Base::CRateLimit<2> limit;
    unsigned skipped = 7;
    EXPECT_TRUE(limit.Allows(0, skipped));
    EXPECT_TRUE(limit.Allows(1, skipped));
    EXPECT_FALSE(limit.Allows(0, skipped));
}

TEST(ALineLimit, LeavesTheFirstLinesAsTheyAre)
{
    Base::CLineLimit<2> limit;
    EXPECT_EQ(limit.Next(), "");
    EXPECT_EQ(limit.Next(), "");
    EXPECT_FALSE(limit.Next());
}

} // namespace
