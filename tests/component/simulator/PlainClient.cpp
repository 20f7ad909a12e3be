#include "PlainClient.h"

#include "simulator/protocol/Digest.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace {

constexpr const char* kRoot = "/vantor/device/v1/";

/// The quoted value of a name in a challenge.
std::string Quoted(const std::string& challenge, const std::string& name)
{
    const std::size_t begin = challenge.find(name + "=\"") + name.size() + 2;
    return challenge.substr(begin, challenge.find('"', begin) - begin);
}

std::string Credentials(const std::string& challenge, const std::string& user, const std::string& password)
{
    const std::string realm = Quoted(challenge, "realm");
    const std::string nonce = Quoted(challenge, "nonce");
    const std::string uri = std::string(kRoot) + "session";
    using simulator::Sha256Hex;
    const std::string proof = Sha256Hex(Sha256Hex(user + ':' + realm + ':' + password) + ':' + nonce +
                                        ":00000001:c0ffee:auth:" + Sha256Hex("POST:" + uri));
    return "Digest username=\"" + user + "\", realm=\"" + realm + "\", nonce=\"" + nonce + "\", uri=\"" +
           uri + "\", algorithm=SHA-256, qop=auth, nc=00000001, cnonce=\"c0ffee\", response=\"" + proof + '"';
}

} // namespace

PlainClient::PlainClient(std::uint16_t port)
{
    m_socket = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const timeval limit{10, 0};
    setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    setsockopt(m_socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        close(m_socket);
        m_socket = -1;
    }
}

PlainClient::~PlainClient()
{
    if (m_socket >= 0)
        close(m_socket);
}

PlainClient::Answer PlainClient::Login(const std::string& password)
{
    session.clear();
    authorization.clear();
    Answer answer = Ask("POST", "session");
    if (answer.status != 401)
        return answer;
    authorization = Credentials(answer.Header("WWW-Authenticate"), user, password);
    lastCredentials = authorization;
    answer = Ask("POST", "session");
    authorization.clear();
    if (answer.status == 200)
        session = answer.Header("Vantor-Session");
    return answer;
}

std::string PlainClient::Head(const std::string& method, const std::string& path,
                              const std::string& moreLines) const
{
    std::string head =
        method + ' ' + kRoot + path + " HTTP/1.1\r\nHost: device\r\nVantor-Protocol: " + version + "\r\n";
    if (!session.empty())
        head += "Vantor-Session: " + session + "\r\n";
    if (!authorization.empty())
        head += "Authorization: " + authorization + "\r\n";
    return head + moreLines + "\r\n";
}

PlainClient::Answer PlainClient::Ask(const std::string& method, const std::string& path,
                                     const std::string& body)
{
    const std::string length = "Content-Length: " + std::to_string(body.size()) + "\r\n";
    return Send(Head(method, path, length) + body) ? Receive() : Answer();
}

bool PlainClient::Send(const std::string& octets)
{
    std::size_t done = 0;
    while (done < octets.size()) {
        const ssize_t sent = send(m_socket, octets.data() + done, octets.size() - done, MSG_NOSIGNAL);
        if (sent <= 0)
            return false;
        done += static_cast<std::size_t>(sent);
    }
    return true;
}

bool PlainClient::ReceiveMore()
{
    char piece[65536];
    const ssize_t got = recv(m_socket, piece, sizeof piece, 0);
    if (got > 0)
        m_received.append(piece, static_cast<std::size_t>(got));
    return got > 0;
}

std::string PlainClient::ReceiveRaw(std::size_t limit)
{
    while (m_received.size() < limit && ReceiveMore())
        continue;
    return m_received;
}

PlainClient::Answer PlainClient::Receive()
{
    Answer answer;
    std::size_t end = 0;
    while ((end = m_received.find("\r\n\r\n")) == std::string::npos)
        if (!ReceiveMore())
            return answer;
    std::istringstream lines(m_received.substr(0, end));
    m_received.erase(0, end + 4);
    std::string line;
    std::getline(lines, line);
    const int status = std::atoi(line.substr(9).c_str());
    while (std::getline(lines, line)) {
        const std::size_t colon = line.find(": ");
        answer.headers[line.substr(0, colon)] = line.substr(colon + 2, line.find('\r') - colon - 2);
    }
    const auto length = static_cast<std::size_t>(std::atoll(answer.Header("Content-Length").c_str()));
    while (m_received.size() < length)
        if (!ReceiveMore())
            return {};
    answer.status = status;
    answer.body = m_received.substr(0, length);
    m_received.erase(0, length);
    return answer;
}
