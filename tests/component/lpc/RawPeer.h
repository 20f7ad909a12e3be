#pragma once

#include "LpcWorld.h"

#include "LPC_Wire/FrameReader.h"
#include "LPC_Wire/Hello.h"
#include "LPC_Wire/LocalSocket.h"
#include "LPC_Wire/Poller.h"
#include "LPC_Wire/SocketName.h"
#include "support/WireFrames.h"

#include <cstdio>
#include <optional>
#include <thread>

#include <sys/fsuid.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

/// One end of a connection that may send anything, and read or not.
class RawPeer
{
public:
    RawPeer() = default;
    explicit RawPeer(lpc::CLocalSocket socket) : m_socket(std::move(socket)) {}

    /// A connection to the test's server, without a hello.
    static RawPeer ToServer()
    {
        std::string why;
        return ToPath(lpc::SocketPath(kServerName, why));
    }
    static RawPeer ToPath(const std::string& path)
    {
        std::string why;
        RawPeer peer(lpc::CLocalSocket::Connect(path, Deadline(), why));
        EXPECT_TRUE(peer.m_socket.IsValid()) << why;
        return peer;
    }

    /// The same after the hello.
    static RawPeer Greeted(const std::string& name)
    {
        RawPeer peer = ToServer();
        EXPECT_TRUE(peer.Send(lpc::Kind::Hello, 0, lpc::HelloHeaders(name), ""));
        const auto answer = peer.Receive();
        EXPECT_TRUE(answer && answer->kind == lpc::Kind::HelloAnswer);
        return peer;
    }

    /// Waits until all is written; false when the other end is gone or reads nothing.
    bool Send(const std::string& bytes)
    {
        std::size_t done = 0;
        while (done < bytes.size()) {
            const lpc::ConstSpan span{bytes.data() + done, bytes.size() - done};
            const lpc::IoResult result = m_socket.Write(&span, 1);
            done += result.bytes;
            if (result.state == lpc::IoState::Closed)
                return false;
            if (result.state == lpc::IoState::WouldBlock && m_socket.Wait(lpc::kWritable, Deadline()) == 0)
                return false;
        }
        return true;
    }
    bool Send(lpc::Kind kind, lpc::RequestId id, const lpc::HeaderMap& headers, const std::string& body)
    {
        return Send(WireBytes(kind, id, headers, body));
    }

    /// The next message; nothing when the connection ended or nothing comes.
    std::optional<lpc::WireMessage> Receive()
    {
        lpc::WireMessage message;
        while (!m_reader.Next(message)) {
            if (m_reader.GetFault() != lpc::Fault::None || m_socket.Wait(lpc::kReadable, Deadline()) == 0)
                return std::nullopt;
            const auto room = m_reader.Room();
            const lpc::IoResult result = m_socket.Read(room.data(), room.size());
            m_reader.Commit(result.bytes);
            m_closed = result.state == lpc::IoState::Closed;
            if (m_closed)
                return std::nullopt;
        }
        return message;
    }

    /// Whether the other end closes the connection; messages before that are skipped.
    bool SeesEnd()
    {
        while (Receive()) {
        }
        return m_closed;
    }

    void Close() { m_socket.Close(); }

private:
    static lpc::TimePoint Deadline() { return std::chrono::steady_clock::now() + kLimit; }

    lpc::CLocalSocket m_socket;
    lpc::CFrameReader m_reader;
    bool m_closed = false;
};

/// Makes the calling thread another user's towards those that it connects to or that connect to it, until the
/// object goes; files stay open to it. Only an administrator can do so: without that the test says so and
/// looks at no more than that the user's own connections are known as such.
class AnotherUser
{
public:
    AnotherUser() : m_is(geteuid() == 0 && SetUser(65534))
    {
        setfsuid(0);
        if (m_is)
            return;
        std::puts("NOT TRIED: a peer of another user, for this needs an administrator.");
        int ends[2];
        EXPECT_EQ(0, socketpair(AF_UNIX, SOCK_STREAM, 0, ends));
        const lpc::CLocalSocket one(ends[0]);
        const lpc::CLocalSocket other(ends[1]);
        EXPECT_TRUE(one.PeerIsThisUser());
    }
    ~AnotherUser()
    {
        if (m_is)
            SetUser(0);
    }
    AnotherUser(const AnotherUser&) = delete;
    AnotherUser& operator=(const AnotherUser&) = delete;

    bool Is() const { return m_is; }

private:
    /// The library's function would change all threads.
    static bool SetUser(uid_t user) { return syscall(SYS_setresuid, -1, user, -1) == 0; }

    const bool m_is;
};

/// A server of one connection, run by a function that may break the rules. The function starts after the
/// hello.
class RawServer
{
public:
    explicit RawServer(std::function<void(RawPeer&)> run) : RawServer(std::move(run), true) {}
    RawServer(std::function<void(RawPeer&)> run, bool greets)
    {
        std::string why;
        EXPECT_TRUE(m_listener.Listen(lpc::SocketPath(kServerName, why), why)) << why;
        m_thread = std::thread([this, run = std::move(run), greets] {
            RawPeer peer = Accept();
            const auto hello = peer.Receive();
            if (hello && greets)
                peer.Send(lpc::Kind::HelloAnswer, 0, lpc::HelloAnswerHeaders(), "");
            if (hello)
                run(peer);
        });
    }
    ~RawServer() { m_thread.join(); }
    RawServer(const RawServer&) = delete;
    RawServer& operator=(const RawServer&) = delete;

private:
    RawPeer Accept()
    {
        lpc::CPoller poller;
        poller.Add(m_listener.Handle(), 1, lpc::kReadable);
        lpc::CPoller::Event event;
        poller.Wait(&event, 1, std::chrono::steady_clock::now() + kLimit);
        lpc::CLocalSocket socket;
        m_listener.Accept(socket);
        return RawPeer(std::move(socket));
    }

    lpc::CLocalListener m_listener;
    std::thread m_thread;
};
