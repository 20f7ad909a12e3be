#include "LpcWorld.h"

#include <atomic>
#include <thread>

using namespace std::chrono_literals;

namespace {

class Exchange : public LpcTest
{};

TEST_F(Exchange, AnswersCarryHeadersAndBodiesOfAnyLength)
{
    StartedServer server;
    const Client client;
    for (const std::size_t size : {0U, 1U, 1023U, 65536U, 131072U, 1048576U, 1048577U, 5000000U, 20000000U}) {
        lpc::Message request{{{"url", "/a"}, {"size", std::to_string(size)}, {"empty", ""}},
                             std::string(size, 'x')};
        for (std::size_t i = 0; i < size; i += 997)
            request.body[i] = static_cast<char>(i);
        lpc::Message answer;
        lpc::RequestId id = 0;
        ASSERT_TRUE(lpcclient::SendEx(answer, request, id, 20000))
            << size << " " << lpcclient::GetLPCLastError();
        EXPECT_EQ(request.headers, answer.headers);
        EXPECT_TRUE(request.body == answer.body) << size;
    }
}

TEST_F(Exchange, WhatIsOverALimitIsRefusedAndTheConnectionGoesOn)
{
    StartedServer server;
    const Client client;
    EXPECT_EQ(lpc::kTooLong, SendExError({{{"key", std::string(65536, 'v')}}, ""}, 1000));
    EXPECT_EQ(lpc::kTooLong, SendExError({{}, std::string(64 * 1024 * 1024 + 1, 'b')}, 1000));
    EXPECT_EQ(0, SendExError({{}, "fits"}, 5000));
}

TEST_F(Exchange, TheServerKnowsTheClientsNameAndItsEnd)
{
    StartedServer server;
    const Client client;
    EXPECT_EQ(std::vector<std::string>{"client"}, server.connected.WaitFor(1));
    ASSERT_TRUE(lpcclient::DisconnectToServer());
    EXPECT_EQ(1U, server.disconnected.WaitFor(1).size());
    EXPECT_EQ(lpc::kNotConnected, server.server.Notify(server.lastClient, {}));
}

TEST_F(Exchange, RequestsOfTheServerAreAnsweredByReplyFromAnyThread)
{
    StartedServer server;
    std::vector<std::future<bool>> replies;
    const Client client;
    Receive([&](const lpc::CallBackData& data) {
        replies.push_back(std::async(std::launch::async, [data] {
            return lpcclient::Reply({data.requestId, data.headers, "re: " + data.body});
        }));
    });
    for (int i = 0; i < 20; ++i) {
        lpc::Message answer;
        ASSERT_EQ(lpc::kNoError,
                  server.server.SendEx(server.Client(), Numbered(i, "question"), 5000, answer));
        EXPECT_EQ("re: question", answer.body);
        EXPECT_EQ(std::to_string(i), answer.headers["n"]);
    }
}

/// Notifications in a burst leave together, and still before what is sent after them.
TEST_F(Exchange, BurstsKeepTheirOrderAmongCallsAndLongNotifications)
{
    Collected<std::string> arrived;
    StartedServer server([&](lpcserver::ClientId client, const lpc::CallBackData& data) {
        arrived.Add(data.Header("n"));
        if (data.requestId != 0) {
            EXPECT_EQ(lpc::kNoError, server.server.Reply(client, {data.requestId, {}, {}}));
        }
    });
    {
        const Client client;
        for (int n = 0; n < 5000; ++n) {
            if (n % 97 == 96)
                ASSERT_EQ(0, SendExError(Numbered(n), 10000));
            else
                ASSERT_TRUE(lpcclient::Notify(Numbered(n, std::string(n % 61 == 0 ? 100000 : 10, 'b'))));
        }
        for (int n = 5000; n < 5010; ++n) // and the last ones are not kept back
            ASSERT_TRUE(lpcclient::Notify(Numbered(n)));
        EXPECT_EQ(Numbers(5010), arrived.WaitFor(5010));
        for (int n = 5010; n < 5020; ++n) // nor lost at the end
            ASSERT_TRUE(lpcclient::Notify(Numbered(n)));
    }
    EXPECT_EQ(Numbers(5020), arrived.WaitFor(5020));
}

/// Also when it follows what the receiver itself sent, which may wait for its end.
TEST_F(Exchange, ABurstLeavesAlsoWhileTheReceiverIsBusy)
{
    Collected<std::string> arrived;
    StartedServer server(
        [&](lpcserver::ClientId, const lpc::CallBackData& data) { arrived.Add(data.Header("n")); });
    std::atomic<bool> entered{false};
    Once leave;
    const Client client;
    Receive([&](const lpc::CallBackData&) {
        EXPECT_TRUE(lpcclient::Notify(Numbered(0)));
        EXPECT_TRUE(lpcclient::Notify(Numbered(1)));
        entered = true;
        leave.Wait();
    });
    ASSERT_EQ(lpc::kNoError, server.server.Notify(server.Client(), {}));
    const auto deadline = std::chrono::steady_clock::now() + kLimit;
    while (!entered && std::chrono::steady_clock::now() < deadline) // to follow within microseconds
        std::this_thread::yield();
    for (int n = 2; n < 100; ++n)
        EXPECT_TRUE(lpcclient::Notify(Numbered(n)));
    EXPECT_EQ(Numbers(100), arrived.WaitFor(100));
    leave.Happens();
}

/// The server sends two notifications around each answer, so that callers read what belongs to the library's
/// thread.
TEST_F(Exchange, ManyCallersGetTheirOwnAnswersWhileNotificationsKeepTheirOrder)
{
    EchoServer server;
    int sent = 0;
    server.onData = [&](lpcserver::ClientId client, const lpc::CallBackData& data) {
        EXPECT_EQ(lpc::kNoError, server.server.Notify(client, Numbered(sent++)));
        EXPECT_EQ(lpc::kNoError, server.server.Reply(client, {data.requestId, data.headers, data.body}));
        EXPECT_EQ(lpc::kNoError, server.server.Notify(client, Numbered(sent++)));
    };
    ASSERT_EQ(lpc::kNoError, server.Start());
    const Client client;
    CollectNumbers();

    constexpr int kThreads = 6;
    constexpr int kCalls = 300;
    std::atomic<int> wrong{0};
    std::vector<std::future<void>> callers;
    for (int t = 0; t < kThreads; ++t)
        callers.push_back(std::async(std::launch::async, [&, t] {
            for (int i = 0; i < kCalls; ++i) {
                const std::string text = std::to_string(t) + "/" + std::to_string(i);
                lpc::Message answer;
                lpc::RequestId id = 0;
                if (!lpcclient::SendEx(answer,
                                       {{{"who", text}}, std::string(i % 50 == 0 ? 300000 : 10, 'b') + text},
                                       id, 20000) ||
                    answer.headers["who"] != text || answer.body.substr(answer.body.rfind('b') + 1) != text)
                    ++wrong;
            }
        }));
    for (auto& caller : callers)
        ASSERT_EQ(std::future_status::ready, caller.wait_for(2 * kLimit));
    EXPECT_EQ(0, wrong);
    EXPECT_EQ(Numbers(2 * kThreads * kCalls), received.WaitFor(2 * kThreads * kCalls));
}

TEST_F(Exchange, TheCallbackMayCallSendExItself)
{
    StartedServer server;
    Collected<std::string> answers;
    const Client client;
    Receive([&](const lpc::CallBackData& data) {
        lpc::Message answer;
        lpc::RequestId id = 0;
        EXPECT_TRUE(lpcclient::SendEx(answer, {{{"n", data.Header("n")}}, ""}, id, 10000));
        answers.Add(answer.headers["n"]);
    });
    constexpr int kCount = 200;
    for (int i = 0; i < kCount; ++i)
        ASSERT_EQ(lpc::kNoError, server.server.Notify(server.Client(), Numbered(i)));
    EXPECT_EQ(Numbers(kCount), answers.WaitFor(kCount));
}

TEST_F(Exchange, AsynchronousAnswersComeOnTheLibrarysThreadInOrderWithNotifications)
{
    StartedServer server([&](lpcserver::ClientId client, const lpc::CallBackData& data) {
        EXPECT_EQ(lpc::kNoError, server.server.Notify(client, {{{"n", "before " + data.body}}, ""}));
        EXPECT_EQ(lpc::kNoError, server.server.Reply(client, {data.requestId, {}, data.body}));
    });
    const Client client;
    CollectNumbers();
    const auto onAnswer = [&](int error, const lpc::Message& answer) {
        EXPECT_EQ(lpc::kNoError, error);
        received.Add("answer " + answer.body);
    };
    EXPECT_NE(0U, lpcclient::Send({{}, "1"}, onAnswer));
    EXPECT_NE(0U, lpcclient::Send({{}, "2"}, onAnswer));
    const std::vector<std::string> expected{"before 1", "answer 1", "before 2", "answer 2"};
    EXPECT_EQ(expected, received.WaitFor(4));
}

TEST_F(Exchange, AnUnansweredRequestTimesOutAndItsLateAnswerMeetsNobody)
{
    lpc::RequestId first = 0;
    StartedServer server([&](lpcserver::ClientId client, const lpc::CallBackData& data) {
        if (first == 0) {
            first = data.requestId;
            return;
        }
        EXPECT_EQ(lpc::kNoError, server.server.Reply(client, {first, {}, "late"}));
        EXPECT_EQ(lpc::kNoError, server.server.Reply(client, {data.requestId, {}, "in time"}));
    });
    const Client client;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(lpc::kTimedOut, SendExError({}, 150));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 150ms);
    lpc::Message answer;
    lpc::RequestId id = 0;
    ASSERT_TRUE(lpcclient::SendEx(answer, {}, id, 10000));
    EXPECT_EQ("in time", answer.body);
}

