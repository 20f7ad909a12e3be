#include "WndIdManager.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <set>

using video::CWndIdManager;

namespace {

const std::vector<std::string> kNames = {
    "MainView",      "RemotePlayback", "EncodingDevice",    "AuxiliaryScreen", "SecondLiveView",
    "ThirdLiveView", "FourthLiveView", "StoragePlan",       "RecordSchedule",  "BroadcastWID",
    "AlarmOutput",   "Wiper",          "StreamMediaServer", "VideoFile",       "SnapshotFile"};

/// Windows whose pages are made by name; the names are kept.
struct Windows
{
    Windows()
        : manager([this](const std::string& name) {
              made.push_back(name);
              return std::make_unique<QWidget>();
          })
    {
        manager.Init();
    }

    std::vector<std::string> made;
    CWndIdManager manager;
};

TEST(TheWindows, AreThoseFifteenEachWithAPageOfItsOwn)
{
    Windows windows;
    EXPECT_EQ(windows.manager.Names(), kNames);
    std::set<int> seen;
    for (const std::string& name : kNames) {
        int wid = 0;
        EXPECT_TRUE(windows.manager.GetWID(name, wid)) << name;
        seen.insert(wid);
    }
    EXPECT_EQ(windows.made, kNames);
    EXPECT_EQ(seen.size(), kNames.size());
}

TEST(APage, IsMadeOnceAndNotShownByAskingForIt)
{
    Windows windows;
    int first = 0;
    int second = 0;
    ASSERT_TRUE(windows.manager.GetWID("Wiper", first));
    ASSERT_TRUE(windows.manager.GetWID("Wiper", second));
    EXPECT_EQ(first, second);
    EXPECT_EQ(windows.made.size(), 1u);
    EXPECT_FALSE(QWidget::find(static_cast<WId>(first))->isVisible());
    EXPECT_TRUE(windows.manager.ShowWnd("Wiper"));
    EXPECT_TRUE(QWidget::find(static_cast<WId>(first))->isVisible());
}

TEST(TheMainView, LogsItsCreationOnce)
{
    CapturedLog log;
    Windows windows;
    int wid = 0;
    windows.manager.GetWID("MainView", wid);
    windows.manager.GetWID("MainView", wid);
    EXPECT_EQ(log.Messages(Base::LogLevel::Info),
              (std::vector<std::string>{"Init Preview Success.", "Get MainView WndId Success.",
                                        "Get MainView WndId Success."}));
}

TEST(AGetter, WaitsForTheStartOfTheWindows)
{
    Windows windows;
    int waits = 0;
    windows.manager.SetReadyWait([&] { ++waits; });
    int wid = 0;
    windows.manager.GetMainViewWID(wid);
    EXPECT_GT(waits, 0);
}

TEST(AWindowAskedForAfterTheEnd, IsNotMade)
{
    Windows windows;
    int wid = 0;
    windows.manager.GetWID("MainView", wid);
    windows.manager.Finit();
    EXPECT_FALSE(windows.manager.GetWID("MainView", wid));
    EXPECT_FALSE(windows.manager.GetWiperWID(wid));
    EXPECT_EQ(windows.made, std::vector<std::string>{"MainView"});
}

TEST(Finishing, ReleasesAllPagesAndMayBeRepeated)
{
    CapturedLog log;
    Windows windows;
    int wid = 0;
    for (const std::string& name : kNames)
        windows.manager.GetWID(name, wid);
    const auto before = QApplication::topLevelWidgets().size();
    EXPECT_TRUE(windows.manager.Finit());
    EXPECT_EQ(QApplication::topLevelWidgets().size(), before - static_cast<int>(kNames.size()));
    EXPECT_TRUE(windows.manager.Finit());
    EXPECT_TRUE(log.Has("UNInit Preview Success."));
    EXPECT_TRUE(log.Has("UNInit Playback Success."));
}

} // namespace
