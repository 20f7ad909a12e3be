#include "RawPeer.h"

using namespace std::chrono_literals;

namespace {

using lpc::Kind;

class ServerFaults : public LpcTest
{
protected:
    static void ExpectServed(RawPeer& peer)
    {
        EXPECT_TRUE(peer.Send(Kind::Request, 5, {}, "still served"));
        const auto answer = peer.Receive();
        EXPECT_TRUE(answer && answer->body == "still served");
    }
};

TEST_F(ServerFaults, EndOnlyTheirOwnConnectionWithOneLineThatNamesThem)
{
    StartedServer server;
    RawPeer other = RawPeer::Greeted("other");
    std::vector<FaultRow> rows = FaultRows();
    rows.push_back({WireBytes(Kind::Hello, 0, lpc::HelloHeaders("again"), ""), "kind of frame not expected"});
    for (const FaultRow& row : rows) {
        SCOPED_TRACE(row.line);
        const std::size_t faults = log.Count("[faulty]: ");
        RawPeer peer = RawPeer::Greeted("faulty");
        ASSERT_TRUE(peer.Send(row.bytes));
        EXPECT_TRUE(peer.SeesEnd());
        EXPECT_GE(log.Count(std::string("[faulty]: ") + row.line), 1U); // one a second of each kind
        EXPECT_LE(log.Count("[faulty]: "), faults + 1);
        ExpectServed(other);
    }
}

TEST_F(ServerFaults, UnfinishedBodiesOfAllClientsTogetherAreBounded)
{
    lpcserver::ServerLimits limits;
    limits.unfinishedBytes = 4 * lpc::kMiB;
    StartedServer server(limits);
    RawPeer first = RawPeer::Greeted("first");
    ASSERT_TRUE(first.Send(LongBody(3)));
    ASSERT_TRUE(first.Send(Kind::Notification, 0, {}, "")); // and in between
    ASSERT_TRUE(first.Send(Kind::Request, 2, {}, "has arrived"));
    ASSERT_TRUE(first.Receive());
    for (int i = 0; i < 3; ++i) { // what the closed ones held is free again
        RawPeer second = RawPeer::Greeted("second");
        second.Send(LongBody(2));
        EXPECT_TRUE(second.SeesEnd());
    }
    EXPECT_EQ(1U, log.Count("[second]: the unfinished bodies of all clients are over the limit"));
    ASSERT_TRUE(first.Send(Frame(Kind::Request, 1, 0, "", "end")));
    const auto answer = first.Receive();
    ASSERT_TRUE(answer);
    EXPECT_EQ(3 * lpc::kMiB + 3, answer->body.size());
    RawPeer third = RawPeer::Greeted("third");
    ASSERT_TRUE(third.Send(LongBody(3) + Frame(Kind::Request, 1, 0, "", "end")));
    EXPECT_TRUE(third.Receive());
}

TEST_F(ServerFaults, AClientOfAnotherUserIsClosed)
{
    StartedServer server;
    RawPeer other = RawPeer::Greeted("other");
    std::string why;
    const std::string path = lpc::SocketPath(kServerName, why);
    std::optional<RawPeer> stranger;
    {
        const AnotherUser user;
        if (!user.Is())
            return;
        stranger = RawPeer::ToPath(path);
    }
    EXPECT_TRUE(stranger->SeesEnd());
    EXPECT_EQ(1U, log.Count("[]: belongs to another user"));
    ExpectServed(other);
}

TEST_F(ServerFaults, AServerThatStopsStillWritesToClientsThatRead)
{
    const std::string large(3000000, 'x');
    StartedServer server;
    RawPeer mute = RawPeer::Greeted("mute");
    const lpcserver::ClientId muteId = server.Client();
    RawPeer reader = RawPeer::Greeted("reader");
    server.connected.WaitFor(2);
    ASSERT_EQ(lpc::kNoError, server.server.Notify(muteId, {{}, large}));
    ASSERT_EQ(lpc::kNoError, server.server.Notify(server.lastClient, {{}, large}));
    ASSERT_EQ(lpc::kNoError, server.server.Notify(server.lastClient, {{{"n", "last"}}, ""}));
    auto reading = std::async(std::launch::async, [&] {
        const auto first = reader.Receive();
        const auto last = reader.Receive();
        return first && first->body == large && last && last->headers.count("n") == 1;
    });
    const auto start = std::chrono::steady_clock::now();
    server.server.Stop();
    EXPECT_LT(std::chrono::steady_clock::now() - start, kLimit / 2); // the mute one does not hold it up
    EXPECT_TRUE(reading.get());
    EXPECT_TRUE(reader.SeesEnd());
}

TEST_F(ServerFaults, ThatRepeatDoNotFillTheLog)
{
    StartedServer server;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 100; ++i) {
        RawPeer peer = RawPeer::Greeted("faulty");
        peer.Send(std::string(24, 'x'));
        ASSERT_TRUE(peer.SeesEnd());
    }
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
    EXPECT_GE(log.Count("bad magic"), 1U);
    EXPECT_LE(log.Count("bad magic"), 1U + static_cast<std::size_t>(seconds.count()));
}

