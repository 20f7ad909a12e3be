#include "lpc/script/ComponentInbox.h"

#include <gtest/gtest.h>

using namespace lpctool;

namespace {

using Kind = CComponentInbox::Kind;
using Outcome = CComponentInbox::Outcome;

void Add(CComponentInbox& inbox, Kind kind, int number)
{
    inbox.Add(kind, OwnJson(cJSON_CreateNumber(number)));
}

/// Looks for a number among what is there, without waiting.
Outcome Take(CComponentInbox& inbox, Kind kind, int number)
{
    return inbox.WaitForMessage(kind, Clock::now(),
                                [number](const cJSON& message) { return message.valueint == number; });
}

TEST(TheInbox, TakesAMessageOutWithAllBeforeIt)
{
    CComponentInbox inbox;
    for (int number : {1, 2, 3})
        Add(inbox, Kind::Request, number);
    EXPECT_EQ(Take(inbox, Kind::Request, 2), Outcome::Found);
    EXPECT_EQ(Take(inbox, Kind::Request, 1), Outcome::TimedOut);
    EXPECT_EQ(Take(inbox, Kind::Request, 2), Outcome::TimedOut);
    EXPECT_EQ(Take(inbox, Kind::Request, 3), Outcome::Found);
}

TEST(TheInbox, KeepsRequestsAndNotificationsApart)
{
    CComponentInbox inbox;
    Add(inbox, Kind::Request, 1);
    Add(inbox, Kind::Notification, 2);
    EXPECT_EQ(Take(inbox, Kind::Notification, 1), Outcome::TimedOut);
    EXPECT_EQ(Take(inbox, Kind::Notification, 2), Outcome::Found);
    EXPECT_EQ(Take(inbox, Kind::Request, 1), Outcome::Found);
}

TEST(TheInbox, LetsTheOldestGoWhenItIsFull)
{
    CComponentInbox inbox;
    const int last = static_cast<int>(CComponentInbox::kKeptMessages);
    for (int number = 0; number <= last; ++number)
        Add(inbox, Kind::Notification, number);
    EXPECT_EQ(Take(inbox, Kind::Notification, 0), Outcome::TimedOut);
    EXPECT_EQ(Take(inbox, Kind::Notification, 1), Outcome::Found);
    EXPECT_EQ(Take(inbox, Kind::Notification, last), Outcome::Found);
}

TEST(TheInbox, EndsWaitsWhenTheComponentIsGone)
{
    CComponentInbox inbox;
    inbox.Connected(5);
    inbox.Disconnected(4);
    EXPECT_EQ(inbox.Client(), 5u);
    Add(inbox, Kind::Request, 1);
    inbox.Disconnected(5);
    inbox.Exited(-9);
    const auto hour = Clock::now() + std::chrono::hours(1);
    const auto never = [](const cJSON&) { return false; };
    EXPECT_EQ(inbox.WaitForMessage(Kind::Request, hour, never), Outcome::Ended);
    lpcserver::ClientId client = 0;
    EXPECT_EQ(inbox.WaitForConnection(hour, client), Outcome::Ended);
    int status = 0;
    EXPECT_EQ(inbox.WaitForExit(hour, status), Outcome::Found);
    EXPECT_EQ(status, -9);
    EXPECT_EQ(Take(inbox, Kind::Request, 1), Outcome::Found);
}

TEST(TheInbox, EndsEveryWaitWhenInterrupted)
{
    CComponentInbox inbox;
    inbox.Interrupt();
    const auto hour = Clock::now() + std::chrono::hours(1);
    lpcserver::ClientId client = 0;
    int status = 0;
    EXPECT_EQ(inbox.WaitForConnection(hour, client), Outcome::Interrupted);
    EXPECT_EQ(inbox.WaitForExit(hour, status), Outcome::Interrupted);
    EXPECT_FALSE(inbox.SleepUntil(hour));
}

} // namespace
