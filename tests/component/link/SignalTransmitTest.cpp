#include "SignalTransmit.h"
#include "WndIdManager.h"
#include "logical/Communication/RouteTable.h"
#include "logical/System/CurrentUser.h"
#include "support/CapturedLog.h"
#include "ui/System/SystemconfigUIManager.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QThread>

#include <thread>

using lpcclient::LPCCallBackData;
using video::CSignalTransmit;

namespace {

/// Keeps what it is told about users.
class CToldPage : public video::CComponentPage
{
public:
    CToldPage() : video::CComponentPage("told") {}
    void StopWorking() override { told.push_back("stop"); }
    void UpdateUser(const video::User& user) override { told.push_back(user.name); }

    std::vector<std::string> told;
};

/// A transmitter with its windows; replies are kept.
struct Transmitter
{
    Transmitter()
        : windows(
              [](const std::string& name) {
                  return name == "Wiper" ? nullptr : std::make_unique<CToldPage>();
              },
              settings),
          transmitter(windows, user, [this](const LPCCallBackData& call, const protocol::ILPCData& payload) {
              replies.emplace_back(call.requestId, payload.Key());
              return replyWorks;
          })
    {
        windows.Init();
        transmitter.ServeMethods(methods);
    }

    /// Serves the methods on another thread, one after the other, then runs what was queued.
    void ServeOnWorker(const std::vector<std::pair<std::string, LPCCallBackData>>& calls)
    {
        std::thread([&] {
            for (const auto& call : calls)
                EXPECT_EQ(methods.Serve(call.first, call.second), video::CRouteTable::Result::Served)
                    << call.first;
        }).join();
        QCoreApplication::sendPostedEvents();
    }

    void Serve(const std::string& method, const std::string& body)
    {
        ServeOnWorker({{method, {7, {{"method", method}}, body}}});
    }

    CToldPage* Page(const std::string& name)
    {
        int wid = 0;
        EXPECT_TRUE(windows.GetWID(name, wid)) << name;
        return static_cast<CToldPage*>(QWidget::find(static_cast<WId>(wid)));
    }

