#include "logical/Communication/LPCDispatcher.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

using lpcclient::LPCCallBackData;

namespace {

LPCCallBackData Call(const std::string& protocol, const std::string& url, const std::string& method,
                     const std::string& body = "")
{
    return {1, {{"protocol", protocol}, {"url", url}, {"method", method}}, body};
}

/// Writes down who was called.
struct Served
{
    Served()
    {
        dispatcher.Http().Bind("/route", [this](const LPCCallBackData&) { calls.push_back("http"); });
        dispatcher.Http().Declare("/later");
        dispatcher.Methods().Bind("method", [this](const LPCCallBackData&) { calls.push_back("method"); });
        dispatcher.SetWebsocketSinks(
            [this](std::shared_ptr<protocol::WebSocketNotifyData> data) {
                calls.push_back("centre " + data->type);
            },
            [this](const LPCCallBackData&) { calls.push_back("websocket"); },
            [this](const LPCCallBackData&) { calls.push_back("alarm"); });
    }

    std::vector<std::string> Dispatch(const LPCCallBackData& call)
    {
        calls.clear();
        dispatcher.Dispatch(std::make_shared<const video::CDispatchTask>(call));
        return calls;
    }

    video::CLPCDispatcher dispatcher;
    std::vector<std::string> calls;
};

struct Row
{
    const char* name;
    LPCCallBackData call;
    std::vector<std::string> calls;
};

class ACall : public testing::TestWithParam<Row>
{};

TEST_P(ACall, ReachesWhoeverServesIt)
{
    EXPECT_EQ(Served().Dispatch(GetParam().call), GetParam().calls);
}

const char* kAlarm = R"({"guid": "1", "type": "alarmMessage", "data": {}})";
const char* kOther = R"({"guid": "1", "type": "deviceAdd", "data": {}})";

INSTANTIATE_TEST_SUITE_P(
    Rows, ACall,
    testing::Values(
        Row{"HttpByUrl", Call("http", "/route", "POST"), {"http"}},
        Row{"HttpNotByMethod", Call("http", "/other", "method"), {}},
        Row{"HttpDeclaredOnly", Call("http", "/later", ""), {}},
        Row{"NoProtocolByMethod", Call("", "/route", "method"), {"method"}},
        Row{"OtherProtocolByMethod", Call("ftp", "/route", "method"), {"method"}},
        Row{"ProtocolIsCaseSensitive", Call("HTTP", "/route", "method"), {"method"}},
        Row{"UnknownMethod", Call("", "", "other"), {}},
        Row{"WebsocketAlarm",
            Call("websocket", "/route", "method", kAlarm),
            {"centre alarmMessage", "websocket", "alarm"}},
        Row{"WebsocketOther", Call("websocket", "", "", kOther), {"centre deviceAdd", "websocket"}},
        Row{"WebsocketBrokenBody", Call("websocket", "", "", "{\"type\":"), {}},
        Row{"WebsocketEmptyBody", Call("websocket", "", "", ""), {}}),
    [](const auto& row) { return row.param.name; });

TEST(ACallWithoutHeaders, IsTakenAsUnknownMethod)
{
    EXPECT_TRUE(Served().Dispatch({}).empty());
}

TEST(ANotification, HoldsItsMessageUntilEverybodyIsDone)
{
    Served served;
    std::shared_ptr<protocol::WebSocketNotifyData> queued;
    served.dispatcher.SetWebsocketSinks([&](auto notification) { queued = std::move(notification); },
                                        [](const LPCCallBackData&) {}, [](const LPCCallBackData&) {});
    video::DispatchTaskPtr task =
        std::make_shared<const video::CDispatchTask>(Call("websocket", "", "", kOther));
    const std::weak_ptr<const video::CDispatchTask> message = task;
    served.dispatcher.Dispatch(std::exchange(task, nullptr));
    ASSERT_TRUE(queued);
    EXPECT_EQ(queued->type, "deviceAdd");
    EXPECT_FALSE(message.expired());
    queued.reset();
    EXPECT_TRUE(message.expired());
}

TEST(ARowThatNobodyServes, IsNamedInTheLog)
{
    CapturedLog log;
    Served().Dispatch(Call("http", "/later", ""));
    EXPECT_TRUE(log.Has("[/later] is not served."));
}

} // namespace
