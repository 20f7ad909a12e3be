#include "Base/ThreadPool.h"
#include "CommonMethod/HTTPOverLPCClient.h"
#include "CommunicationLayer/CommunicationLayer.h"
#include "LPC_Server/LPC_Server.h"
#include "LPC_Wire/Limits.h"
#include "logical/Communication/LPCClientPackage.h"
#include "logical/Communication/LPCNames.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <fstream>
#include <mutex>
#include <thread>

using lpcclient::LPCCallBackData;
using testing::AnyOf;
using testing::Contains;

namespace {

constexpr auto kPatience = std::chrono::seconds(20);
/// How much memory one copy of the longest answer may take.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t kCopyBytes = 8 * lpc::kMaxBody; // the sanitizers' own bookkeeping counts too
#else
constexpr std::size_t kCopyBytes = lpc::kMaxBody + lpc::kMaxBody / 2;
#endif

/// A list that threads fill and a test waits for.
class Seen
{
public:
    void Add(const std::string& text)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_texts.push_back(text);
        m_changed.notify_all();
    }

    /// The texts, once there are that many (or the patience is over).
    std::vector<std::string> WaitFor(std::size_t count)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, kPatience, [&] { return m_texts.size() >= count; });
        return m_texts;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::string> m_texts;
};

/// A framework that writes down what arrives and answers requests, except for those to one url.
class Framework : public lpcserver::IServerEvents
{
public:
    Framework() : server(*this) { EXPECT_EQ(server.Start(video::kLPCServerName), lpc::kNoError); }
    ~Framework() override { server.Stop(); }

    void OnClientConnected(lpcserver::ClientId id, const std::string& name) override
    {
        component = id;
        clients.Add(name);
    }
    void OnClientDisconnected(lpcserver::ClientId) override {}

    void OnData(lpcserver::ClientId client, const lpc::CallBackData& data) override
    {
        if (data.requestId == 0) {
            notifications.Add(data.Header("method"));
            return;
        }
        requests.Add(data.Header("url") + " " + data.body);
        if (data.Header("url") == silentUrl)
            return;
        // A component may end its link at any time, also while it is being answered.
        EXPECT_THAT(server.Reply(client, {data.requestId, {{"status", "200"}}, "{}"}),
                    AnyOf(lpc::kNoError, lpc::kNotConnected, lpc::kConnectionLost));
    }

    void Invoke(const lpc::HeaderMap& headers)
    {
        EXPECT_EQ(server.Notify(component, {headers, ""}), lpc::kNoError);
    }

    std::string silentUrl;
    std::atomic<lpcserver::ClientId> component{0};
    Seen clients;
    Seen requests;
    Seen notifications;
    lpcserver::CLPCServer server;
};

/// The component's side: a link on a pool of its own, with the transport installed.
struct Component
{
    Component() : pool("test", 4), link([this](Base::Task task) { return pool.PostTask(std::move(task)); })
    {
        commlayer::CommunicationLayerInit(std::make_shared<comm_method::CHTTPOverLPCClient>());
    }
    ~Component()
    {
        commlayer::CommunicationLayerUnInit();
        pool.Stop();
    }

    Base::CThreadPool pool;
    video::CLPCClientPackage link;
};

