#include "PlayedDevice.h"

#include "QxNetSDK/QxNetSDK.h"

#include <boost/asio/read.hpp>
#include <boost/asio/write.hpp>
#include <chrono>
#include <cstring>

using boost::asio::ip::tcp;

const char kChallenge[] =
    "WWW-Authenticate: Digest realm=\"device\", qop=\"auth\", algorithm=SHA-256, nonce=\"n1\"\r\n";

std::string HeaderOf(const std::string& request, const std::string& name)
{
    const std::size_t at = request.find("\r\n" + name + ": ");
    if (at == std::string::npos)
        return {};
    const std::size_t begin = at + name.size() + 4;
    return request.substr(begin, request.find("\r\n", begin) - begin);
}

std::string AnswerBytes(const std::string& status, const std::string& headers, const std::string& body)
{
    const std::string length =
        status.substr(0, 3) == "204" ? "" : "Content-Length: " + std::to_string(body.size()) + "\r\n";
    return "HTTP/1.1 " + status + "\r\nVantor-Protocol: 1\r\n" + headers + length + "\r\n" + body;
}

std::string DeviceInfoBytes()
{
    QxNetDeviceInfo info{};
    info.size = sizeof info;
    info.typeCode = QXNET_DEVICE_RECORDER;
    info.channels = 4;
    std::strcpy(info.name, "Recorder");
    return {reinterpret_cast<const char*>(&info), sizeof info};
}

std::string CPlayedConnection::Request()
{
    std::size_t wanted = std::string::npos;
    for (;;) {
        const std::size_t end = m_unread.find("\r\n\r\n");
        if (end != std::string::npos && wanted == std::string::npos) {
            const std::string length = HeaderOf(m_unread.substr(0, end + 2), "Content-Length");
            wanted = end + 4 + (length.empty() ? 0 : std::stoul(length));
        }
        if (m_unread.size() >= wanted) {
            const std::string request = m_unread.substr(0, wanted);
            m_unread.erase(0, wanted);
            return request;
        }
        char part[16384];
        boost::system::error_code error;
        const std::size_t came = m_socket.read_some(boost::asio::buffer(part), error);
        if (error)
            return {};
        m_unread.append(part, came);
    }
}

void CPlayedConnection::BeginRequest()
{
    char part[1024];
    boost::system::error_code ignored;
    (void)m_socket.read_some(boost::asio::buffer(part), ignored);
}

bool CPlayedConnection::Send(const std::string& bytes)
{
    boost::system::error_code error;
    boost::asio::write(m_socket, boost::asio::buffer(bytes), error);
    return !error;
}

void CPlayedConnection::Drip(const std::string& bytes, int pauseMs)
{
    for (std::size_t i = 0; i < bytes.size() && !m_isStopped && Send(bytes.substr(i, 1)); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(pauseMs));
}

void CPlayedConnection::WaitForEnd()
{
    while (!Request().empty())
        continue;
}

void CPlayedConnection::Linger()
{
    while (!m_isStopped)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

void CPlayedConnection::Stop()
{
    m_isStopped = true;
    boost::system::error_code ignored;
    m_socket.shutdown(tcp::socket::shutdown_both, ignored);
}

CPlayedDevice::CPlayedDevice(Play play)
    : m_play(std::move(play)),
      m_acceptor(m_context, tcp::endpoint(boost::asio::ip::address_v4::loopback(), 0)),
      m_port(m_acceptor.local_endpoint().port()), m_acceptThread([this] { Accept(); })
{}

CPlayedDevice::~CPlayedDevice()
{
    m_isStopped = true;
    tcp::socket knock(m_context);
    boost::system::error_code ignored;
    knock.connect(tcp::endpoint(boost::asio::ip::address_v4::loopback(), m_port), ignored);
    m_acceptThread.join();
    for (CPlayedConnection& connection : m_connections)
        connection.Stop();
    for (std::thread& thread : m_threads)
        thread.join();
}

void CPlayedDevice::Accept()
{
    for (;;) {
        boost::system::error_code error;
        tcp::socket socket = m_acceptor.accept(error);
        if (m_isStopped || error)
            return;
        m_connections.emplace_back(std::move(socket));
        CPlayedConnection& connection = m_connections.back();
        m_threads.emplace_back([this, &connection, number = m_count++] {
            m_play(connection, number);
            connection.Stop();
        });
    }
}

void CWellBehaved::Serve(CPlayedConnection& connection)
{
    for (std::string request = connection.Request(); !request.empty(); request = connection.Request())
        connection.Send(Answer(request));
}

std::string CWellBehaved::Answer(const std::string& request)
{
    if (request.rfind("POST /vantor/device/v1/session ", 0) == 0)
        return LogIn(request);
    const std::lock_guard lock(m_mutex);
    if (m_sessions.count(HeaderOf(request, "Vantor-Session")) == 0)
        return AnswerBytes("401 Log in", "Vantor-Session: ended\r\n");
    if (request.rfind("DELETE ", 0) == 0)
        return AnswerBytes("204 Done", "");
    return Config(request);
}

std::string CWellBehaved::LogIn(const std::string& request)
{
    if (HeaderOf(request, "Authorization").empty())
        return AnswerBytes("401 Log in", kChallenge);
    if (m_isPasswordChanged) {
        ++m_wrongPasswords;
        return AnswerBytes("401 Log in", kChallenge);
    }
    char session[33];
    std::snprintf(session, sizeof session, "%032x", static_cast<unsigned>(++m_logins));
    const std::lock_guard lock(m_mutex);
    m_sessions[session] = true;
    return AnswerBytes("200 OK", std::string("Vantor-Session: ") + session + "\r\n", DeviceInfoBytes());
}

std::string CWellBehaved::Config(const std::string& request)
{
    const std::size_t begin = request.find(' ') + 1;
    std::string target = request.substr(begin, request.find(' ', begin) - begin);
    const std::string body = request.substr(request.find("\r\n\r\n") + 4);
    if (request.rfind("PUT ", 0) == 0) {
        m_kept[target] = body;
        return AnswerBytes("204 Done", "");
    }
    const auto kept = m_kept.find(target);
    if (kept == m_kept.end())
        return AnswerBytes("404 None",
                           "Vantor-Error: 500\r\nVantor-Module-Error: 7\r\nVantor-Own-Error: 42\r\n");
    return AnswerBytes("200 OK", "", kept->second);
}

void CWellBehaved::ForgetSessions()
{
    const std::lock_guard lock(m_mutex);
    m_sessions.clear();
}