    video::CSystemconfigUIManager settings;
    video::CWndIdManager windows;
    video::CCurrentUser user;
    std::vector<std::pair<lpcclient::RequestId, std::string>> replies;
    bool replyWorks = true;
    CSignalTransmit transmitter;
    video::CRouteTable methods;
};

/// A method of the framework, and the signal that must carry it.
struct CarryRow
{
    const char* method;
    void (CSignalTransmit::*signal)(const LPCCallBackData&);
};

const std::vector<CarryRow> kCarried = {
    {"getWndHandle", &CSignalTransmit::SignalGetWnd},
    {"showMenuWnd", &CSignalTransmit::SingnalShowMenuWnd},
    {"widgetOperation", &CSignalTransmit::SignalWidgetOperation},
    {"systemConfigPageChanged", &CSignalTransmit::SignalSystemConfigPageChanged},
    {"systemConfigPageSave", &CSignalTransmit::SignalSystemConfigPageSaved},
    {"showWnd", &CSignalTransmit::SignalShowWnd},
    {"operateDownload", &CSignalTransmit::SignalDownloadOperate},
    {"componentStateNotify", &CSignalTransmit::SignalNotifyMainViewState},
    {"joystickKeyboardCtrl", &CSignalTransmit::SignalJoystickKeyboardCtrl},
    {"joystickKeyboard3DPtzCtrl", &CSignalTransmit::SignalJoystickKeyboard3DPtzCtrl},
    {"getAuxiliaryScreenApp", &CSignalTransmit::signalGetAuxiliaryScreenApp},
    {"appTabRemoved", &CSignalTransmit::signalCloseWnd},
    {"switchUserStopWorking", &CSignalTransmit::signalSwitchUserStopWorking},
    {"frameworkMove", &CSignalTransmit::signalFrameworkWindowMove},
    {"switchUserUpdateFrame", &CSignalTransmit::signalSwitchUserUpdateFrame},
};

TEST(EveryMethod, ReachesItsSignalOnTheGuiThreadInTheOrderOfTheCalls)
{
    Transmitter world;
    std::vector<std::string> seen;
    QObject receiver;
    std::vector<std::pair<std::string, LPCCallBackData>> calls;
    for (std::size_t i = 0; i < kCarried.size(); ++i) {
        const CarryRow row = kCarried[i];
        calls.push_back({row.method, {i + 1, {{"method", row.method}}, "{}"}});
        QObject::connect(&world.transmitter, row.signal, &receiver,
                         [&seen, row](const LPCCallBackData& data) {
                             EXPECT_EQ(QThread::currentThread(), qApp->thread());
                             seen.push_back(std::string(row.method) + " " + std::to_string(data.requestId));
                         });
    }
    world.ServeOnWorker(calls);

    std::vector<std::string> wanted;
    for (const auto& call : calls)
        wanted.push_back(call.first + " " + std::to_string(call.second.requestId));
    EXPECT_EQ(seen, wanted);
}

TEST(ThePlainMethods, EmitTheirSignals)
{
    Transmitter world;
    std::vector<std::string> seen;
    QObject receiver;
    QObject::connect(&world.transmitter, &CSignalTransmit::SignalQuit, &receiver,
                     [&] { seen.push_back("quit"); });
    QObject::connect(&world.transmitter, &CSignalTransmit::SignalTabSwitch, &receiver,
                     [&] { seen.push_back("tab"); });
    QObject::connect(&world.transmitter, &CSignalTransmit::SignalStopVoiceTalk, &receiver,
                     [&] { seen.push_back("talk"); });
    world.ServeOnWorker(
        {{"tabSwitch", {}}, {"stopVideoVoiceTalk", {}}, {"clientDisconnected", {}}, {"componentUninit", {}}});
    EXPECT_EQ(seen, (std::vector<std::string>{"tab", "talk", "quit", "quit"}));
}

TEST(AMethodWhosePageIsMissing, IsNamedInTheLog)
{
    CapturedLog log;
    Transmitter world;
    world.Serve("joystickKeyboardCtrl", "");
    EXPECT_TRUE(log.Has("[joystickKeyboardCtrl] is not served."));
}

std::string WindowBody(const std::string& method, const std::string& type)
{
    return R"({"method": ")" + method + R"(", "data": {"type": ")" + type + R"("}})";
}

struct WindowRow
{
    const char* name;
    std::string method;
    std::string body;
    bool replied;
    std::vector<std::string> lines;
    std::vector<std::string> absent;
};

class AWindowRequest : public testing::TestWithParam<WindowRow>
{};

TEST_P(AWindowRequest, IsAnsweredAndLogged)
{
    CapturedLog log;
    Transmitter world;
    world.Serve(GetParam().method, GetParam().body);
    EXPECT_EQ(world.replies.size(), GetParam().replied ? 1u : 0u);
    for (const std::string& line : GetParam().lines)
        EXPECT_TRUE(log.Has(line)) << line;
    for (const std::string& line : GetParam().absent)
        EXPECT_FALSE(log.Has(line)) << line;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AWindowRequest,
    testing::Values(WindowRow{"KnownWindow",
                              "getWndHandle",
                              WindowBody("getWndHandle", "RecordSchedule"),
                              true,
                              {"Get wnd id Name:[RecordSchedule]."},
                              {"Get wnd id Error."}},
                    WindowRow{"UnknownWindow",
                              "getWndHandle",
                              WindowBody("getWndHandle", "Kitchen"),
                              false,
                              {"Get wnd id Name:[Kitchen].", "Get wnd id Error."},
                              {}},
                    WindowRow{"WindowWithoutPage",
                              "getWndHandle",
                              WindowBody("getWndHandle", "Wiper"),
                              false,
                              {"Get wnd id Name:[Wiper].", "Get wnd id Error."},
                              {}},
                    WindowRow{"SettingsPageThatIsMissing",
                              "getWndHandle",
                              WindowBody("getWndHandle", "VideoConfigPage"),
                              false,
                              {"Get wnd id Name:[VideoConfigPage].", "Get wnd id Error."},
                              {"Get wnd Success id:[1]."}},
                    WindowRow{"RemovedTabOfNothing",
                              "appTabRemoved",
                              WindowBody("appTabRemoved", "Kitchen"),
                              false,
                              {"There is no window [Kitchen] to hide."},
                              {}},
                    WindowRow{"OtherMethodInBody",
                              "getWndHandle",
                              WindowBody("showWnd", "MainView"),
                              false,
                              {"Get wnd id Name:[MainView]."},
                              {"Get wnd id Error.", "Init Preview Success."}},
                    WindowRow{"BrokenBody", "getWndHandle", "{\"method\":", false, {}, {"Get wnd id Error."}},
                    WindowRow{"ShowOfNothing",
                              "showWnd",
                              WindowBody("showWnd", "MainView"),
                              false,
                              {"There is no window [MainView] to show."},
                              {"Show Wnd[MainView] Success"}},
                    WindowRow{"AuxiliaryScreen",
                              "getAuxiliaryScreenApp",
                              WindowBody("getAuxiliaryScreenApp", "ThirdLiveView"),
                              true,
                              {"GetAuxiliaryScreenApp APP-[ThirdLiveView]",
                               "Return AuxiliaryScreenApp APP-[ThirdLiveView]",
                               "Return AuxiliaryScreenApp finished! APP-[ThirdLiveView]"},
                              {}},
                    WindowRow{"UnknownAuxiliaryScreen",
                              "getAuxiliaryScreenApp",
                              WindowBody("getAuxiliaryScreenApp", "FifthLiveView"),
                              false,
                              {"GetAuxiliaryScreenApp APP-[FifthLiveView]",
                               "Return AuxiliaryScreenApp fail!!! APP-[FifthLiveView]"},
                              {"Return AuxiliaryScreenApp APP-[FifthLiveView]"}}),
    [](const auto& row) { return row.param.name; });

TEST(AKnownWindow, IsLoggedWithTheIdentifierThatIsAnswered)
{
    CapturedLog log;
    Transmitter world;
    world.Serve("getWndHandle", WindowBody("getWndHandle", "StoragePlan"));
    int wid = 0;
    ASSERT_TRUE(world.windows.GetStoragePlanWID(wid));
    EXPECT_TRUE(log.Has("Get wnd Success id:[" + std::to_string(wid) + "]."));
    EXPECT_EQ(world.replies,
              (std::vector<std::pair<lpcclient::RequestId, std::string>>{{7, "getWndHandle"}}));
}

TEST(AShownWindow, IsVisibleAndLogged)
{
    CapturedLog log;
    Transmitter world;
    world.Serve("getWndHandle", WindowBody("getWndHandle", "VideoFile"));
    world.Serve("showWnd", WindowBody("showWnd", "VideoFile"));
    EXPECT_TRUE(log.Has("Show Wnd[VideoFile] Success"));
}

TEST(AnAuxiliaryScreenReplyThatFails, IsLoggedAsFailure)
{
    CapturedLog log;
    Transmitter world;
    world.replyWorks = false;
    world.Serve("getAuxiliaryScreenApp", WindowBody("getAuxiliaryScreenApp", "SecondLiveView"));
    EXPECT_TRUE(log.Has("Return AuxiliaryScreenApp fail!!! APP-[SecondLiveView]"));
}

TEST(ARemovedTab, HidesItsPageAlone)
{
    Transmitter world;
    CToldPage* const removed = world.Page("VideoFile");
    CToldPage* const other = world.Page("SnapshotFile");
    world.Serve("showWnd", WindowBody("showWnd", "VideoFile"));
    world.Serve("showWnd", WindowBody("showWnd", "SnapshotFile"));
    world.Serve("appTabRemoved", WindowBody("appTabRemoved", "VideoFile"));
    EXPECT_FALSE(removed->isVisible());
    EXPECT_TRUE(other->isVisible());
    world.Serve("appTabRemoved", "{}");
    EXPECT_TRUE(other->isVisible());
}

TEST(ARemovedTab, TakesTheModalDialogsOfItsPageAlong)
{
    for (const bool ofRemoved : {true, false}) {
        Transmitter world;
        CToldPage* const removed = world.Page("VideoFile");
        CToldPage* const other = world.Page("SnapshotFile");
        for (const char* name : {"VideoFile", "SnapshotFile"})
            world.Serve("showWnd", WindowBody("showWnd", name));
        QDialog outer(ofRemoved ? removed : other);
        QDialog inner(&outer);
        outer.open();
        inner.open();
        world.Serve("appTabRemoved", WindowBody("appTabRemoved", "VideoFile"));
        EXPECT_EQ(outer.isVisible(), !ofRemoved);
        EXPECT_EQ(inner.isVisible(), !ofRemoved);
    }
}

/// Two menus, one above the other, and two dialogs in front of a page.
struct OpenWindows
{
    OpenWindows()
    {
        outerDialog.setModal(true);
        innerDialog.setModal(true);
        outerDialog.show();
        innerDialog.show();
        menu.popup({});
        subMenu.popup({});
    }

