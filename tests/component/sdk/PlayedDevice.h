#pragma once

#include <atomic>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <thread>

/// One connection of a device that a test plays, read and written as bytes.
class CPlayedConnection
{
public:
    explicit CPlayedConnection(boost::asio::ip::tcp::socket socket) : m_socket(std::move(socket)) {}

    /// The next request, head and body; empty when the client has closed the connection.
    std::string Request();
    /// Waits for the next request to begin, and reads only what there is of it.
    void BeginRequest();
    /// False when the client is gone.
    bool Send(const std::string& bytes);
    /// Sends the bytes one at a time with pauses, until the client is gone or Stop.
    void Drip(const std::string& bytes, int pauseMs);
    /// Waits until the client closes the connection.
    void WaitForEnd();
    /// Reads nothing any more and keeps the connection open until the end of the test.
    void Linger();
    void Stop();

private:
    boost::asio::ip::tcp::socket m_socket;
    std::string m_unread;
    std::atomic<bool> m_isStopped = false;
};

/// Listens on a free port of this computer and plays each connection, on a thread of its own, with what the
/// test gives: its number counts from 0.
class CPlayedDevice
{
public:
    using Play = std::function<void(CPlayedConnection& connection, int number)>;

    explicit CPlayedDevice(Play play);
    ~CPlayedDevice();

    std::uint16_t Port() const { return m_port; }
    int Connections() const { return m_count; }

private:
    void Accept();

    const Play m_play;
    boost::asio::io_context m_context;
    boost::asio::ip::tcp::acceptor m_acceptor;
    std::uint16_t m_port = 0;
    std::atomic<bool> m_isStopped = false;
    std::atomic<int> m_count = 0;
    std::mutex m_mutex;
    std::list<CPlayedConnection> m_connections;
    std::list<std::thread> m_threads;
    std::thread m_acceptThread;
};

/// A small device that keeps its word: sessions, and octets under command and channel. Plays a connection as
/// CPlayedDevice wants it; shared by all of them.
class CWellBehaved
{
public:
    void Serve(CPlayedConnection& connection);
    /// The answer to one request.
    std::string Answer(const std::string& request);
    /// Ends all sessions, as a restart does.
    void ForgetSessions();
    /// From now on nobody's password is the right one.
    void ChangePassword() { m_isPasswordChanged = true; }
    int Logins() const { return m_logins; }
    int WrongPasswords() const { return m_wrongPasswords; }

private:
    std::string LogIn(const std::string& request);
    std::string Config(const std::string& request);

    std::mutex m_mutex;
    std::map<std::string, bool> m_sessions;
    std::map<std::string, std::string> m_kept;
    std::atomic<int> m_logins = 0;
    std::atomic<bool> m_isPasswordChanged = false;
    std::atomic<int> m_wrongPasswords = 0;
};

/// An answer's bytes: status line, the protocol's header, the given header lines ("Name: value\r\n"...),
/// body.
std::string AnswerBytes(const std::string& status, const std::string& headers, const std::string& body = {});
/// The structure of a login's answer.
std::string DeviceInfoBytes();
std::string HeaderOf(const std::string& request, const std::string& name);

extern const char kChallenge[];
