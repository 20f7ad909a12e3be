#include "RawPeer.h"

#include <optional>

#include <csignal>

#include <pthread.h>
#include <sys/socket.h>

using namespace std::chrono_literals;

namespace {

using lpc::Kind;

class ClientFaults : public LpcTest
{
protected:
    /// Reads and drops until the client is gone.
    static void ReadToTheEnd(RawPeer& peer)
    {
        while (peer.Receive()) {
        }
    }

    /// Notifications of a megabyte each.
    static void SendNumbered(RawPeer& peer, int from, int to)
    {
        for (int n = from; n < to; ++n)
            EXPECT_TRUE(
                peer.Send(Kind::Notification, 0, {{"n", std::to_string(n)}}, std::string(1000000, 'n')));
    }

    /// Answers every request with its own body.
    static void Echo(RawPeer& peer)
    {
        while (const auto message = peer.Receive())
            if (message->kind == Kind::Request)
                peer.Send(Kind::Answer, message->id, message->headers, message->body);
    }
};

TEST_F(ClientFaults, MalformedBytesOfTheServerAreALossAndNoHarmToTheNextConnection)
{
    std::vector<FaultRow> rows = FaultRows();
    rows.push_back(
        {WireBytes(Kind::HelloAnswer, 0, lpc::HelloAnswerHeaders(), ""), "kind of frame not expected"});
    rows.push_back({WireBytes(Kind::Refusal, 0, {}, ""), "kind of frame not expected"});
    rows.push_back({WireBytes(Kind::Request, 1, {}, "cut off").substr(0, 27), nullptr});
    const std::string line = "LPC: the server sent what is not understood: ";
    ASSERT_TRUE(lpcclient::Init("client", false));
    CollectNumbers();
    std::vector<std::string> expected;
    for (const FaultRow& row : rows) {
        SCOPED_TRACE(row.line ? row.line : "cut off");
        const std::size_t lines = log.Count(line);
        RawServer server([&](RawPeer& peer) {
            peer.Receive();
            peer.Send(Kind::Notification, 0, {{"n", "before"}}, "");
            peer.Send(row.bytes);
            if (row.line)
                ReadToTheEnd(peer);
        });
        ASSERT_TRUE(lpcclient::ConnectToServer(kServerName));
        EXPECT_EQ(lpc::kConnectionLost, SendExError({}, 0));
        expected.insert(expected.end(), {"before", "clientDisconnected"});
        EXPECT_EQ(expected, received.WaitFor(expected.size()));
        EXPECT_EQ(lines + (row.line ? 1 : 0), log.Count(line));
        EXPECT_TRUE(!row.line || log.Count(line + row.line) > 0);
        ASSERT_TRUE(lpcclient::DisconnectToServer());
    }
    EXPECT_TRUE(lpcclient::Uninit());
}

TEST_F(ClientFaults, AServerOfAnotherUserIsRefused)
{
    std::string why;
    const std::string path = lpc::SocketPath(kServerName, why);
    lpc::CLocalListener strange;
    {
        const AnotherUser user;
        if (!user.Is())
            return;
        ASSERT_TRUE(strange.Listen(path, why)) << why;
    }
    ASSERT_TRUE(lpcclient::Init("client", false));
    EXPECT_FALSE(lpcclient::ConnectToServer(kServerName));
    EXPECT_EQ(lpc::kCannotConnect, lpcclient::GetLPCLastError());
    EXPECT_TRUE(log.Has("LPC: no connection to [lpc-test-server]: the server belongs to another user."));
    strange.Close();
    StartedServer server;
    EXPECT_TRUE(lpcclient::ConnectToServer(kServerName));
    EXPECT_TRUE(lpcclient::Uninit());
}

TEST_F(ClientFaults, AHelloThatIsNotAnsweredWellIsRefused)
{
    const std::tuple<const char*, std::string, int> rows[] = {
        {"garbage", std::string(30, 'x'), lpc::kRefused},
        {"another version", WireBytes(Kind::HelloAnswer, 0, {{"version", "2"}}, ""), lpc::kRefused},
        {"something else", WireBytes(Kind::Notification, 0, {}, ""), lpc::kRefused},
        {"a refusal", WireBytes(Kind::Refusal, 0, lpc::RefusalHeaders(lpc::kTryAgain), ""), lpc::kTryAgain},
        {"the end", "", lpc::kConnectionLost},
    };
    ASSERT_TRUE(lpcclient::Init("client", false));
    for (const auto& [what, bytes, error] : rows) {
        SCOPED_TRACE(what);
        RawServer server([&](RawPeer& peer) { peer.Send(bytes); }, false);
        EXPECT_FALSE(lpcclient::ConnectToServer(kServerName));
        EXPECT_EQ(error, lpcclient::GetLPCLastError());
    }
    EXPECT_TRUE(lpcclient::Uninit());
}

TEST_F(ClientFaults, AnAnswerNobodyAskedForIsDroppedWithOneLine)
{
    RawServer server([](RawPeer& peer) {
        for (int i = 0; i < 10; ++i)
            peer.Send(Kind::Answer, 4711, {}, "unasked");
        Echo(peer);
    });
    const Client client;
    EXPECT_EQ(0, SendExError({{}, "asked"}, 10000));
    EXPECT_EQ(1U, log.Count("never sent"));
}

/// What was begun is finished in good order, whoever gave up waiting for it.
TEST_F(ClientFaults, AServerThatStopsReadingGetsAWholeStreamOnceItReadsAgain)
{
    Once reads;
    std::vector<std::size_t> requests;
    std::size_t notifications = 0;
    std::size_t sent = 0;
    {
        RawServer server([&](RawPeer& peer) {
            reads.Wait();
            while (const auto message = peer.Receive()) {
                if (message->kind == Kind::Request)
                    requests.push_back(message->body.size());
                else
                    ++notifications;
                if (message->body == "last")
                    return;
            }
        });
        const Client client;
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(lpc::kTimedOut, SendExError({{}, std::string(4000000, 'a')}, 100));
        EXPECT_LT(std::chrono::steady_clock::now() - start, kLimit);

        const lpc::Message notification{{}, std::string(100000, 'n')};
        while (sent < 1000 && lpcclient::Notify(notification))
            ++sent;
        EXPECT_EQ(lpc::kTryAgain, lpcclient::GetLPCLastError());
        EXPECT_EQ(lpc::kTryAgain, SendExError({{}, std::string(4000000, 'b')}, 1000));
        auto waiting = SendExLater({{}, "last"}, 0);
        reads.Happens();
        EXPECT_EQ(lpc::kConnectionLost, InTime(waiting));
        EXPECT_GT(sent, 100U);
        EXPECT_LT(sent, 200U);
    }
    EXPECT_EQ((std::vector<std::size_t>{4000000, 4}), requests);
    EXPECT_EQ(sent, notifications);
}

TEST_F(ClientFaults, TwoEndsThatWriteAtOnceDoNotWaitForEachOther)
{
    const std::string large(8000000, 'x');
    RawServer server([&](RawPeer& peer) {
        EXPECT_TRUE(
            peer.Send(Kind::Notification, 0, {{"n", "0"}}, large)); // reads nothing before all is written
        Echo(peer);
    });
    const Client client;
    CollectNumbers();
    EXPECT_EQ(0, SendExError({{}, large}, 20000));
    EXPECT_EQ(Numbers(1), received.WaitFor(1));
}

TEST_F(ClientFaults, AFullReceiveQueueHoldsTheServerBackUntilTheReceiverTakes)
{
    constexpr int kCount = 40;
    RawServer server([&](RawPeer& peer) {
        SendNumbered(peer, 0, kCount);
        Echo(peer);
    });
    const Client client;
    EXPECT_EQ(lpc::kTimedOut, SendExError({}, 200)); // its answer lies behind what does not fit
    auto waiting = SendExLater({}, 20000);
    CollectNumbers();
    EXPECT_EQ(Numbers(kCount), received.WaitFor(kCount));
    EXPECT_EQ(0, InTime(waiting));
}

/// What the receiver keeps for later counts as what it has not taken. A call still gets its answer.
TEST_F(ClientFaults, CopiesThatTheReceiverKeepsHoldTheServerBack)
{
    constexpr int kFirst = 20;
    constexpr int kAll = 60;
    RawServer server([&](RawPeer& peer) {
        SendNumbered(peer, 0, kFirst);
        const auto request = peer.Receive();
        ASSERT_TRUE(request);
        peer.Send(Kind::Answer, request->id, {}, "");
        SendNumbered(peer, kFirst, kAll);
        Echo(peer);
    });
    lpcclient::LPCCallBackData survivor;
    {
        std::mutex mutex;
        std::optional<std::vector<lpcclient::LPCCallBackData>> kept{std::in_place};
        const Client client;
        ASSERT_TRUE(lpcclient::SetInvokeCallBack(
            [&](const lpcclient::LPCCallBackData& data, void*) {
                {
                    std::lock_guard<std::mutex> lock(mutex);
                    if (kept)
                        kept->push_back(data);
                }
                received.Add(data.Header("n"));
                return true;
            },
            nullptr));
        EXPECT_EQ(0, SendExError({}, 20000));            // behind 20 MB, which are kept
        EXPECT_EQ(lpc::kTimedOut, SendExError({}, 200)); // behind 60 MB
        EXPECT_LT(received.Size(), 36U);
        auto waiting = SendExLater({}, 20000);
        std::async(std::launch::async, [&] {
            std::lock_guard<std::mutex> lock(mutex);
            survivor = kept->back();
            kept.reset();
        }).wait();
        EXPECT_EQ(Numbers(kAll), received.WaitFor(kAll));
        EXPECT_EQ(0, InTime(waiting));
    }
    survivor = {}; // when there is no session any more
}

/// Whoever found the queue full, the library's thread must not lie down beside it.
TEST_F(ClientFaults, ACallFromWithinTheReceiverDoesNotWaitForRoomThatOnlyTheReceiverMakes)
{
    for (const bool isFullBefore : {false, true}) {
        SCOPED_TRACE(isFullBefore);
        RawServer server([](RawPeer& peer) {
            SendNumbered(peer, 0, 40);
            Echo(peer);
        });
        Collected<int> errors;
        const Client client;
        if (isFullBefore) { // reading has stopped
            EXPECT_EQ(lpc::kTimedOut, SendExError({}, 200));
        }
        Receive([&](const lpc::CallBackData&) {
            if (errors.Size() == 0)
                errors.Add(SendExError({}, isFullBefore ? 10000 : 0));
        });
        EXPECT_EQ(std::vector<int>{lpc::kTryAgain}, errors.WaitFor(1));
        EXPECT_EQ(0, SendExError({}, 20000));
    }
}

TEST_F(ClientFaults, TheEndOfTheServerIsSeenThoughTheReceiveQueueIsFull)
{
    constexpr int kFull = 34;
    RawServer server([](RawPeer& peer) {
        SendNumbered(peer, 0, kFull);
        peer.Send(Kind::Notification, 0, {{"n", std::to_string(kFull)}}, "what the socket still holds");
        peer.Receive();
    });
    const Client client;
    EXPECT_EQ(lpc::kConnectionLost, SendExError({}, 10000));
    CollectNumbers();
    std::vector<std::string> expected = Numbers(kFull + 1);
    expected.emplace_back("clientDisconnected");
    EXPECT_EQ(expected, received.WaitFor(expected.size()));
}

TEST_F(ClientFaults, WhatWasSentBeforeDisconnectingArrivesWhole)
{
    const std::string large(20000000, 'x');
    Collected<std::size_t> arrived;
    RawServer server([&](RawPeer& peer) {
        while (const auto message = peer.Receive())
            arrived.Add(message->body.size());
    });
    const Client client;
    ASSERT_TRUE(lpcclient::Notify({{}, large}));
    ASSERT_TRUE(lpcclient::DisconnectToServer());
    EXPECT_EQ(std::vector<std::size_t>{large.size()}, arrived.WaitFor(1));
}

TEST_F(ClientFaults, DisconnectingDoesNotWaitLongForAServerThatReadsNothing)
{
    Once disconnected;
    RawServer server([&](RawPeer&) { disconnected.Wait(); });
    const Client client;
    ASSERT_TRUE(lpcclient::Notify({{}, std::string(20000000, 'x')}));
    auto waiting = SendExLater({}, 0);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(lpcclient::DisconnectToServer());
    EXPECT_LT(std::chrono::steady_clock::now() - start, kLimit / 2);
    disconnected.Happens();
    EXPECT_NE(0, InTime(waiting));
}

/// A signal that some library of the program handles is no time limit.
TEST(LocalSocket, SignalsDoNotEndAWait)
{
    struct sigaction handler
    {};
    handler.sa_handler = [](int) {};
    sigaction(SIGUSR1, &handler, nullptr);
    int ends[2];
    ASSERT_EQ(0, socketpair(AF_UNIX, SOCK_STREAM, 0, ends));
    const lpc::CLocalSocket silent(ends[0]);
    const lpc::CLocalSocket other(ends[1]);
    std::atomic<bool> over{false};
    auto signals = std::async(std::launch::async, [&over, waiting = pthread_self()] {
        while (!over) {
            pthread_kill(waiting, SIGUSR1);
            std::this_thread::yield();
        }
    });
    const auto deadline = std::chrono::steady_clock::now() + 100ms;
    EXPECT_EQ(0U, silent.Wait(lpc::kReadable, deadline));
    EXPECT_GE(std::chrono::steady_clock::now(), deadline);
    over = true;
}

/// While a caller reads, the library's thread does not watch the socket; it has to take it up again.
TEST_F(ClientFaults, NotificationsArriveAlsoAfterARunOfCalls)
{
    StartedServer server;
    const Client client;
    CollectNumbers();
    for (int round = 0; round < 20; ++round) {
        for (int i = 0; i < 100; ++i)
            ASSERT_EQ(0, SendExError({}, 10000));
        ASSERT_EQ(lpc::kNoError, server.server.Notify(server.Client(), Numbered(round)));
        ASSERT_EQ(Numbers(round + 1), received.WaitFor(static_cast<std::size_t>(round + 1)));
    }
}

} // namespace