    QDialog outerDialog;
    QDialog innerDialog{&outerDialog};
    QMenu menu;
    QMenu subMenu{&menu};
};

TEST(WhatMovesTheTabs, ClosesPopupsWithoutAWordAndLeavesDialogsOpen)
{
    for (const char* method : {"tabSwitch", "frameworkMove"}) {
        Transmitter world;
        OpenWindows open;
        ASSERT_TRUE(QApplication::activePopupWidget());
        CapturedLog log;
        world.Serve(method, "");
        EXPECT_FALSE(QApplication::activePopupWidget()) << method;
        EXPECT_TRUE(open.innerDialog.isVisible()) << method;
        EXPECT_TRUE(log.Lines().empty()) << method;
    }
}

TEST(AUserWhoLeaves, TakesPopupsAndDialogsAlongAndStopsEveryPage)
{
    CapturedLog log;
    Transmitter world;
    CToldPage* const pages[] = {world.Page("MainView"), world.Page("RecordSchedule")};
    OpenWindows open;
    world.Serve("switchUserStopWorking",
                R"({"method": "switchUserStopWorking", "data": {"userName": "ann"}})");
    EXPECT_FALSE(QApplication::activePopupWidget());
    EXPECT_FALSE(open.innerDialog.isVisible());
    EXPECT_FALSE(open.outerDialog.isVisible());
    for (const CToldPage* page : pages)
        EXPECT_EQ(page->told, std::vector<std::string>{"stop"});
    EXPECT_TRUE(log.Has("The user [ann] leaves: the pages stop working."));
}

TEST(AUserWhoComes, IsKnownToThePagesAndToThoseWhoAsk)
{
    Transmitter world;
    CToldPage* const page = world.Page("MainView");
    const std::string kBen =
        R"({"method": "switchUserUpdateFrame", "data": {"userName": "ben", "permissions": ["liveView"]}})";
    world.Serve("switchUserUpdateFrame", kBen);
    world.Serve("switchUserUpdateFrame", R"({"method": "switchUserUpdateFrame", "data": {"userName": 7}})");
    EXPECT_EQ(page->told, std::vector<std::string>{"ben"});
    EXPECT_EQ(world.user.Get().name, "ben");
    EXPECT_TRUE(world.user.Get().May("liveView"));
    EXPECT_FALSE(world.user.Get().May("users"));
}

} // namespace
