#include "framework/ui/parts/UnreadNotices.h"

#include "framework/core/Journal.h"

#include <gmock/gmock.h>

using namespace framework;
using testing::ElementsAre;

namespace {

TEST(UnreadNotices, StayTheSameNoticesWhenNewOnesCome)
{
    CUnreadNotices unread;
    int changes = 0;
    QObject::connect(&unread, &CUnreadNotices::Changed, [&] { ++changes; });
    for (int notice = 0; notice < 3; ++notice)
        unread.Add();
    unread.MarkRead(1);
    unread.Add();
    EXPECT_THAT(unread.Positions(), ElementsAre(0, 1, 3));
    EXPECT_FALSE(unread.Contains(2));
    EXPECT_EQ(changes, 5);
    unread.MarkRead(-1);
    EXPECT_EQ(changes, 5);
    unread.MarkAllRead();
    EXPECT_EQ(unread.Count(), 0);
}

TEST(UnreadNotices, AreOnlyTakenWhereThereCanBeANotice)
{
    const int kept = static_cast<int>(CJournal::kKept);
    CUnreadNotices unread;
    unread.Set({7, -1, kept, 2, 7, kept - 1});
    EXPECT_THAT(unread.Positions(), ElementsAre(2, 7, kept - 1));
    unread.Add();
    EXPECT_THAT(unread.Positions(), ElementsAre(0, 3, 8));
}

} // namespace
