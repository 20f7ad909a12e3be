#include "component/framework/CoreWorld.h"

#include <future>
#include <optional>

using testing::HasSubstr;

namespace {

using Wnd = std::optional<std::uint64_t>;

/// A core whose component is a client in this process.
class Messages : public CoreTest
{
protected:
    Messages() { StartCore(); }

    Wnd Window(const std::string& name)
    {
        std::promise<Wnd> answer;
        core->GetWndHandle(name, [&](Wnd wnd) { answer.set_value(wnd); });
        return answer.get_future().get();
    }
};

TEST_F(Messages, TellTheComponentOfResourcesOnceItHasRegistered)
{
    TestClient component(lpc::kVideoComponentName);
    ASSERT_TRUE(events.texts.Take("state starting"));
    AddDevice("Before");
    component.BecomeReady();
    const std::string guid = AddDevice("Yard", 8001, 1);
    const std::string yard =
        R"(websocket {"guid":")" + guid + R"(","type":"deviceAdd","data":{"guid":")" + guid;
    EXPECT_TRUE(component.received.Take(yard));
    EXPECT_TRUE(component.received.Take("websocket {\"guid\":\"" + core->Resources().Channels(guid)[0].guid +
                                        "\",\"type\":\"channelAdd\""));
    ASSERT_TRUE(core->Resources().Remove(guid));
    EXPECT_TRUE(
        component.received.Take("websocket {\"guid\":\"" + guid + R"(","type":"deviceRemove","data":null})"));
    for (const std::string& text : component.received.All())
        EXPECT_THAT(text, testing::Not(HasSubstr("Before")));
}

TEST_F(Messages, BringAlarmsToThoseWhoRegisteredForTheirType)
{
    const std::string url = "/vantor/v1/internal/alarmCenter/register";
    TestClient component(lpc::kVideoComponentName);
    core->RaiseAlarm("d", "nobody hears");
    for (const char* types : {"[5]", "[5,0]", "[]"}) {
        const std::string body = R"({"alarmRegister":{"componentId":"Video.C","alarmTypes":)";
        ASSERT_EQ(component.Request("POST", url, body + types + "}}").status, "200");
        core->RaiseAlarm("d", types);
    }
    for (const char* heard : {"[5,0]", "[]"})
        EXPECT_TRUE(component.received.Take(
            R"(websocket {"guid":"d","type":"alarmMessage","data":{"alarmType":0,"deviceGuid":"d","text":")" +
            std::string(heard)));
    EXPECT_EQ(component.received.All().size(), 2u);
}

TEST_F(Messages, GiveWindowsOnlyOfAReadyComponentThatAnswers)
{
    EXPECT_EQ(Window("MainView"), std::nullopt);
    TestClient component(lpc::kVideoComponentName);
    component.onRequest = [](const lpc::CallBackData& call) {
        const bool isMain = call.body == R"({"method":"getWndHandle","data":{"type":"MainView"}})";
        const std::string wnd = isMain ? "4294967295" : "0";
        EXPECT_TRUE(lpcclient::Reply(
            {call.requestId, call.headers, R"({"method":"getWndHandle","data":{"wndId":)" + wnd + "}}"}));
    };
    component.BecomeReady();
    EXPECT_EQ(Window("MainView"), 4294967295u);
    EXPECT_EQ(Window("Other"), std::nullopt);
    core->ShowWnd("MainView");
    EXPECT_TRUE(component.received.Take(R"(showWnd {"method":"showWnd","data":{"type":"MainView"}})"));
}

TEST_F(Messages, TellOfTheFrameworksWindow)
{
    TestClient component(lpc::kVideoComponentName);
    component.BecomeReady();
    core->TabSwitched("");
    core->TabRemoved("Wiper");
    for (int x = 0; x <= 1000; ++x)
        core->WindowMoved(x, -7);
    EXPECT_TRUE(component.received.Take(R"(tabSwitch {"method":"tabSwitch","data":{"type":""}})"));
    EXPECT_TRUE(
        component.received.Take(R"(appTabRemoved {"method":"appTabRemoved","data":{"type":"Wiper"}})"));
    EXPECT_TRUE(component.received.Take(R"(frameworkMove {"method":"frameworkMove","data":{"x":0,"y":-7}})"));
    EXPECT_TRUE(
        component.received.Take(R"(frameworkMove {"method":"frameworkMove","data":{"x":1000,"y":-7}})"));
}

TEST_F(Messages, LetTheComponentStopBeforeAnotherUserTakesOver)
{
    TestClient component(lpc::kVideoComponentName);
    component.BecomeReady();
    EXPECT_FALSE(core->SwitchUser("operator", "wrong"));
    EXPECT_FALSE(core->SwitchUser("nobody", ""));
    EXPECT_TRUE(core->SwitchUser("guest", ""));
    EXPECT_TRUE(core->SwitchUser("guest", ""));
    EXPECT_TRUE(core->SwitchUser("operator", ""));
    ASSERT_TRUE(component.received.Take("switchUserStopWorking"));
    ASSERT_TRUE(component.received.Take(
        R"(switchUserStopWorking {"method":"switchUserStopWorking","data":{"userName":"guest"}})"));
    ASSERT_TRUE(component.received.Take(
        R"(switchUserUpdateFrame {"method":"switchUserUpdateFrame","data":{"userName":"operator","permissions":["liveView",)"));
    EXPECT_EQ(component.received.CountOf("switchUserStopWorking"), 2u);
    EXPECT_EQ(component.received.CountOf("switchUserUpdateFrame"), 3u);
    EXPECT_TRUE(events.texts.Take("operation operator: User \"operator\" took over from \"guest\"."));
}

} // namespace
