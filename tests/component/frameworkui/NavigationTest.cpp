#include "framework/ui/shell/Navigation.h"
#include "framework/ui/parts/WindowTable.h"
#include "framework/ui/shell/TabArea.h"

#include <gmock/gmock.h>

#include <QPushButton>

#include <set>

using namespace framework;
using testing::UnorderedElementsAre;

namespace {

std::set<std::string> ShownTo(const User& user)
{
    CNavigation navigation;
    navigation.SetUser(user);
    std::set<std::string> shown;
    for (const WindowRow& row : AllWindows())
        if (navigation.Item(row.name)->isVisibleTo(&navigation))
            shown.insert(row.name);
    return shown;
}

TEST(WindowTable, HasEachWindowOnceAndOnlyKnownPermissions)
{
    std::set<std::string> names;
    const auto& permissions = AllPermissions();
    for (const WindowRow& row : AllWindows()) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        if (*row.permission != '\0') {
            EXPECT_EQ(std::count(permissions.begin(), permissions.end(), row.permission), 1) << row.name;
        }
    }
    for (const char* window :
         {"MainView", "RemotePlayback", "EncodingDevice", "AuxiliaryScreen", "SecondLiveView",
          "ThirdLiveView", "FourthLiveView", "StoragePlan", "RecordSchedule", "BroadcastWID", "AlarmOutput",
          "Wiper", "StreamMediaServer", "VideoFile", "SnapshotFile"})
        EXPECT_TRUE(names.count(window)) << window;
}

TEST(Navigation, ShowsOnlyWhatTheUserMayOpen)
{
    EXPECT_THAT(ShownTo({"nobody", {}}), UnorderedElementsAre("Home", "Notices"));
    EXPECT_THAT(ShownTo({"watcher", {permission::kLiveView}}),
                UnorderedElementsAre("Home", "Notices", "MainView", "AuxiliaryScreen", "SecondLiveView",
                                     "ThirdLiveView", "FourthLiveView"));
    EXPECT_EQ(ShownTo({"admin", AllPermissions()}).size(), AllWindows().size());
}

TEST(Navigation, AClosedGroupHidesItsItemsUntilItIsCollapsedToIcons)
{
    CNavigation navigation;
    navigation.SetUser({"admin", AllPermissions()});
    navigation.SetClosedGroups({WindowGroup::Tools});
    EXPECT_FALSE(navigation.Item("Wiper")->isVisibleTo(&navigation));
    navigation.SetCollapsed(true);
    EXPECT_TRUE(navigation.Item("Wiper")->isVisibleTo(&navigation));
    EXPECT_TRUE(navigation.Item("Wiper")->text().isEmpty());
}

TEST(TabArea, OpensATabOnceAndKeepsHome)
{
    CTabArea tabs([](const WindowRow&, QWidget* parent) { return new QWidget(parent); });
    QStringList closed;
    QObject::connect(&tabs, &CTabArea::Closed, [&](const QString& name) { closed << name; });
    EXPECT_TRUE(tabs.Open("Home"));
    EXPECT_TRUE(tabs.Open("MainView"));
    EXPECT_TRUE(tabs.Open("Wiper"));
    EXPECT_TRUE(tabs.Open("MainView"));
    EXPECT_FALSE(tabs.Open("NoSuchWindow"));
    EXPECT_EQ(tabs.Names(), QStringList({"Home", "MainView", "Wiper"}));
    EXPECT_EQ(tabs.Current(), "MainView");
    tabs.Close("MainView");
    tabs.Close("Home");
    EXPECT_EQ(tabs.Names(), QStringList({"Home", "Wiper"}));
    EXPECT_EQ(closed, QStringList("MainView"));
    EXPECT_EQ(tabs.Page("MainView"), nullptr);
}

TEST(TabArea, TellsEachTabThatComesToTheFrontOnce)
{
    CTabArea tabs([](const WindowRow&, QWidget* parent) { return new QWidget(parent); });
    QStringList told;
    QObject::connect(&tabs, &CTabArea::CurrentChanged, [&](const QString& name) { told << name; });
    for (const char* name : {"Home", "MainView", "Wiper"})
        EXPECT_TRUE(tabs.Add(name));
    EXPECT_EQ(told, QStringList());
    tabs.Open("MainView");
    tabs.Open("MainView");
    tabs.Step(1);
    tabs.Step(1);
    tabs.Step(-1);
    tabs.Close("Wiper");
    EXPECT_EQ(told, QStringList({"MainView", "Wiper", "Home", "Wiper", tabs.Current()}));
}

} // namespace
