#include "framework/ui/parts/Report.h"

#include "framework/ui/parts/WindowMemory.h"
#include "support/FileContent.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace framework;

namespace {

TEST(Report, WritesEachHappeningAsALineAtOnce)
{
    const TestDataRoot root;
    const QString path = QString::fromStdString(root.Path()) + "report";
    CReport report;
    report.Tell("lost");
    ASSERT_TRUE(report.Open(path));
    report.Tell("tab", {{"name", "Zeile\n2"}, {"rect", ToJSON(QRect(1, 2, 3, 4))}});
    report.Tell("ended");
    const auto lines = QByteArray::fromStdString(FileContent(path.toStdString())).split('\n');
    ASSERT_EQ(lines.size(), 3);
    const QJsonObject tab = QJsonDocument::fromJson(lines[0]).object();
    EXPECT_EQ(tab["event"].toString(), "tab");
    EXPECT_EQ(tab["name"].toString(), "Zeile\n2");
    EXPECT_EQ(tab["rect"].toArray(), (QJsonArray{1, 2, 3, 4}));
    EXPECT_EQ(QJsonDocument::fromJson(lines[1]).object()["event"].toString(), "ended");
}

TEST(Report, SaysWhenItCannotBeWritten)
{
    CReport report;
    EXPECT_FALSE(report.Open("/no/such/folder/report"));
}

TEST(WindowMemory, ComesBackAndADamagedOneIsAsAtTheFirstStart)
{
    const TestDataRoot root;
    const std::string path = root.Path() + "window.json";
    WindowMemory memory;
    memory.geometry = {-5, 20, 1200, 800};
    memory.tabs = {"Home", "MainView"};
    memory.currentTab = "MainView";
    memory.closedGroups = {3};
    memory.unread = {0, 4};
    memory.Save(path);
    const WindowMemory again = WindowMemory::Load(path);
    EXPECT_EQ(again.geometry, memory.geometry);
    EXPECT_EQ(again.tabs, memory.tabs);
    EXPECT_EQ(again.currentTab, "MainView");
    EXPECT_EQ(again.closedGroups, memory.closedGroups);
    EXPECT_EQ(again.unread, memory.unread);
    std::ofstream(path) << "{\"window\":{\"tabs\":3";
    EXPECT_TRUE(WindowMemory::Load(path).tabs.empty());
}

} // namespace
