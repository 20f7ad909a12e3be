#include "LpcWorld.h"

#include "LPC_Wire/LocalSocket.h"
#include "LPC_Wire/SocketName.h"

#include <filesystem>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Loss : public LpcTest
{
protected:
    /// A server that lets requests wait, and tells of each.
    void StartSilentServer()
    {
        server.onData = [this](lpcserver::ClientId, const lpc::CallBackData& data) {
            requests.Add(data.requestId);
        };
        ASSERT_EQ(lpc::kNoError, server.Start());
    }

    std::vector<std::future<int>> WaitingCallers(int count)
    {
        std::vector<std::future<int>> callers;
        for (int i = 0; i < count; ++i)
            callers.push_back(SendExLater({}, 0));
        requests.WaitFor(static_cast<std::size_t>(count));
        return callers;
    }

    static void ExpectAll(int error, std::vector<std::future<int>>& callers)
    {
        for (auto& caller : callers)
            EXPECT_EQ(error, InTime(caller));
    }

    Collected<lpc::RequestId> requests;
    EchoServer server;
};

TEST_F(Loss, WaitingCallersFailAtOnceAndTheReceiverHearsOfItLast)
{
    StartSilentServer();
    Collected<int> asynchronous;
    const Client client;
    CollectNumbers();
    auto callers = WaitingCallers(4);
    EXPECT_NE(0U, lpcclient::Send({}, [&](int error, const lpc::Message&) { asynchronous.Add(error); }));
    requests.WaitFor(5);
    for (int i = 0; i < 3; ++i)
        ASSERT_EQ(lpc::kNoError, server.server.Notify(server.Client(), Numbered(i)));
    server.server.Stop();
    ExpectAll(lpc::kConnectionLost, callers);
    EXPECT_EQ(std::vector<int>{lpc::kConnectionLost}, asynchronous.WaitFor(1));
    EXPECT_EQ((std::vector<std::string>{"0", "1", "2", "clientDisconnected"}), received.WaitFor(4));
    EXPECT_FALSE(lpcclient::Notify({}));
    EXPECT_EQ(lpc::kNotConnected, lpcclient::GetLPCLastError());
}

TEST_F(Loss, BeforeTheReceiverIsSetItIsKeptForIt)
{
    StartSilentServer();
    const Client client;
    ASSERT_EQ(lpc::kNoError, server.server.Notify(server.Client(), Numbered(0)));
    auto callers = WaitingCallers(1);
    server.server.Stop();
    ExpectAll(lpc::kConnectionLost, callers); // so the loss is known
    CollectNumbers();
    EXPECT_EQ((std::vector<std::string>{"0", "clientDisconnected"}), received.WaitFor(2));
}

TEST_F(Loss, DisconnectingFailsWaitingCallersAndTellsTheReceiverNothing)
{
    StartSilentServer();
    const Client client;
    CollectNumbers();
    auto callers = WaitingCallers(4);
    ASSERT_TRUE(lpcclient::DisconnectToServer());
    ExpectAll(lpc::kConnectionLost, callers);
    ASSERT_TRUE(lpcclient::DisconnectToServer());
    ASSERT_TRUE(lpcclient::Uninit());
    EXPECT_FALSE(lpcclient::Uninit());
    EXPECT_EQ(lpc::kNotInitialised, lpcclient::GetLPCLastError());
    EXPECT_EQ(0U, received.Size());
}

TEST_F(Loss, EveryEndMayBeCalledTwiceFromWithinTheCallback)
{
    StartSilentServer();
    Once done;
    const Client client;
    Receive([&](const lpc::CallBackData&) {
        EXPECT_TRUE(lpcclient::SetInvokeCallBack({}, nullptr));
        EXPECT_TRUE(lpcclient::SetInvokeCallBack({}, nullptr));
        EXPECT_TRUE(lpcclient::DisconnectToServer());
        EXPECT_TRUE(lpcclient::DisconnectToServer());
        EXPECT_TRUE(lpcclient::Uninit());
        EXPECT_FALSE(lpcclient::Uninit());
        done.Happens();
    });
    ASSERT_EQ(lpc::kNoError, server.server.Notify(server.Client(), {}));
    ASSERT_TRUE(done.Wait());
    EXPECT_EQ(1U, server.disconnected.WaitFor(1).size());
    const Client again; // and a new life is possible
    EXPECT_EQ(2U, server.connected.WaitFor(2).size());
}