class ALink : public testing::Test
{
protected:
    /// True when another thread has written the line, or writes it soon.
    bool WaitForLog(const std::string& message) const
    {
        const auto end = std::chrono::steady_clock::now() + kPatience;
        while (!log.Has(message) && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        return log.Has(message);
    }

    TestDataRoot root;
    CapturedLog log;
};

TEST_F(ALink, RegistersItsUrlsThenForAlarmsAndTellsThatItIsReady)
{
    Framework framework;
    Component component;
    component.link.SetServedUrls({"/b", "/a", "operateDownload"});
    component.link.Init();
    component.link.NotifyMethod("initFinish");

    EXPECT_EQ(framework.clients.WaitFor(1), std::vector<std::string>{video::kLPCClientName});
    const auto requests = framework.requests.WaitFor(2);
    ASSERT_EQ(requests.size(), 2u);
    EXPECT_EQ(requests[0], "/vantor/v1/internal/framework/register "
                           R"({"componentRegisterInfo":{"supportUrlList":["/b","/a","operateDownload"]}})");
    EXPECT_EQ(requests[1].rfind("/vantor/v1/internal/alarmCenter/register", 0), 0u) << requests[1];
    EXPECT_EQ(framework.notifications.WaitFor(1), std::vector<std::string>{"initFinish"});
    EXPECT_TRUE(WaitForLog("Register alarm success."));
    component.link.UnInit();
}

TEST_F(ALink, WithoutAFrameworkLogsWhereItStoppedAndGoesOn)
{
    Component component;
    component.link.Init();
    EXPECT_FALSE(component.link.NotifyMethod("initFinish"));
    EXPECT_THAT(log.Messages(Base::LogLevel::Error),
                Contains("Failed to lpcclient::connectToServer. LastError: [1003]."));
    EXPECT_THAT(log.Messages(Base::LogLevel::Error), Contains("Failed to send. LastError: [1005]."));
    component.link.UnInit();
}

TEST_F(ALink, ThatIsOpenAlreadyIsNotOpenedAgain)
{
    Framework framework;
    Component component;
    component.link.Init();
    framework.requests.WaitFor(2);
    component.link.Init();
    EXPECT_THAT(log.Messages(Base::LogLevel::Error), Contains("Failed to lpcclient::Init. LastError: [" +
                                                              std::to_string(lpc::kInvalidArgument) + "]."));
    EXPECT_TRUE(component.link.NotifyMethod("initFinish"));
    EXPECT_EQ(framework.notifications.WaitFor(1), std::vector<std::string>{"initFinish"});
    EXPECT_EQ(framework.requests.WaitFor(2).size(), 2u);
    component.link.UnInit();
}

TEST_F(ALink, ThatWasNeverOpenedLogsEveryStepOfItsEnd)
{
    Component component;
    component.link.UnInit();
    EXPECT_EQ(log.Messages(Base::LogLevel::Error),
              (std::vector<std::string>{"Failed to lpcclient::SetInvokeCallBack. LastError: [1001].",
                                        "Failed to lpcclient::DisconnectToServer. LastError: [1001].",
                                        "Failed to lpcserver::Uninit. LastError: [1001]."}));
    for (const CapturedLog::Line& line : log.Lines())
        EXPECT_EQ(line.logger, "VideoLogger") << line.message;
}

TEST_F(ALink, KeepsTheOrderOfMethodsWhileARouteIsBusy)
{
    Framework framework;
    Component component;
    Seen served;
    std::promise<void> release;
    std::shared_future<void> released = release.get_future().share();
    component.link.Dispatcher().Http().Bind("/slow", [&, released](const LPCCallBackData&) {
        served.Add("slow");
        released.wait_for(kPatience);
    });
    for (int i = 0; i < 200; ++i)
        component.link.Dispatcher().Methods().Bind(
            "m" + std::to_string(i),
            [&served](const LPCCallBackData& data) { served.Add(data.Header("method")); });
    component.link.Init();
    framework.clients.WaitFor(1);

    framework.Invoke({{"protocol", "http"}, {"url", "/slow"}});
    EXPECT_EQ(served.WaitFor(1), std::vector<std::string>{"slow"});
    std::vector<std::string> wanted{"slow"};
    for (int i = 0; i < 200; ++i) {
        wanted.push_back("m" + std::to_string(i));
        framework.Invoke({{"method", wanted.back()}});
    }
    EXPECT_EQ(served.WaitFor(201), wanted);
    release.set_value();
    component.link.UnInit();
}

TEST_F(ALink, EndsAtOnceWhileTheAlarmRegistrationWaits)
{
    Framework framework;
    framework.silentUrl = "/vantor/v1/internal/alarmCenter/register";
    Component component;
    component.link.Init();
    framework.requests.WaitFor(2);
    const auto start = std::chrono::steady_clock::now();
    component.link.UnInit();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_TRUE(log.Has("Failed to register alarm."));
}

TEST_F(ALink, DeliversTheLossOfItsFramework)
{
    auto framework = std::make_unique<Framework>();
    Component component;
    Seen served;
    component.link.Dispatcher().Methods().Bind("clientDisconnected",
                                               [&](const LPCCallBackData&) { served.Add("lost"); });
    component.link.Init();
    framework.reset();
    EXPECT_EQ(served.WaitFor(1), std::vector<std::string>{"lost"});
    component.link.UnInit();
}

TEST_F(ALink, AnswersUnderTheIdentifierAndHeadersOfTheCall)
{
    Framework framework;
    Component component;
    component.link.Dispatcher().Http().Bind(
        "/echo", [&](const LPCCallBackData& call) { component.link.ReplyBody(call, "[" + call.body + "]"); });
    component.link.Init();
    framework.clients.WaitFor(1);
    lpc::Message answer;
    ASSERT_EQ(framework.server.SendEx(framework.component,
                                      {{{"protocol", "http"}, {"url", "/echo"}, {"x", "y"}}, "body"}, 20000,
                                      answer),
              lpc::kNoError);
    EXPECT_EQ(answer.body, "[body]");
    EXPECT_EQ(answer.headers["x"], "y");
    component.link.UnInit();
}

/// The number of such a line of this process's status, "VmRSS:" or "VmHWM:".
std::size_t StatusBytes(const std::string& name)
{
    std::ifstream lines("/proc/self/status");
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(name, 0) == 0)
            return std::stoul(line.substr(name.size())) * lpc::kKiB;
    return 0;
}

