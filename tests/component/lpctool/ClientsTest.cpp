#include "component/lpctool/HostRun.h"

#include "lpc/Names.h"
#include "lpc/json/Json.h"

#include "Base/FileUtil.h"
#include "Base/StringUtil.h"

#include <gtest/gtest.h>

#include <csignal>

using namespace lpctool;

namespace {

/// A host with a registered component that runs until it is told "done".
class Clients : public testing::Test
{
protected:
    void SetUp() override
    {
        m_run.Start(R"({"expect_notify":{"method":"initFinish"},"within_ms":20000}
{"expect_notify":{"method":"done"},"within_ms":60000}
{"invoke":{"url":"/fake/echo","body":{"token":"t","n":1}},"reply":{"n":1}})");
        ASSERT_TRUE(m_run.Host().WaitForOutput("initFinish")) << m_run.Output();
    }

    /// Makes the component send the notification that ends the script.
    void Finish()
    {
        const auto notify =
            m_run.Tool({"notify", "--method", "tell", "--body", R"({"headers":{"method":"done"}})"});
        EXPECT_EQ(notify->Status(), 0) << notify->Output();
        EXPECT_EQ(m_run.Status(), 0) << m_run.Output();
    }

    CHostRun m_run;
};

TEST_F(Clients, ReachTheComponentThroughTheHost)
{
    const std::tuple<std::vector<std::string>, int, const char*> rows[] = {
        {{"call", "--url", "/fake/echo", "--method", "PUT", "--body", R"({"a":[1]})"},
         0,
         "{\n\t\"a\":\t[1]\n}\n"},
        {{"call", "--url", "/fake/echo"}, 0, ""},
        {{"call", "--method", "ask", "--body", R"({"headers":{"url":"/other"}})"}, 0, "\"status\":\t\"404\""},
        {{"call", "--url", "/fake/other"}, 1, "the answer reports status 404"},
        {{"call", "--method", "getWndHandle"}, 1, "the answer reports status 404"},
        {{"call", "--url", "/fake/silent", "--timeout", "100"}, 1, "error 1007"},
    };
    for (const auto& [arguments, status, output] : rows) {
        const auto call = m_run.Tool(arguments);
        EXPECT_EQ(call->Status(), status) << output;
        EXPECT_TRUE(call->Says(output)) << call->Output();
    }
    Finish();
}

TEST_F(Clients, SendManyBodiesOverOneConnection)
{
    const std::string path = m_run.Root().Path() + "bodies";
    const struct
    {
        const char* bodies;
        std::vector<std::string> arguments;
        int status;
        const char* output;
    } rows[] = {
        {"{\"n\": 1}\n\n[2]", {"--url", "/fake/echo"}, 0, "{\"n\":1}\n[2]\n"},
        {"1\n2\n3\n", {"--url", "/fake/echo", "--quiet"}, 0, "{\"count\":3,\"failures\":0,\"seconds\":"},
        {"1\n2\n", {"--url", "/fake/other", "--quiet"}, 1, "\"count\":2,\"failures\":2,"},
        {"1\n{", {"--url", "/fake/echo"}, 2, "1\nvantor-lpc call: --bodies, line 2 is "},
        {"", {"--url", "/fake/echo", "--body", "1"}, 2, "exclude each other"},
    };
    for (const auto& row : rows) {
        ASSERT_TRUE(Base::FileUtil::WriteFileAtomically(path, row.bodies));
        std::vector<std::string> arguments{"call", "--bodies", path};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        const auto call = m_run.Tool(arguments);
        EXPECT_EQ(call->Status(), row.status) << row.output;
        EXPECT_NE(call->Output().find(row.output), std::string::npos) << call->Output();
    }
    Finish();
}

TEST_F(Clients, SeeTheTrafficWithoutSecrets)
{
    const auto watch = m_run.Tool({"watch", "--count", "4"});
    ASSERT_TRUE(watch->WaitForOutput("watching")) << watch->Output();
    const auto call =
        m_run.Tool({"call", "--url", "/fake/echo", "--body", R"({"device":{"password":"clear"}})"});
    EXPECT_EQ(call->Status(), 0) << call->Output();
    EXPECT_EQ(watch->Status(), 0) << watch->Output();
    EXPECT_FALSE(watch->Says("clear")) << watch->Output();

    std::string path;
    for (const std::string& text : Base::StringUtil::Split(watch->Output(), '\n')) {
        const JsonValue line = ParseJson(text);
        if (!line)
            continue;
        const std::string body = ToText(*Member(line.get(), "body"));
        EXPECT_EQ(body, R"({"device":{"password":"***"}})");
        const bool toComponent = TextMember(line.get(), "to") == kComponentName;
        const bool fromComponent = TextMember(line.get(), "from") == kComponentName;
        path += TextMember(line.get(), "kind") + (toComponent ? ">" : fromComponent ? "<" : ".");
    }
    EXPECT_EQ(path, "request.request>reply<reply.");
    Finish();
}

TEST_F(Clients, StopWatchingWhenTheHostEnds)
{
    const auto watch = m_run.Tool({"watch"});
    ASSERT_TRUE(watch->WaitForOutput("watching")) << watch->Output();
    Finish();
    EXPECT_EQ(watch->Status(), 0) << watch->Output();
    EXPECT_TRUE(watch->Says(R"("token":"***")")) << watch->Output();
}

TEST(AHostWithoutScript, ServesUntilItIsInterrupted)
{
    const CHostRun run;
    setenv("FAKE_COMPONENT_WAY", "", 1);
    const auto host = run.Tool({"host", "--spawn", FAKE_COMPONENT});
    ASSERT_TRUE(host->WaitForOutput("serving")) << host->Output();
    EXPECT_TRUE(WaitUntil(
        [&] {
            return run.Tool({"call", "--url", "/fake/echo"})->Status() == 0;
        },
        std::chrono::seconds(30)));
    host->Process().Signal(SIGTERM);
    EXPECT_EQ(host->Status(), 0) << host->Output();
    EXPECT_TRUE(host->Says("end the component")) << host->Output();
}

TEST(ClientsAlone, SayThatThereIsNoFramework)
{
    const CHostRun run;
    for (const char* command : {"call", "notify"}) {
        const auto client = run.Tool({command, "--url", "/u"});
        EXPECT_EQ(client->Status(), 1);
        EXPECT_TRUE(client->Says("there is no such server (error 1003)")) << client->Output();
    }
    EXPECT_EQ(run.Tool({"watch"})->Status(), 1);
}

TEST(ClientsAlone, LearnThatTheComponentIsNotThere)
{
    CHostRun run;
    run.StartAlone(R"({"sleep_ms":3600000})");
    ASSERT_TRUE(run.Host().WaitForOutput("listening"));
    const auto call = run.Tool({"call", "--url", "/fake/echo"});
    EXPECT_EQ(call->Status(), 1);
    EXPECT_TRUE(call->Says("status 503 and error 1005")) << call->Output();
}

} // namespace
