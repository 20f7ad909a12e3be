#include "Protocol/JSONStruct/AllMessages.h"
#include "Protocol/JSONStruct/LPC/LPCCommonJSONStruct.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

using namespace protocol;

namespace {

using Lines = std::vector<std::string>;

struct BadBody
{
    const char* name;
    std::string body;
    Lines lines;
};

class BodyThatIsNoMessage : public ::testing::TestWithParam<BadBody>
{};

TEST_P(BodyThatIsNoMessage, IsRefusedWithOneLine)
{
    LocalFileResult result;
    result.path = "before";
    const CapturedLog log;
    EXPECT_FALSE(TParseJSONStr(result, GetParam().body));
    EXPECT_EQ(log.Messages(Base::LogLevel::Error), GetParam().lines);
    EXPECT_EQ(log.Lines().size(), GetParam().lines.size());
    EXPECT_EQ(result.path, "before");
}

const BadBody kBadBodies[] = {
    {"Empty", "", {}},
    {"NoJson", "hello", {"Failed to cJSON_Parse( [hello] ). Error info: [syntax error at byte 0]."}},
    {"Blank", " ", {"Failed to cJSON_Parse( [ ] ). Error info: [syntax error at byte 1]."}},
    {"CutOff",
     "{\"localFileResult\":",
     {"Failed to cJSON_Parse( [{\"localFileResult\":] ). Error info: [syntax error at byte 19]."}},
    {"MoreBehind", "{}x", {"Failed to cJSON_Parse( [{}x] ). Error info: [syntax error at byte 2]."}},
    {"EmbeddedNul",
     std::string("{}\0{}", 5),
     {"Failed to cJSON_Parse( [{} {}] ). Error info: [NUL at byte 2]."}},
    {"EscapedNul",
     R"({"localFileResult":{"path":"a\u0000b"}})",
     {R"(Failed to cJSON_Parse( [{"localFileResult":{"path":"a\u0000b"}}] ). Error info: [escaped NUL at byte 29].)"}},
    {"NotUtf8",
     "{\"localFileResult\":{\"path\":\"\xC0\xAF\"}}",
     {"Failed to cJSON_Parse( [{\"localFileResult\":{\"path\":\"??\"}}] ). Error info: [not UTF-8 at byte "
      "28]."}},
    {"LoneSurrogate",
     R"(["\ud800"])",
     {R"(Failed to cJSON_Parse( [["\ud800"]] ). Error info: [syntax error at byte 2].)"}},
    {"Credentials",
     R"({"password":"hunter2")",
     {R"(Failed to cJSON_Parse( [{"password":***] ). Error info: [syntax error at byte 21].)"}},
    {"OtherKey",
     R"({"localFile":{"path":"a"}})",
     {R"(Failed to cJSON_GetObjectItem([localFileResult]). Error info: [{"localFile":{"path":"a"}}].)"}},
    {"NoObject", "[1]", {"Failed to cJSON_GetObjectItem([localFileResult]). Error info: [[1]]."}},
    {"WrongType",
     R"({"localFileResult":{"path":5}})",
     {R"(Failed to read message [localFileResult]. Key: [path]. Error info: [expected a text]. Text: [{"path":5}].)"}},
    {"WrongWhole",
     R"({"localFileResult":"a"})",
     {"Failed to read message [localFileResult]. Key: [localFileResult]. Error info: [expected an object]. "
      "Text: [\"a\"]."}},
    {"WrongTypeAndCredentials",
     R"({"localFileResult":{"path":5,"password":"hunter2"}})",
     {"Failed to read message [localFileResult]. Key: [path]. Error info: [expected a text]. "
      "Text: [{\"path\":5,\"password\":***}]."}},
};
INSTANTIATE_TEST_SUITE_P(Rows, BodyThatIsNoMessage, ::testing::ValuesIn(kBadBodies),
                         [](const auto& info) { return info.param.name; });

std::string Nested(std::size_t depth)
{
    return std::string(depth, '[') + std::string(depth, ']');
}

TEST(DeepNesting, IsRefusedBeyondTheLimit)
{
    std::string error;
    EXPECT_TRUE(json::ParseText(Nested(CJSON_NESTING_LIMIT), error));
    for (const std::size_t depth :
         {std::size_t{CJSON_NESTING_LIMIT + 1}, std::size_t{100000}, std::size_t{999999}}) {
        EXPECT_FALSE(json::ParseText(Nested(depth), error)) << depth;
        EXPECT_EQ(error, "syntax error at byte " + std::to_string(CJSON_NESTING_LIMIT)) << depth;
    }
}

TEST(DeepNesting, CanBeKeptAsRawValueAndWrittenAgain)
{
    WebSocketNotifyData notify;
    ASSERT_TRUE(notify.Parse(R"({"type":"x","data":)" + Nested(CJSON_NESTING_LIMIT - 1) + "}"));
    EXPECT_EQ(notify.data.text, Nested(CJSON_NESTING_LIMIT - 1));
    WebSocketNotifyData again;
    EXPECT_TRUE(again.Parse(WriteJSONStr(notify)));
    EXPECT_TRUE(again == notify);
}

TEST(LongBody, IsLoggedCut)
{
    LocalFileResult result;
    const CapturedLog log;
    EXPECT_FALSE(TParseJSONStr(result, std::string(1 << 20, 'x')));
    EXPECT_EQ(log.Messages(Base::LogLevel::Error), Lines{"Failed to cJSON_Parse( [" + std::string(4096, 'x') +
                                                         "] ). Error info: [syntax error at byte 0]."});
}

TEST(ManyValues, AreRefusedBeyondTheLimitButNotInsideATextNorInALongOne)
{
    const auto list = [](std::size_t values, const std::string& value) {
        std::string text = "[" + value;
        for (std::size_t i = 1; i < values; ++i)
            text += "," + value;
        return text + "]";
    };
    std::string error;
    EXPECT_TRUE(json::ParseText(list(999999, "0"), error)) << error;
    EXPECT_FALSE(json::ParseText(list(1000000, "0"), error));
    EXPECT_EQ(error, "too many values at byte 1999998");
    EXPECT_FALSE(json::ParseText(list(600000, "[]"), error));
    EXPECT_TRUE(json::ParseText(list(1000001, R"("of records")"), error)) << error;
    EXPECT_TRUE(json::ParseText(R"(["\\",")" + std::string(2000000, ',') + R"(\"",1])", error)) << error;
}

TEST(AFloodOfBadBodies, DoesNotFillTheLog)
{
    const CapturedLog log;
    for (int i = 0; i < 10000; ++i)
        EXPECT_FALSE(WebSocketNotifyData().Parse("x"));
    EXPECT_GE(log.Lines().size(), 10u);
    EXPECT_LT(log.Lines().size(), 40u);
}

TEST(MessageBody, HasTheKeyAsItsOnlyMember)
{
    ComponentRegisterInfo info;
    info.supportUrlList = {"/a", "b"};
    EXPECT_EQ(WriteJSONStr(info), R"({"componentRegisterInfo":{"supportUrlList":["/a","b"]}})");

    TimeSyncResultListData list;
    list.results.push_back({"d", {7, 0}});
    EXPECT_EQ(WriteJSONStr(list),
              R"({"timeSyncResultList":[{"deviceGuid":"d","result":{"errorCode":7,"errorModuleCode":0}}]})");
}

TEST(MessageBody, IsReadWhateverTheLetterCaseOfItsKeys)
{
    LocalFileResult result;
    EXPECT_TRUE(TParseJSONStr(result, R"({"localfileresult":{"Path":"a"}})"));
    EXPECT_EQ(result.path, "a");
}

TEST(LPCEnvelope, ReadsThePayloadFromData)
{
    GetWndHandleRequestData payload;
    LPCRequestData request(payload);
    ASSERT_TRUE(request.Parse(R"({"data":{"type":"MainView"},"method":"getWndHandle","other":1})"));
    EXPECT_EQ(request.method, "getWndHandle");
    EXPECT_EQ(payload.type, "MainView");
}

TEST(LPCEnvelope, ReadsThePayloadOfAnotherMethodToo)
{
    GetWndHandleRequestData payload;
    LPCRequestData request(payload);
    ASSERT_TRUE(request.Parse(R"({"method":"showWnd","data":{"type":"MainView"}})"));
    EXPECT_EQ(request.method, "showWnd");
}

TEST(LPCEnvelope, NeedsNoDataWithoutPayload)
{
    LPCRequestData request;
    EXPECT_TRUE(request.Parse(R"({"method":"tabSwitch"})"));
    EXPECT_EQ(request.method, "tabSwitch");
}

TEST(LPCEnvelope, RefusesWithOneLineWhatIsNoEnvelope)
{
    const std::pair<const char*, const char*> rows[] = {
        {"{", "Failed to cJSON_Parse( [{] ). Error info: [syntax error at byte 1]."},
        {"[]", "Failed to read message [LPCRequestData]. Key: [method]. Error info: [expected a text]. Text: "
               "[[]]."},
        {R"({"method":1,"data":{}})",
         "Failed to read message [LPCRequestData]. Key: [method]. Error info: [expected a text]. "
         "Text: [{\"method\":1,\"data\":{}}]."},
        {R"({"method":"getWndHandle"})",
         R"(Failed to cJSON_GetObjectItem([data]). Error info: [{"method":"getWndHandle"}].)"},
        {R"({"method":"getWndHandle","data":{"kind":"MainView"}})",
         "Failed to read message [getWndHandle]. Key: [type]. Error info: [missing]. "
         "Text: [{\"kind\":\"MainView\"}]."},
    };
    for (const auto& [body, line] : rows) {
        GetWndHandleRequestData payload;
        LPCRequestData request(payload);
        const CapturedLog log;
        EXPECT_FALSE(request.Parse(body)) << body;
        EXPECT_EQ(log.Messages(Base::LogLevel::Error), Lines{line}) << body;
    }
}

TEST(LPCEnvelope, IsWrittenUnderThePayloadsMethod)
{
    GetWndHandleResponseData response;
    response.wndId = 0x7FFFFFFF01;
    EXPECT_EQ(WriteLPCStr(response), R"({"method":"getWndHandle","data":{"wndId":549755813633}})");
    EXPECT_EQ(WriteLPCStr(std::string("initFinish")), R"({"method":"initFinish"})");
    EXPECT_EQ(WriteJSONStr(LPCRequestData(response)), WriteLPCStr(response));
}

TEST(WebSocketNotification, KeepsItsDataForALaterReader)
{
    WebSocketNotifyData notify;
    ASSERT_TRUE(notify.Parse(R"({"guid":"g","type":"deviceAdd","data":{"path":"a"}})"));
    EXPECT_EQ(notify.guid, "g");
    EXPECT_EQ(notify.type, "deviceAdd");
    LocalFileResult data;
    ASSERT_TRUE(ParseJSONValue(data, notify.data.text));
    EXPECT_EQ(data.path, "a");
}

TEST(WebSocketNotification, NeedsAType)
{
    WebSocketNotifyData notify;
    EXPECT_TRUE(notify.Parse(R"({"type":"cloudLogin"})"));
    EXPECT_EQ(notify.data.text, "null");
    EXPECT_FALSE(notify.Parse(R"({"guid":"g","data":{}})"));
    EXPECT_FALSE(notify.Parse("[]"));
    EXPECT_FALSE(notify.Parse(""));
}

} // namespace