TEST_F(ALink, TellsThatAnAnswerIsTooLongInsteadOfSendingIt)
{
    Framework framework;
    Component component;
    const video::RouteAnswer tooLong{std::string(lpc::kMaxBody + 1, '7')};
    const video::RouteAnswer longest{std::string(lpc::kMaxBody, '7')};
    std::atomic<std::size_t> moreBytes{0};
    component.link.Dispatcher().Http().Bind("/tooLong", [&](const LPCCallBackData& call) {
        const std::size_t before = StatusBytes("VmRSS:");
        EXPECT_TRUE(component.link.Answer(call, tooLong));
        moreBytes = StatusBytes("VmHWM:") - before;
    });
    component.link.Dispatcher().Http().Bind(
        "/longest", [&](const LPCCallBackData& call) { EXPECT_TRUE(component.link.Answer(call, longest)); });
    component.link.Init();
    framework.clients.WaitFor(1);
    const auto ask = [&](const std::string& url) {
        lpc::Message answer;
        EXPECT_EQ(framework.server.SendEx(framework.component, {{{"protocol", "http"}, {"url", url}}, ""},
                                          20000, answer),
                  lpc::kNoError);
        return answer;
    };

    lpc::Message answer = ask("/tooLong");
    EXPECT_EQ(answer.headers["status"], "413");
    EXPECT_EQ(answer.headers["errorCode"], "1008");
    EXPECT_EQ(answer.headers["url"], "/tooLong");
    EXPECT_EQ(answer.body,
              R"({"response":{"result":{"errorCode":1008,"errorModuleCode":0},"message":)"
              R"("The answer is longer than the 67108864 bytes that can be sent. Ask for less."}})");
    EXPECT_LT(moreBytes, kCopyBytes) << "more than one copy of the answer was made";

    answer = ask("/longest");
    EXPECT_EQ(answer.headers.count("status"), 0U) << "the longest body is sent";
    EXPECT_EQ(answer.body.size(), lpc::kMaxBody);
    component.link.UnInit();
}

} // namespace