TEST_F(ServerFaults, ADisconnectInsideAMessageIsNamed)
{
    StartedServer server;
    RawPeer peer = RawPeer::Greeted("faulty");
    ASSERT_TRUE(peer.Send(WireBytes(Kind::Request, 1, {}, "whole").substr(0, 27)));
    peer.Close();
    EXPECT_EQ(1U, server.disconnected.WaitFor(1).size());
    EXPECT_EQ(1U, log.Count("[faulty]: ended inside a message"));
}

TEST_F(ServerFaults, AHelloThatDoesNotFitIsRefused)
{
    struct Row
    {
        const char* what;
        std::string bytes;
        bool refused;
    };
    std::string otherVersion = WireBytes(Kind::Hello, 0, lpc::HelloHeaders("n"), "");
    otherVersion[4] = 2;
    const Row rows[] = {
        {"another version of the frames", otherVersion, true},
        {"another version in the hello", WireBytes(Kind::Hello, 0, {{"name", "n"}, {"version", "2"}}, ""),
         true},
        {"no name", WireBytes(Kind::Hello, 0, {{"version", "1"}}, ""), true},
        {"a long name", WireBytes(Kind::Hello, 0, lpc::HelloHeaders(std::string(129, 'n')), ""), true},
        {"a request first", WireBytes(Kind::Request, 1, {}, ""), false},
    };
    StartedServer server;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        RawPeer peer = RawPeer::ToServer();
        ASSERT_TRUE(peer.Send(row.bytes));
        const auto answer = peer.Receive();
        EXPECT_EQ(row.refused, answer.has_value());
        if (answer) {
            EXPECT_EQ(Kind::Refusal, answer->kind);
            EXPECT_EQ(lpc::kRefused, lpc::RefusalError(answer->headers));
        }
        EXPECT_TRUE(peer.SeesEnd());
    }
    EXPECT_EQ(0U, server.connected.Size());
}

TEST_F(ServerFaults, AClientWithoutHelloIsDroppedInTime)
{
    lpcserver::ServerLimits limits;
    limits.helloTimeout = 50ms;
    StartedServer server(limits);
    RawPeer peer = RawPeer::ToServer();
    EXPECT_TRUE(peer.SeesEnd());
    EXPECT_EQ(1U, log.Count("said no hello in time"));
}

TEST_F(ServerFaults, TooManyClientsAreToldToTryAgain)
{
    lpcserver::ServerLimits limits;
    limits.clients = 2;
    StartedServer server(limits);
    RawPeer first = RawPeer::Greeted("first");
    RawPeer second = RawPeer::Greeted("second");
    ASSERT_TRUE(lpcclient::Init("third", false));
    EXPECT_FALSE(lpcclient::ConnectToServer(kServerName));
    EXPECT_EQ(lpc::kTryAgain, lpcclient::GetLPCLastError());
    second.Close();
    EXPECT_EQ(1U, server.disconnected.WaitFor(1).size());
    EXPECT_TRUE(lpcclient::ConnectToServer(kServerName));
    EXPECT_TRUE(lpcclient::Uninit());
}

TEST_F(ServerFaults, AnAnswerNobodyAskedForIsDroppedWithOneLine)
{
    StartedServer server;
    RawPeer peer = RawPeer::Greeted("eager");
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(peer.Send(Kind::Answer, 12345, {}, "unasked"));
    ExpectServed(peer);
    EXPECT_EQ(1U, log.Count("[eager]: answered a request that was never sent"));
}

TEST_F(ServerFaults, AClientThatNeverReadsCostsABoundedQueueAndIsDropped)
{
    lpcserver::ServerLimits limits;
    limits.sendQueueBytes = 1024 * 1024;
    limits.stallTimeout = 300ms;
    StartedServer server(limits);
    RawPeer mute = RawPeer::Greeted("mute");
    const lpcserver::ClientId muteId = server.Client();
    RawPeer other = RawPeer::Greeted("other");

    const lpc::Message notification{{}, std::string(10000, 'n')};
    int sent = 0;
    int error = lpc::kNoError;
    while (error == lpc::kNoError && sent < 100000) {
        error = server.server.Notify(muteId, notification);
        ++sent;
    }
    EXPECT_EQ(lpc::kTryAgain, error);
    ExpectServed(other);
    EXPECT_EQ(std::vector<lpcserver::ClientId>{muteId}, server.disconnected.WaitFor(1));
    EXPECT_EQ(1U, log.Count("[mute]: does not read what it is sent"));
    EXPECT_EQ(lpc::kNotConnected, server.server.Notify(muteId, notification));
}

/// Refusals that nobody reads may not pile up either.
TEST_F(ServerFaults, RequestsInMassesToAServerThatDoesNotAcceptStayBounded)
{
    lpcserver::ServerLimits limits;
    limits.sendQueueBytes = 64 * 1024;
    StartedServer server(limits);
    server.server.SetAccepting(false);
    RawPeer peer = RawPeer::Greeted("flood");
    std::string requests;
    for (int i = 0; i < 1000; ++i)
        requests += WireBytes(Kind::Request, 1, {}, "");
    int rounds = 0;
    while (rounds < 1000 && peer.Send(requests))
        ++rounds;
    EXPECT_LT(rounds, 1000);
    EXPECT_EQ(1U, server.disconnected.WaitFor(1).size());
}

} // namespace
