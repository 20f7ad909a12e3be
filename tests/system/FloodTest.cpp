#include "ChildProcess/ChildProcess.h"
#include "LPC_Wire/WellKnownNames.h"
#include "lpc/host/Host.h"
#include "support/WaitUntil.h"
#include "system/ComponentRun.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

using lpctool::CComponentInbox;
using testing::AnyOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

constexpr std::chrono::seconds kPatience{60};
constexpr int kMessages = 50000;
/// How much more memory the flood may take: the channel's queues, and the trees of what is being read.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr long kMemoryKiB = 2 * 1024 * 1024; // the sanitizers' own bookkeeping counts too
#else
constexpr long kMemoryKiB = 128 * 1024;
#endif
constexpr std::uintmax_t kLogBytes = 512 * 1024;

lpc::Message Method(const std::string& method, const std::string& body)
{
    return {{{"method", method}}, body};
}

lpc::Message WithData(const std::string& method, const std::string& data)
{
    return Method(method, R"({"method":")" + method + R"(","data":)" + data + "}");
}

std::string Deep()
{
    return std::string(10000, '[');
}

/// One of each way into the component, with what may be wrong there.
std::vector<lpc::Message> Kinds()
{
    const lpc::HeaderMap websocket = {{"protocol", "websocket"}};
    const auto http = [](const std::string& url) {
        return lpc::HeaderMap{{"protocol", "http"}, {"url", url}};
    };
    return {WithData("frameworkMove", R"({"x":1,"y":2})"),
            WithData("getWndHandle", R"({"type":"MainView"})"), // good, but nobody waits for the answer
            Method("getWndHandle", "no JSON, password=hunter2"),
            Method("getWndHandle", Deep()),
            Method("showWnd", "{\"method\":\"showWnd\",\"data\":{\"type\":\"\xC0\xAF\"}}"),
            Method("showWnd", ""),
            WithData("showWnd", R"({"kind":"MainView"})"),
            WithData("showWnd", R"({"type":")" + std::string(3000, 'w') + R"("})"),
            Method("getWndHandle", R"({"method":"getWndHandle"})"),
            WithData("notifyRegisterAlarm", "{}"),
            WithData("tabSwitch", "{}"),
            WithData("nobodyKnowsThis", "{}"),
            {websocket,
             R"({"guid":"1","type":"nobodyWantsThis","data":{"text":")" + std::string(2000, 't') + R"("}})"},
            {websocket, R"({"guid":")" + std::string(2000, 'g') + R"(","type":"deviceAdd","data":{}})"},
            {websocket, Deep()},
            {websocket, "{\"type\":\"\xFF\"}"},
            {websocket, ""},
            {http("/vantor/v1/internal/video/locaFile"), "[1,"},
            {http("/vantor/v1/internal/video/BroadCastOperator"), "[1,"},
            {http("/" + std::string(2000, 'u')), "{}"}};
}

/// Ten million values in one body that is valid: read as a tree it would take the better part of a gigabyte.
lpc::Message ManyValues()
{
    std::string values = "[0";
    for (int i = 0; i < 10000000; ++i)
        values += ",0";
    return {{{"protocol", "websocket"}}, R"({"type":"nobodyWantsThis","data":)" + values + "]}"};
}

class AComponent : public testing::Test
{
protected:
    AComponent() : host(lpc::kVideoComponentName)
    {
        EXPECT_EQ(host.Start(lpc::kFrameworkServerName), lpc::kNoError);
        std::string error;
        EXPECT_TRUE(
            child.Start({run.Program(), "1", "2", "BlackRedSkin 1 0 0 0 0"}, run.Path() + "output", error))
            << error;
        EXPECT_EQ(host.Inbox().WaitForMessage(CComponentInbox::Kind::Notification, End(),
                                              [](const cJSON& message) {
                                                  return lpctool::ToText(message).find("initFinish") !=
                                                         std::string::npos;
                                              }),
                  CComponentInbox::Outcome::Found)
            << run.Output();
    }

    static std::chrono::steady_clock::time_point End()
    {
        return std::chrono::steady_clock::now() + kPatience;
    }

    /// Repeats the call while the channel is full; its last result.
    template<typename Call>
    static int WhileFull(Call call)
    {
        int error = lpc::kTryAgain;
        WaitUntil([&] { return (error = call()) != lpc::kTryAgain; }, kPatience);
        return error;
    }

    void Send(const lpc::Message& message)
    {
        ASSERT_EQ(WhileFull([&] { return host.Notify(host.Inbox().Client(), message); }), lpc::kNoError);
    }

    /// The most memory that the component has held so far.
    long PeakKiB() const
    {
        std::ifstream lines("/proc/" + std::to_string(child.Id()) + "/status");
        for (std::string line; std::getline(lines, line);)
            if (line.rfind("VmHWM:", 0) == 0)
                return std::stol(line.substr(6));
        return 0;
    }

    std::uintmax_t LogBytes() const { return std::filesystem::file_size(run.DataPath() + "log/Video.C.log"); }

    void AsksForAWindow()
    {
        lpc::Message answer;
        const lpc::Message request = WithData("getWndHandle", R"({"type":"MainView"})");
        ASSERT_EQ(WhileFull([&] { return host.Invoke(host.Inbox().Client(), request, 60000, answer); }),
                  lpc::kNoError);
        EXPECT_THAT(answer.body, HasSubstr("wndId"));
    }

    ComponentRun run;
    lpctool::CHost host;
    CChildProcess child;
};

TEST_F(AComponent, BearsAFloodOfMovesAndBadMessages)
{
    const std::vector<lpc::Message> kinds = Kinds();
    for (const lpc::Message& kind : kinds)
        Send(kind);
    AsksForAWindow();
    const auto lines = run.LogMessages();
    for (const char* beginning :
         {"Failed to cJSON_Parse( [no JSON, password=***", "Failed to cJSON_Parse( [[[[[[",
          "Failed to cJSON_GetObjectItem([data]).", "Failed to read message [showWnd]. Key: [type].",
          "There is no window [www", "[/vantor/v1/internal/video/BroadCastOperator] is not served."})
        EXPECT_THAT(lines, Contains(StartsWith(beginning)));

    const long memory = PeakKiB();
    const auto log = LogBytes();
    for (int i = 0; i < kMessages; ++i)
        Send(kinds[static_cast<std::size_t>(i) % kinds.size()]);
    Send(ManyValues());
    AsksForAWindow();
    EXPECT_GT(memory, 0);
    EXPECT_LT(PeakKiB() - memory, kMemoryKiB);
    EXPECT_LT(LogBytes() - log, kLogBytes);
    RecordProperty("moreMemoryKiB", static_cast<int>(PeakKiB() - memory));
    RecordProperty("moreLogBytes", static_cast<int>(LogBytes() - log));

    EXPECT_TRUE(WaitUntil([&] {
        Send(Method("showWnd", "{"));
        const auto now = run.LogMessages();
        return std::any_of(now.begin(), now.end(), [](const std::string& line) {
            return line.rfind("Failed to cJSON_Parse( [", 0) == 0 && line.find(" [skipped-") != line.npos;
        });
    })) << "nothing tells how many lines were left out";
    EXPECT_THAT(run.LogMessages(), Not(Contains(AnyOf(HasSubstr("hunter2"), HasSubstr("nobodyKnowsThis")))));

    Send(Method("componentUninit", ""));
    EXPECT_EQ(child.WaitForExit(20000), 0);
}

} // namespace
