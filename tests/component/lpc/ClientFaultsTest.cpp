#include "RawPeer.h"

#include <algorithm>

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

    /// Answers every request with its own body.
    static void Echo(RawPeer& peer)
    {
        while (const auto message = peer.Receive())
            if (message->kind == Kind::Request)
                peer.Send(Kind::Answer, message->id, message->headers, message->body);
    }
};

TEST_F(ClientFaults, MalformedBytesOfTheServerAreALoss)
{
    RawServer server([](RawPeer& peer) {
        peer.Receive();
        peer.Send(Kind::Notification, 0, {{"n", "0"}}, "");
        peer.Send(std::string(100, 'x'));
        ReadToTheEnd(peer);
    });
    const Client client;
    CollectNumbers();
    EXPECT_EQ(lpc::kConnectionLost, SendExError({}, 0));
    EXPECT_EQ((std::vector<std::string>{"0", "clientDisconnected"}), received.WaitFor(2));
    EXPECT_TRUE(log.Has("LPC: the server sent what is not understood: bad magic."));
}

TEST_F(ClientFaults, AHelloThatIsNotAnsweredWellIsRefused)
{
    struct Row
    {
        const char* what;
        std::string bytes;
        int error;
    };
    const Row rows[] = {
        {"garbage", std::string(30, 'x'), lpc::kRefused},
        {"another version", WireBytes(Kind::HelloAnswer, 0, {{"version", "2"}}, ""), lpc::kRefused},
        {"something else", WireBytes(Kind::Notification, 0, {}, ""), lpc::kRefused},
        {"a refusal", WireBytes(Kind::Refusal, 0, lpc::RefusalHeaders(lpc::kTryAgain), ""), lpc::kTryAgain},
        {"the end", "", lpc::kConnectionLost},
    };
    ASSERT_TRUE(lpcclient::Init("client", false));
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        RawServer server([&](RawPeer& peer) { peer.Send(row.bytes); }, false);
        EXPECT_FALSE(lpcclient::ConnectToServer(kServerName));
        EXPECT_EQ(row.error, lpcclient::GetLPCLastError());
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
    const auto warnings = log.Messages(Base::LogLevel::Warn);
    EXPECT_EQ(1, std::count_if(warnings.begin(), warnings.end(), [](const std::string& line) {
                  return line.find("never sent") != std::string::npos;
              }));
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
        auto waiting = std::async(std::launch::async, [] { return SendExError({{}, "last"}, 0); });
        reads.Happens();
        ASSERT_EQ(std::future_status::ready, waiting.wait_for(kLimit));
        EXPECT_EQ(lpc::kConnectionLost, waiting.get());
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
        for (int i = 0; i < kCount; ++i)
            EXPECT_TRUE(
                peer.Send(Kind::Notification, 0, {{"n", std::to_string(i)}}, std::string(1000000, 'n')));
        Echo(peer);
    });
    const Client client;
    EXPECT_EQ(lpc::kTimedOut, SendExError({}, 200)); // its answer lies behind what does not fit
    auto waiting = std::async(std::launch::async, [] { return SendExError({}, 20000); });
    CollectNumbers();
    EXPECT_EQ(Numbers(kCount), received.WaitFor(kCount));
    ASSERT_EQ(std::future_status::ready, waiting.wait_for(kLimit));
    EXPECT_EQ(0, waiting.get());
}

TEST_F(ClientFaults, ACallFromWithinTheReceiverDoesNotWaitForRoomThatOnlyTheReceiverMakes)
{
    RawServer server([&](RawPeer& peer) {
        for (int i = 0; i < 40; ++i)
            peer.Send(Kind::Notification, 0, {}, std::string(1000000, 'n'));
        Echo(peer);
    });
    Collected<int> errors;
    const Client client;
    ASSERT_TRUE(lpcclient::SetInvokeCallBack(
        [&](const lpcclient::LPCCallBackData&, void*) {
            if (errors.Size() == 0)
                errors.Add(SendExError({}, 0));
            return true;
        },
        nullptr));
    EXPECT_EQ(std::vector<int>{lpc::kTryAgain}, errors.WaitFor(1));
    EXPECT_EQ(0, SendExError({}, 20000));
}

/// Whoever found the queue full, the library's thread must not lie down beside it.
TEST_F(ClientFaults, ACallFromWithinTheReceiverFailsAlsoWhenReadingHadStoppedBefore)
{
    RawServer server([](RawPeer& peer) {
        for (int i = 0; i < 40; ++i)
            peer.Send(Kind::Notification, 0, {}, std::string(1000000, 'n'));
        Echo(peer);
    });
    Collected<int> errors;
    const Client client;
    EXPECT_EQ(lpc::kTimedOut, SendExError({}, 200)); // has read until the queue was full
    ASSERT_TRUE(lpcclient::SetInvokeCallBack(
        [&](const lpcclient::LPCCallBackData&, void*) {
            if (errors.Size() == 0)
                errors.Add(SendExError({}, 10000));
            return true;
        },
        nullptr));
    EXPECT_EQ(std::vector<int>{lpc::kTryAgain}, errors.WaitFor(1));
    EXPECT_EQ(0, SendExError({}, 20000));
}

TEST_F(ClientFaults, TheEndOfTheServerIsSeenThoughTheReceiveQueueIsFull)
{
    constexpr int kFull = 17;
    RawServer server([](RawPeer& peer) {
        for (int i = 0; i < kFull; ++i)
            peer.Send(Kind::Notification, 0, {{"n", std::to_string(i)}}, std::string(1000000, 'n'));
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
    auto waiting = std::async(std::launch::async, [] { return SendExError({}, 0); });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(lpcclient::DisconnectToServer());
    EXPECT_LT(std::chrono::steady_clock::now() - start, kLimit / 2);
    disconnected.Happens();
    ASSERT_EQ(std::future_status::ready, waiting.wait_for(kLimit));
    EXPECT_NE(0, waiting.get());
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
    EchoServer server;
    ASSERT_EQ(lpc::kNoError, server.Start());
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
