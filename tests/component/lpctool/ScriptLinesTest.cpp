#include "component/lpctool/HostRun.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

struct LineRow
{
    const char* name;
    const char* script;
    int status;
    const char* output;   ///< what the host prints, among other things
    const char* way = ""; ///< how the component lives
};

std::ostream& operator<<(std::ostream& out, const LineRow& row)
{
    return out << row.name;
}

const LineRow kRows[] = {
    {"nothing but comments", "# nothing\n## Hello\n", 0, "\nHello\n"},
    {"a reply that matches",
     R"({"invoke":{"protocol":"http","url":"/fake/echo","body":{"a":1,"b":2}},"reply":{"a":1}})", 0,
     "invoke /fake/echo: a reply"},
    {"a reply that differs", R"({"invoke":{"url":"/fake/echo","body":{"a":[1]}},"reply":{"a":[2]}})", 1,
     "s.jsonl:1: the reply differs\n        at      $.a[0]\n        wanted  2\n        got     1\n"
     "        whole   {\"a\":[1]}"},
    {"a reply that is no JSON", R"({"invoke":{"url":"/fake/echo","body":"{broken"},"reply":"{broken"})", 0,
     "ok"},
    {"a reply with its headers",
     R"({"invoke":{"url":"/fake/echo","method":"GET"},"reply_headers":{"method":"GET"}})", 0, "ok"},
    {"no reply", R"({"expect_notify":{"method":"initFinish"}}
{"invoke":{"url":"/fake/silent"},"reply":"*","within_ms":50})",
     1, "no reply within 50 ms"},
    {"silence", R"({"invoke":{"url":"/fake/silent"},"no_reply_ms":50})", 0, "silence for 50 ms"},
    {"an end without a reply", R"({"invoke":{"method":"componentUninit"},"no_reply_ms":20000}
{"expect_exit":0})",
     0, "expect the end with exit code 0"},
    {"a reply instead of silence", R"({"invoke":{"url":"/fake/echo","body":[7]},"no_reply_ms":20000})", 1,
     "a reply came where silence was demanded\n        whole   [7]"},
    {"variables from one reply to the next",
     R"({"invoke":{"url":"/fake/echo","body":{"id":41}},"reply":{"id":"$id"}}
{"invoke":{"url":"/fake/echo","body":{"id":"$id"}},"reply":{"id":41}}
{"invoke":{"url":"/fake/echo","body":{"id":42}},"reply":{"id":"$id"}})",
     1, "s.jsonl:3: the reply differs\n        at      $.id\n        wanted  41 ($id)\n        got     42"},
    {"a variable that nobody set", R"({"invoke":{"url":"/fake/echo","body":"$x"},"reply":"*"})", 1,
     "there is no variable $x"},
    {"a notification with its body", R"({"expect_notify":{"method":"initFinish","body":{"method":"*"}}})", 0,
     "expect notification initFinish"},
    {"a notification that does not come",
     R"({"expect_notify":{"method":"initFinish"}}
{"expect_notify":{"method":"initFinish"},"within_ms":50})",
     1, "s.jsonl:2: no matching notification within 50 ms"},
    {"a notification that nearly matches",
     R"({"expect_notify":{"body":{"method":"x"},"method":"initFinish"},"within_ms":1000})", 1,
     "at      $.body.method\n        wanted  \"x\"\n        got     \"initFinish\""},
    {"a notification that the component is asked for",
     R"({"expect_notify":{"method":"initFinish"}}
{"notify":{"method":"tell","body":{"headers":{"method":"told"},"body":{"n":1}}}}
{"expect_notify":{"method":"told","body":{"n":1}}})",
     0, "notify tell"},
    {"a request of the start-up",
     R"({"expect_request":{"url":"/vantor/v1/internal/framework/register",)"
     R"("body":{"componentRegisterInfo":{"supportUrlList":["/fake/echo","/fake/silent","ask","tell"]}}}})",
     0, "expect request /vantor/v1/internal/framework/register"},
    {"a request that does not come", R"({"expect_notify":{"method":"initFinish"}}
{"expect_request":{"url":"/other"},"within_ms":50})",
     1, "no matching request within 50 ms; there came only: /vantor/v1/internal/framework/register"},
    {"what is served",
     R"({"serve":{"url":"/f/*"},"answer":{"n":5},"status":503,"error_code":9}
{"invoke":{"method":"ask","body":{"headers":{"url":"/f/1"},"body":{"q":1}}},"reply":{"headers":{"status":"503","errorCode":"9"},"body":{"n":5}}}
{"expect_request":{"url":"/f/1","body":{"q":1}}})",
     0, "serve /f/* with status 503"},
    {"what is served by default",
     R"({"invoke":{"method":"ask","body":{"headers":{"url":"/vantor/v1/internal/framework/system/dateTimeFormat"}}},"reply":{"headers":{"status":"200"},"body":{"dateTimeFormat":{"timeFormat":"HH:mm:ss"}}}}
{"invoke":{"method":"ask","body":{"headers":{"url":"/other"}}},"reply":{"headers":{"status":"404"}}})",
     0, "ok"},
    {"no answer at all",
     R"({"serve":{"url":"/f"},"silent":true}
{"invoke":{"method":"ask","body":{"headers":{"url":"/f"}}},"reply":{"error":1007}})",
     0, "serve /f with nothing"},
    {"a host that does not accept",
     R"({"expect_notify":{"method":"initFinish"}}
{"set":{"accepting":false}}
{"invoke":{"method":"ask","body":{"headers":{"url":"/f"}}},"reply":{"error":1015}}
{"set":{"accepting":true}}
{"invoke":{"method":"ask","body":{"headers":{"url":"/f"}}},"reply":{"headers":{"status":"404"}}})",
     0, "ok"},
    {"a default time", R"({"set":{"timeout_ms":60}}
{"expect_request":{"url":"/never"}})",
     1, "no matching request within 60 ms"},
    {"a sleep", R"({"sleep_ms":20})", 0, "sleep 20 ms"},
    {"a killed component",
     R"({"expect_notify":{"method":"initFinish"}}
{"kill":"SIGKILL"}
{"expect_exit":-9})",
     0, "send signal 9 (SIGKILL)"},
    {"a notification for nobody", R"({"notify":{"method":"die","body":{"exit":0}}}
{"expect_exit":0}
{"notify":{"method":"m"},"may_miss":true}
{"notify":{"method":"m"}})",
     1, "s.jsonl:4: no connection of the component"},
    {"another exit than demanded",
     R"({"notify":{"method":"die","body":{"exit":3}}}
{"expect_exit":0})",
     1, "wanted  exit code 0\n        got     exit code 3"},
    {"no exit", R"({"expect_exit":0,"within_ms":50})", 1, "no end within 50 ms"},
    {"a component that dies while a reply is awaited",
     R"({"invoke":{"method":"die","body":{"signal":9}},"reply":"*","within_ms":20000})", 1,
     "no reply: the component ended with signal 9 (SIGKILL)"},
    {"a component that dies while a notification is awaited",
     R"({"notify":{"method":"die","body":{"exit":3}}}
{"expect_notify":{"method":"never"},"within_ms":20000})",
     1, "no matching notification: the component ended with exit code 3"},
    {"steps after the component's end", R"({"notify":{"method":"die","body":{"exit":0}}}
{"expect_exit":0}
{"invoke":{"method":"m"},"reply":"*","within_ms":20000})",
     1, "no connection of the component: the component ended with exit code 0"},
    {"killing twice", R"({"kill":"SIGTERM"}
{"expect_exit":-15}
{"kill":"SIGKILL"})",
     1, "the program does not run"},
    {"a component that ends when it is asked to", R"({"expect_notify":{"method":"initFinish"}})", 0,
     "end the component"},
    {"a component that does not end", R"({"set":{"end_ms":200}}
{"expect_notify":{"method":"initFinish"}})",
     1, "end: it did not end and was killed", "stubborn"},
    {"a component that never connects", R"({"set":{"timeout_ms":50}})", 1,
     "end: it could not be asked and was killed", "unconnected"},
    {"awaiting one that never connects", R"({"set":{"timeout_ms":50}}
{"invoke":{"method":"m"},"reply":"*"})",
     1, "no connection of the component within 50 ms", "unconnected"},
    {"a component broken from the start", R"({"sleep_ms":300})", 1,
     "the component ended before with exit code 3", "broken"},
    {"awaiting a broken component", R"({"expect_notify":{"method":"initFinish"},"within_ms":20000})", 1,
     "no matching notification: the component ended with exit code 3", "broken"},
    {"breaking in silence", R"({"invoke":{"method":"die","body":{"exit":3}},"no_reply_ms":20000})", 1,
     "exit code 3"},
    {"broken as demanded", R"({"expect_exit":3})", 0, "all as demanded", "broken"},
};

class ScriptLines : public testing::TestWithParam<LineRow>
{};

TEST_P(ScriptLines, ArePlayedAndExplained)
{
    CHostRun run;
    run.Start(GetParam().script, GetParam().way);
    EXPECT_EQ(run.Status(), GetParam().status) << run.Output();
    EXPECT_TRUE(run.Says(GetParam().output)) << run.Output();
    const char* summary = GetParam().status == 0 ? ": all as demanded\n" : ": failed\n";
    EXPECT_TRUE(run.Says(summary)) << run.Output();
    EXPECT_EQ(run.Says("MISMATCH") || run.Says("ended before"), GetParam().status != 0) << run.Output();
}

INSTANTIATE_TEST_SUITE_P(TheHost, ScriptLines, testing::ValuesIn(kRows));

} // namespace
