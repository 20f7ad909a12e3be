#include "RawPeer.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

using lpc::Kind;

class ServerFaults : public LpcTest
{
protected:
    /// The error lines that contain the text.
    std::size_t Lines(const std::string& text) const
    {
        const auto lines = log.Messages(Base::LogLevel::Error);
        return static_cast<std::size_t>(
            std::count_if(lines.begin(), lines.end(),
                          [&](const std::string& line) { return line.find(text) != std::string::npos; }));
    }

    /// A whole good request with some bytes overwritten.
    static std::string Damaged(std::size_t at, const std::string& bytes)
    {
        std::string request = WireBytes(Kind::Request, 1, {{"k", "v"}}, "body");
        return request.replace(at, bytes.size(), bytes);
    }
};

struct FaultRow
{
    std::string bytes;
    const char* line;
};

TEST_F(ServerFaults, EndOnlyTheirOwnConnectionWithOneLineThatNamesThem)
{
    EchoServer server;
    ASSERT_EQ(lpc::kNoError, server.Start());
    RawPeer other = RawPeer::Greeted("other");
    const FaultRow rows[] = {
        {Damaged(0, "X"), "bad magic"},
        {Damaged(4, "\x02"), "unknown version"},
        {Damaged(5, "\x09"), "unknown kind of frame"},
        {Damaged(6, "\x02"), "unknown flags"},
        {Damaged(8, std::string(1, '\0')), "request id does not fit"},
        {Damaged(16, "\xff\xff\xff\xff"), "header length out of range"},
        {Damaged(20, "\xff\xff\xff\xff"), "body length out of range"},
        {Damaged(24, "\xff\xff"), "malformed headers"},
        {WireBytes(Kind::Hello, 0, lpc::HelloHeaders("again"), ""), "kind of frame not expected here"},
    };
    for (const FaultRow& row : rows) {
        SCOPED_TRACE(row.line);
        RawPeer peer = RawPeer::Greeted("faulty");
        ASSERT_TRUE(peer.Send(row.bytes));
        EXPECT_TRUE(peer.SeesEnd());
        EXPECT_EQ(1U, Lines(std::string("[faulty]: ") + row.line));
    }
    ASSERT_TRUE(other.Send(Kind::Request, 5, {}, "still served"));
    const auto answer = other.Receive();
    ASSERT_TRUE(answer);
    EXPECT_EQ("still served", answer->body);
}

TEST_F(ServerFaults, ThatRepeatDoNotFillTheLog)
{
    EchoServer server;
    ASSERT_EQ(lpc::kNoError, server.Start());
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 100; ++i) {
        RawPeer peer = RawPeer::Greeted("faulty");
        peer.Send(std::string(24, 'x'));
        ASSERT_TRUE(peer.SeesEnd());
    }
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
    EXPECT_GE(Lines("bad magic"), 1U);
    EXPECT_LE(Lines("bad magic"), 1U + static_cast<std::size_t>(seconds.count()));
}

TEST_F(ServerFaults, ADisconnectInsideAMessageIsNamed)
{
    EchoServer server;
    ASSERT_EQ(lpc::kNoError, server.Start());
    RawPeer peer = RawPeer::Greeted("faulty");
    ASSERT_TRUE(peer.Send(WireBytes(Kind::Request, 1, {}, "whole").substr(0, 27)));
    peer.Close();
    EXPECT_EQ(1U, server.disconnected.WaitFor(1).size());
    EXPECT_EQ(1U, Lines("[faulty]: ended inside a message"));
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
    EchoServer server;
    ASSERT_EQ(lpc::kNoError, server.Start());
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
    EchoServer server(limits);
    ASSERT_EQ(lpc::kNoError, server.Start());
    RawPeer peer = RawPeer::ToServer();
    EXPECT_TRUE(peer.SeesEnd());
    EXPECT_EQ(1U, Lines("said no hello in time"));
}

TEST_F(ServerFaults, TooManyClientsAreToldToTryAgain)
{
    lpcserver::ServerLimits limits;
    limits.clients = 2;
    EchoServer server(limits);
    ASSERT_EQ(lpc::kNoError, server.Start());
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
    EchoServer server;
    ASSERT_EQ(lpc::kNoError, server.Start());
    RawPeer peer = RawPeer::Greeted("eager");
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(peer.Send(Kind::Answer, 12345, {}, "unasked"));
    ASSERT_TRUE(peer.Send(Kind::Request, 1, {}, "served"));
    const auto answer = peer.Receive();
    ASSERT_TRUE(answer);
    EXPECT_EQ("served", answer->body);
    EXPECT_EQ(1U, Lines("[eager]: answered a request that was never sent"));
}

TEST_F(ServerFaults, AClientThatNeverReadsCostsABoundedQueueAndIsDropped)
{
    lpcserver::ServerLimits limits;
    limits.sendQueueBytes = 1024 * 1024;
    limits.stallTimeout = 300ms;
    EchoServer server(limits);
    ASSERT_EQ(lpc::kNoError, server.Start());
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
    ASSERT_TRUE(other.Send(Kind::Request, 1, {}, "served"));
    ASSERT_TRUE(other.Receive());
    EXPECT_EQ(std::vector<lpcserver::ClientId>{muteId}, server.disconnected.WaitFor(1));
    EXPECT_EQ(1U, Lines("[mute]: does not read what it is sent"));
    EXPECT_EQ(lpc::kNotConnected, server.server.Notify(muteId, notification));
}

/// Refusals that nobody reads may not pile up either.
TEST_F(ServerFaults, RequestsInMassesToAServerThatDoesNotAcceptStayBounded)
{
    lpcserver::ServerLimits limits;
    limits.sendQueueBytes = 64 * 1024;
    EchoServer server(limits);
    ASSERT_EQ(lpc::kNoError, server.Start());
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
