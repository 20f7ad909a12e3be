#include "lpc/script/Script.h"

#include <gtest/gtest.h>

#include <csignal>

using namespace lpctool;

namespace {

Script Parsed(const std::string& text)
{
    std::string error;
    auto script = ParseScript("s.jsonl", text, error);
    EXPECT_TRUE(script) << error;
    return script.value_or(Script());
}

template<typename Kind>
Kind OnlyStep(const std::string& text)
{
    const Script script = Parsed(text);
    EXPECT_EQ(script.lines.size(), 1u);
    return std::get<Kind>(script.lines.at(0).step);
}

TEST(AScript, LeavesOutCommentsAndBlankLinesAndKeepsLineNumbers)
{
    const Script script =
        Parsed("# silent\n\n  \t\r\n## shown text\r\n   {\"sleep_ms\": 1}\n#{\"sleep_ms\": 2}");
    ASSERT_EQ(script.lines.size(), 2u);
    EXPECT_EQ(std::get<Heading>(script.lines[0].step).text, "shown text");
    EXPECT_EQ(script.lines[1].number, 5);
    EXPECT_EQ(std::get<Sleep>(script.lines[1].step).ms, 1u);
}

TEST(AScript, ReadsAnInvocation)
{
    const auto step = OnlyStep<Invoke>(
        R"({"invoke":{"protocol":"http","url":"/u","method":"POST","body":{"a":1}},"reply":{"b":"*"},)"
        R"("reply_headers":{"url":"/u"},"within_ms":20})");
    EXPECT_EQ(step.headers, (lpc::HeaderMap{{"protocol", "http"}, {"url", "/u"}, {"method", "POST"}}));
    EXPECT_EQ(BodyText(step.body), R"({"a":1})");
    EXPECT_EQ(ToText(*step.reply), R"({"b":"*"})");
    EXPECT_EQ(ToText(*step.replyHeaders), R"({"url":"/u"})");
    EXPECT_EQ(step.withinMs, 20u);
    EXPECT_FALSE(step.silenceMs);
}

TEST(AScript, SendsATextBodyAsItIs)
{
    const auto step = OnlyStep<Invoke>(R"({"invoke": {"method": "m", "body": "{broken"}, "no_reply_ms": 0})");
    EXPECT_EQ(BodyText(step.body), "{broken");
    EXPECT_EQ(step.silenceMs, 0u);
}

TEST(AScript, ReadsTheOtherKindsOfLines)
{
    const auto serve = OnlyStep<Serve>(R"({"serve":{"url":"/u"},"answer":[1],"status":503,"error_code":7})");
    EXPECT_EQ(serve.url, "/u");
    EXPECT_EQ(serve.status, 503);
    EXPECT_EQ(serve.errorCode, 7);
    EXPECT_TRUE(OnlyStep<Serve>(R"({"serve":{"method":"m"},"silent":true})").silent);
    EXPECT_TRUE(OnlyStep<ExpectMessage>(R"({"expect_request":{"url":"/u"}})").request);
    EXPECT_FALSE(OnlyStep<ExpectMessage>(R"({"expect_notify":{"method":"m"}})").request);
    EXPECT_EQ(OnlyStep<KillChild>(R"({"kill":"SIGKILL"})").signal, SIGKILL);
    EXPECT_EQ(OnlyStep<ExpectExit>(R"({"expect_exit":-9,"within_ms":5})").status, -9);
    const auto set = OnlyStep<SetOptions>(R"({"set":{"timeout_ms":9,"accepting":false,"$x":[2]}})");
    EXPECT_EQ(set.timeoutMs, 9u);
    EXPECT_EQ(set.accepting, false);
    ASSERT_EQ(set.variables.size(), 1u);
    EXPECT_EQ(set.variables[0].first, "x");
}

const std::tuple<const char*, const char*, const char*> kFaults[] = {
    {"broken JSON", R"({"sleep_ms": })", "not valid JSON at column 14"},
    {"two values", R"({"sleep_ms": 1} {})", "not valid JSON at column 17"},
    {"no object", "[1]", "a line must be an object"},
    {"unknown kind", R"({"jump": 1})", "unknown kind of line"},
    {"a misspelt member", R"({"sleep_ms": 1, "whithin_ms": 2})", "unknown member \"whithin_ms\""},
    {"an unknown header", R"({"invoke": {"methods": "m"}, "reply": {}})", "unknown member \"methods\""},
    {"an invocation without address", R"({"invoke": {"body": {}}, "reply": {}})", "a message needs"},
    {"an invocation that demands nothing", R"({"invoke": {"method": "m"}})", "needs either"},
    {"reply and silence", R"({"invoke": {"method": "m"}, "reply": {}, "no_reply_ms": 1})", "needs either"},
    {"two times", R"({"invoke": {"method": "m"}, "no_reply_ms": 1, "within_ms": 1})", "\"within_ms\""},
    {"a number as text", R"({"invoke": {"method": 5}, "reply": {}})", "\"method\" must be a text"},
    {"no object to invoke", R"({"invoke": "m", "reply": {}})", "\"invoke\" must be an object"},
    {"a negative time", R"({"sleep_ms": -1})", "\"sleep_ms\" must be a whole number from 1 to 3600000"},
    {"a time of 0", R"({"expect_exit": 0, "within_ms": 0})", "\"within_ms\" must be"},
    {"half a millisecond", R"({"sleep_ms": 1.5})", "must be a whole number"},
    {"more than an hour", R"({"sleep_ms": 3600001})", "must be a whole number"},
    {"a time as text", R"({"sleep_ms": "5"})", "must be a whole number"},
    {"an unknown signal", R"({"kill": "SIGNOTHING"})", "unknown signal \"SIGNOTHING\""},
    {"expecting nothing special", R"({"expect_notify": {"body": {}}})", "\"expect_notify\" needs"},
    {"serving nothing", R"({"serve": {}, "answer": {}})", "\"serve\" needs"},
    {"a status out of range", R"({"serve": {"url": "/u"}, "status": 99})", "from 100 to 599"},
    {"silent with an answer", R"({"serve": {"url": "/u"}, "silent": true, "answer": {}})", "exclude"},
    {"an unknown option", R"({"set": {"timeout": 5}})", "unknown option \"timeout\""},
    {"an exit status out of range", R"({"expect_exit": 256})", "from -255 to 255"},
};

TEST(AScript, IsRefusedForAFaultThatIsNamedWithFileAndLine)
{
    for (const auto& [name, line, complaint] : kFaults) {
        std::string error;
        EXPECT_FALSE(ParseScript("s.jsonl", std::string("\n# fine\n") + line, error)) << name;
        EXPECT_EQ(error.rfind("s.jsonl:3: ", 0), 0u) << name << ": " << error;
        EXPECT_NE(error.find(complaint), std::string::npos) << name << ": " << error;
    }
}

} // namespace
