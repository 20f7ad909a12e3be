#include "lpc/script/Answers.h"

#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

using namespace lpctool;

namespace {

lpc::CallBackData Request(const std::string& url, const std::string& method = "GET",
                          const std::string& body = {})
{
    return {1, {{"protocol", "http"}, {"url", url}, {"method", method}}, body};
}

CAnswers::Answer Text(const std::string& body)
{
    return {false, MakeAnswer(200, 0, body)};
}

TEST(Answers, HaveADefaultForEveryRouteOfAFramework)
{
    const TestDataRoot root;
    const std::pair<const char*, const char*> rows[] = {
        {"/vantor/v1/internal/framework/register", "response"},
        {"/vantor/v1/internal/framework/components", "componentList"},
        {"/vantor/v1/internal/framework/system/filepath", "filepath"},
        {"/vantor/v1/internal/framework/system/dateTimeFormat", "dateTimeFormat"},
        {"/vantor/v1/internal/framework/system/frameResize", "response"},
        {"/vantor/v1/internal/alarmCenter/register", "response"},
        {"/vantor/v1/deviceManagement/groups", "groupList"},
        {"/vantor/v1/deviceManagement/devices", "deviceList"},
        {"/vantor/v1/deviceManagement/devices/d7", "device"},
        {"/vantor/v1/deviceManagement/devices/d7/channels/", "channelList"},
        {"/vantor/v1/deviceManagement/devices/d7/alarmInputs/", "alarmInputList"},
        {"/vantor/v1/deviceManagement/devices/alarmOutputs", "alarmOutputList"},
        {"/vantor/v1/deviceManagement/devices/d7/alarmOutputs", "alarmOutputList"},
        {"/vantor/v1/deviceManagement/devices/d7/alarmOutputs/o1/controls", "response"},
        {"/vantor/v1/deviceManagement/batchTimeSynchronization", "timeSyncResultList"},
        {"/vantor/v1/deviceManagement/wipers", "wiperControlResultList"},
    };
    for (const auto& [url, member] : rows) {
        const lpc::Message answer = CAnswers().Find(Request(url)).message;
        EXPECT_EQ(answer.headers.at("status"), "200") << url;
        EXPECT_EQ(answer.headers.at("Content-Type"), kJsonContentType) << url;
        const JsonValue body = ParseJson(answer.body);
        EXPECT_TRUE(Member(body.get(), member)) << url << " " << answer.body;
        EXPECT_EQ(answer.body.find('$'), std::string::npos) << answer.body;
    }
}

TEST(Answers, SpeakOfTheDeviceThatWasAskedFor)
{
    const auto answer = CAnswers().Find(Request("/vantor/v1/deviceManagement/devices/d7/channels/"));
    const JsonValue body = ParseJson(answer.message.body);
    const cJSON* channel = cJSON_GetArrayItem(Member(body.get(), "channelList"), 1);
    EXPECT_EQ(TextMember(channel, "deviceGuid"), "d7");
}

TEST(Answers, GiveAResultForEachDeviceAndWiper)
{
    const CAnswers answers;
    const auto times = answers.Find(Request("/vantor/v1/deviceManagement/batchTimeSynchronization", "PUT",
                                            R"({"deviceGuidList":["d1","d2"]})"));
    EXPECT_EQ(times.message.body, R"({"timeSyncResultList":[{"deviceGuid":"d1","result":{"errorCode":0}},)"
                                  R"({"deviceGuid":"d2","result":{"errorCode":0}}]})");
    const auto wipers = answers.Find(Request("/vantor/v1/deviceManagement/wipers", "PUT",
                                             R"({"wiperControl":{"channelGuids":["c1"],"action":2}})"));
    EXPECT_EQ(wipers.message.body,
              R"({"wiperControlResultList":[{"channelGuid":"c1","result":{"errorCode":0}}]})");
}

TEST(Answers, PreferWhatWasServedLast)
{
    CAnswers answers;
    const auto body = [&](const char* url, const char* method) {
        return answers.Find(Request(url, method)).message.body;
    };
    EXPECT_EQ(answers.Find(Request("/a/b")).message.headers.at("status"), "404");
    answers.Serve("/a/*", "", Text("1"));
    answers.Serve("/a/b", "PUT", Text("2"));
    EXPECT_EQ(body("/a/b", "PUT"), "2");
    EXPECT_EQ(body("/a/b", "GET"), "1");
    EXPECT_EQ(body("/a/c", "PUT"), "1");
    EXPECT_EQ(body("/a/c/d", "PUT"), "");
    answers.Serve("/a/*", "", Text("3"));
    EXPECT_EQ(body("/a/b", "PUT"), "3");
    answers.Serve("", "loadComponents", Text("4"));
    EXPECT_EQ(body("", "loadComponents"), "4");
    EXPECT_EQ(answers.Find(Request("", "other")).message.headers.at("status"), "404");
}

TEST(Urls, MatchSegmentBySegment)
{
    EXPECT_TRUE(UrlMatches("/a/*/c/", "/a/b/c/"));
    EXPECT_FALSE(UrlMatches("/a/*/c/", "/a/b/c"));
    EXPECT_FALSE(UrlMatches("/a/*", "/a/"));
    EXPECT_FALSE(UrlMatches("/a/*", "/a/b/c"));
    EXPECT_FALSE(UrlMatches("/a/b", "/a/B"));
}

} // namespace