TEST_F(Loss, ClearingTheReceiverWaitsForTheCallUnderWay)
{
    StartSilentServer();
    Once entered;
    std::promise<void> go;
    std::atomic<bool> left{false};
    const Client client;
    Receive([&](const lpc::CallBackData&) {
        entered.Happens();
        go.get_future().wait_for(kLimit);
        left = true;
    });
    ASSERT_EQ(lpc::kNoError, server.server.Notify(server.Client(), {}));
    ASSERT_TRUE(entered.Wait());
    auto clearing =
        std::async(std::launch::async, [&] { return lpcclient::SetInvokeCallBack({}, nullptr) && left; });
    go.set_value();
    ASSERT_EQ(std::future_status::ready, clearing.wait_for(kLimit));
    EXPECT_TRUE(clearing.get());
}

TEST_F(Loss, TheServerMayBeStoppedFromWithinAnEventAndStartedAgain)
{
    server.onData = [this](lpcserver::ClientId, const lpc::CallBackData&) { server.server.Stop(); };
    ASSERT_EQ(lpc::kNoError, server.Start());
    const Client client;
    EXPECT_EQ(lpc::kConnectionLost, SendExError({}, 20000));
    server.server.Stop();
    ASSERT_EQ(lpc::kNoError, server.Start());
    ASSERT_TRUE(lpcclient::ConnectToServer(kServerName));
    EXPECT_EQ(2U, server.connected.WaitFor(2).size());
}

TEST_F(Loss, NothingWorksWithoutInitOrConnection)
{
    EXPECT_FALSE(lpcclient::ConnectToServer(kServerName));
    EXPECT_EQ(lpc::kNotInitialised, lpcclient::GetLPCLastError());
    EXPECT_FALSE(lpcclient::Init("", false));
    EXPECT_EQ(lpc::kInvalidArgument, lpcclient::GetLPCLastError());
    ASSERT_TRUE(lpcclient::Init("client", false));
    EXPECT_FALSE(lpcclient::ConnectToServer(kServerName));
    EXPECT_EQ(lpc::kCannotConnect, lpcclient::GetLPCLastError());
    EXPECT_EQ(lpc::kNotConnected, SendExError({}, 1000));
    EXPECT_TRUE(lpcclient::Uninit());
}

TEST_F(Loss, ALivingServerKeepsItsNameADeadOnesSocketIsReplaced)
{
    ASSERT_EQ(lpc::kNoError, server.Start());
    EchoServer second;
    EXPECT_EQ(lpc::kCannotListen, second.Start());
    const Client client; // the first one still listens

    std::string why;
    const std::string path = lpc::SocketPath("other", why);
    const pid_t child = fork();
    if (child == 0) {
        lpc::CLocalListener dying;
        _exit(dying.Listen(path, why) ? 0 : 1); // leaves its socket behind
    }
    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    ASSERT_EQ(0, WEXITSTATUS(status));
    ASSERT_TRUE(std::filesystem::exists(path));
    EchoServer heir;
    EXPECT_EQ(lpc::kNoError, heir.server.Start("other"));
}

/// Every descriptor that the process may still have, until the object goes.
class DescriptorFamine
{
public:
    DescriptorFamine()
    {
        getrlimit(RLIMIT_NOFILE, &m_limit);
        rlimit low = m_limit;
        low.rlim_cur = 64;
        setrlimit(RLIMIT_NOFILE, &low);
        for (int taken = dup(0); taken >= 0; taken = dup(0))
            m_taken.push_back(taken);
    }
    ~DescriptorFamine()
    {
        for (const int taken : m_taken)
            close(taken);
        setrlimit(RLIMIT_NOFILE, &m_limit);
    }
    DescriptorFamine(const DescriptorFamine&) = delete;
    DescriptorFamine& operator=(const DescriptorFamine&) = delete;

private:
    rlimit m_limit{};
    std::vector<int> m_taken;
};

TEST_F(Loss, WithoutDescriptorsEveryStartFailsWithTheReason)
{
    ASSERT_TRUE(lpcclient::Init("client", false));
    {
        const DescriptorFamine famine;
        EXPECT_FALSE(lpcclient::ConnectToServer(kServerName));
        EXPECT_EQ(lpc::kCannotConnect, lpcclient::GetLPCLastError());
        EchoServer starved;
        EXPECT_EQ(lpc::kCannotListen, starved.Start());
    }
    EXPECT_TRUE(log.Has("LPC: no connection to [lpc-test-server]: socket: Too many open files."));
    EXPECT_TRUE(log.Has("LPC: cannot listen for [lpc-test-server]: no poll handle: Too many open files."));
    ASSERT_TRUE(lpcclient::Uninit());
    {
        const DescriptorFamine famine;
        EXPECT_FALSE(lpcclient::Init("client", false));
        EXPECT_EQ(lpc::kNotInitialised, lpcclient::GetLPCLastError());
    }
    ASSERT_EQ(lpc::kNoError, server.Start());
    const Client client;
}

} // namespace