TEST_F(Exchange, AServerThatDoesNotAcceptSaysTryAgain)
{
    StartedServer server;
    const Client client;
    server.server.SetAccepting(false);
    EXPECT_EQ(lpc::kTryAgain, SendExError({}, 10000));
    server.server.SetAccepting(true);
    EXPECT_EQ(0, SendExError({}, 10000));
}

TEST_F(Exchange, ServerRequestsTimeOutOrFailWithTheConnection)
{
    StartedServer server;
    const Client client;
    CollectNumbers(); // never replies
    lpc::Message answer;
    EXPECT_EQ(lpc::kTimedOut, server.server.SendEx(server.Client(), Numbered(1), 50, answer));
    Collected<int> errors;
    ASSERT_EQ(lpc::kNoError, server.server.Send(server.Client(), Numbered(2), 0,
                                                [&](int error, const lpc::Message&) { errors.Add(error); }));
    ASSERT_EQ(lpc::kNoError, server.server.Send(server.Client(), Numbered(3), 60000,
                                                [&](int error, const lpc::Message&) { errors.Add(error); }));
    EXPECT_EQ(3U, received.WaitFor(3).size());
    server.server.Stop();
    EXPECT_EQ((std::vector<int>{lpc::kConnectionLost, lpc::kConnectionLost}), errors.WaitFor(2));
}

TEST_F(Exchange, RequestsAfterTheReceiverWasClearedAreRefused)
{
    StartedServer server;
    const Client client;
    CollectNumbers();
    ASSERT_TRUE(lpcclient::SetInvokeCallBack({}, nullptr));
    lpc::Message answer;
    EXPECT_EQ(lpc::kTryAgain, server.server.SendEx(server.Client(), Numbered(1), 10000, answer));
    EXPECT_EQ(0U, received.Size());
}

} // namespace
