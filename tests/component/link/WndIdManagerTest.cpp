#include "WndIdManager.h"
#include "support/CapturedLog.h"
#include "ui/System/SystemconfigUIManager.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>

#include <set>

using video::CComponentPage;
using video::CSystemconfigUIManager;
using video::CWndIdManager;

namespace {

const std::vector<std::string> kNames = {
    "MainView",          "RemotePlayback", "EncodingDevice", "AuxiliaryScreen",
    "SecondLiveView",    "ThirdLiveView",  "FourthLiveView", "StoragePlan",
    "RecordSchedule",    "BroadcastWID",   "AlarmOutput",    "Wiper",
    "StreamMediaServer", "VideoFile",      "SnapshotFile",   "ToolkitGallery"};
const std::vector<std::string> kSettingsNames = {"VideoConfigPage", "ImageConfigPage", "ToolBarPage"};

/// Windows whose pages are made by name; the names are kept.
struct Windows
{
    Windows()
        : manager(
              [this](const std::string& name) {
                  made.push_back(name);
                  return std::make_unique<CComponentPage>(QString::fromStdString(name));
              },
              settings)
    {
        manager.Init();
    }

    /// The page of a window that is there.
    CComponentPage* Page(const std::string& name)
    {
        int wid = 0;
        EXPECT_TRUE(manager.GetWID(name, wid)) << name;
        return qobject_cast<CComponentPage*>(QWidget::find(static_cast<WId>(wid)));
    }

    std::vector<std::string> made;
    CSystemconfigUIManager settings;
    CWndIdManager manager;
};

TEST(TheWindows, AreTheFifteenAndTheGalleryEachWithAPageOfItsOwnAndTheSettingsPages)
{
    Windows windows;
    std::vector<std::string> all = kNames;
    all.insert(all.end(), kSettingsNames.begin(), kSettingsNames.end());
    EXPECT_EQ(windows.manager.Names(), all);
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

TEST(APageWhoseTabWasRemoved, IsHiddenAndServedAgain)
{
    Windows windows;
    EXPECT_FALSE(windows.manager.HideWnd("VideoFile")) << "it was never made";
    CComponentPage* const page = windows.Page("VideoFile");
    const WId before = page->winId();
    windows.manager.ShowWnd("VideoFile");
    EXPECT_TRUE(windows.manager.HideWnd("VideoFile"));
    EXPECT_FALSE(page->isVisible());
    EXPECT_EQ(windows.Page("VideoFile"), page);
    EXPECT_EQ(page->winId(), before);
    EXPECT_EQ(windows.made.size(), 1u);
}

TEST(APage, HasNoFrameAndIgnoresRequestsToClose)
{
    Windows windows;
    CComponentPage* const page = windows.Page("MainView");
    EXPECT_TRUE(page->windowFlags() & Qt::FramelessWindowHint);
    windows.manager.ShowWnd("MainView");
    QCloseEvent request;
    EXPECT_TRUE(QCoreApplication::sendEvent(page, &request));
    EXPECT_FALSE(request.isAccepted());
    EXPECT_FALSE(page->close());
    EXPECT_TRUE(page->isVisible());
}

TEST(ASettingsPage, IsServedByItsManagerOnceItHasACreator)
{
    QWidget first;
    first.winId(); // Offscreen, the first window of all has the identifier that stands for no page.
    Windows windows;
    int wid = 0;
    for (const std::string& name : kSettingsNames)
        EXPECT_FALSE(windows.manager.GetWID(name, wid)) << name;
    EXPECT_EQ(windows.settings.GetPageWnd(""), CSystemconfigUIManager::kNoPage);

    int created = 0;
    windows.settings.SetPageCreator("ToolBarPage", [&] {
        ++created;
        return std::make_unique<CComponentPage>("tool bar");
    });
    windows.settings.SetPageCreator("ImageConfigPage", [] { return std::unique_ptr<CComponentPage>(); });
    EXPECT_FALSE(windows.manager.ShowWnd("ToolBarPage")) << "it was not asked for yet";
    CComponentPage* const page = windows.Page("ToolBarPage");
    EXPECT_EQ(windows.Page("ToolBarPage"), page);
    EXPECT_EQ(created, 1);
    EXPECT_TRUE(windows.manager.ShowWnd("ToolBarPage"));
    EXPECT_TRUE(page->isVisible());
    EXPECT_EQ(windows.manager.Pages(), std::vector<CComponentPage*>{page});
    EXPECT_FALSE(windows.manager.GetWID("ImageConfigPage", wid)) << "its creator failed";
    windows.settings.UnInit();
    EXPECT_FALSE(windows.manager.GetWID("ToolBarPage", wid));
}

TEST(TheMainView, LogsItsCreationOnce)
{
    CapturedLog log;
    Windows windows;
    int wid = 0;
    windows.manager.GetWID("MainView", wid);
    windows.manager.GetWID("MainView", wid);
    EXPECT_EQ(
        log.Messages(Base::LogLevel::Info),
        (std::vector<std::string>{"Made the page [MainView], titled [MainView].", "Init Preview Success.",
                                  "Get MainView WndId Success.", "Get MainView WndId Success."}));
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
