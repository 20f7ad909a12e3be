#include "logical/System/SystemConfigRoutes.h"
#include "SettingsWorld.h"
#include "logical/Communication/LPCNames.h"

using namespace settings;

namespace {

class SystemConfigs : public testing::Test, protected World
{
protected:
    SystemConfigs()
    {
        video::ServeSystemConfigs(
            m_http, [this]() -> video::CSystemConfig& { return config; },
            [this](const lpcclient::LPCCallBackData&, const video::RouteAnswer& answer) {
                m_answer = answer;
                return true;
            });
    }

    /// Status and body of the answer; "0 " when there was none.
    std::string Call(const std::string& method, const std::string& body)
    {
        m_answer = {"", 0};
        lpcclient::LPCCallBackData call;
        call.headers["method"] = method;
        call.body = body;
        m_http.Serve(video::route::kSystemConfigs, call);
        return std::to_string(m_answer.status) + " " + m_answer.body;
    }
    std::string Set(const std::string& fields) { return Call("PUT", "{\"systemConfigs\":" + fields + "}"); }

    video::CRouteTable m_http;
    video::RouteAnswer m_answer;
};

TEST_F(SystemConfigs, ReadsTheWholeRecordInEveryWayOfAskingForIt)
{
    const std::string whole = Call("GET", "");
    video::ForEachSetting([&](const auto& field) {
        const std::string value = std::is_same_v<decltype(field.byDefault), bool>
                                      ? (field.byDefault ? "true" : "false")
                                      : std::to_string(field.byDefault);
        EXPECT_NE(whole.find("\"" + std::string(field.name) + "\":" + value), std::string::npos)
            << field.name;
    });
    EXPECT_NE(whole.find(R"("captureSaveFolder":"/chosen/capture")"), std::string::npos);
    EXPECT_EQ(Call("POST", ""), whole);
    EXPECT_EQ(Set("{}"), whole);
    EXPECT_EQ(Call("GET", R"({"systemConfigs":{"DisplayScale":2}})"), whole);
    EXPECT_EQ(sent, 0);
    const CapturedLog log;
    EXPECT_EQ(Call("PUT", R"({"systemConfigs":[]})"), "0 ");
    EXPECT_EQ(Set(R"({"DisplayScale":1,"DisplayScale":2})"), "0 ");
    EXPECT_EQ(log.Messages(Base::LogLevel::Error).size(), 2u);
}

TEST_F(SystemConfigs, SetsAnyFieldByItsName)
{
    video::ForEachSetting([&](const auto& field) {
        const int value = OtherValue(field);
        Set("{\"" + std::string(field.name) + "\":" + std::to_string(value) + "}");
        EXPECT_EQ(m_answer.status, 200) << m_answer.body;
        EXPECT_EQ(Ask(std::string("SELECT ") + field.name + " FROM VideoSystemConfigTable"),
                  std::to_string(value));
    });
    EXPECT_EQ(sent, 27) << "EnableTransactionInfor alone is no change to announce";
}

TEST_F(SystemConfigs, SavesSeveralAtOnceAndAnnouncesThemOnce)
{
    const std::string answer =
        Set(R"({"DisplayScale":2,"EnableToolBar":false,"videoSaveFolder":"/it's \"me\" 🎥"})");
    EXPECT_NE(answer.find(R"("videoSaveFolder":"/it's \"me\" 🎥")"), std::string::npos) << answer;
    EXPECT_EQ(folders.folders.video, "/it's \"me\" 🎥");
    EXPECT_EQ(sent, 1);
    EXPECT_EQ(scaleWhenSent, "2");
    Deliver(loop);
    EXPECT_EQ(observer.heard, "0 1");
}

TEST_F(SystemConfigs, RefusesTheWholeForOneBadFieldAndNamesIt)
{
    const std::string longFolder(261, 'x');
    const std::pair<std::string, std::string> rows[] = {
        {R"("DisplayScale":4)", "DisplayScale: expected an integer: 0 to 3"},
        {R"("DisplayScale":-1)", "DisplayScale: expected an integer: 0 to 3"},
        {R"("DisplayScale":1.5)", "DisplayScale: expected an integer: 0 to 3"},
        {R"("DisplayScale":true)", "DisplayScale: expected an integer: 0 to 3"},
        {R"("DisplayScale":null)", "DisplayScale: expected an integer: 0 to 3"},
        {R"("PlayPerformance":46)", "PlayPerformance: expected an integer: 1, 6 to 45 or 100"},
        {R"("EnableToolBar":2)", "EnableToolBar: expected true or false"},
        {R"("EnableToolBar":"1")", "EnableToolBar: expected true or false"},
        {R"("enableToolBar":1)", "enableToolBar: there is no such setting"},
        {R"("InstantPlaybackStreamType":1)", "InstantPlaybackStreamType: there is no such setting"},
        {R"("videoSaveFolder":"")", "videoSaveFolder: expected 1 to 260 bytes"},
        {"\"captureSaveFolder\":\"" + longFolder + "\"", "captureSaveFolder: expected 1 to 260 bytes"},
        {R"("captureSaveFolder":7)", "captureSaveFolder: expected a text"},
    };
    for (const auto& [field, message] : rows) {
        const CapturedLog log;
        EXPECT_EQ(Set("{\"VideoFileFormat\":1," + field + "}"),
                  R"(400 {"response":{"result":{"errorCode":1002,"errorModuleCode":0},"message":")" +
                      message + "\"}}");
        EXPECT_EQ(log.Messages(Base::LogLevel::Error).size(), 1u) << field;
    }
    EXPECT_EQ(config.VideoFileFormat(), 0);
    EXPECT_EQ(sent, 0);
}

} // namespace
