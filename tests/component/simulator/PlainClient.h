#pragma once

#include <cstdint>
#include <map>
#include <string>

/// A client of the device protocol that is nothing but a socket and a few lines of text.
class PlainClient
{
public:
    struct Answer
    {
        int status = 0; ///< 0: none came
        std::map<std::string, std::string> headers;
        std::string body;

        std::string Header(const std::string& name) const
        {
            const auto found = headers.find(name);
            return found == headers.end() ? std::string() : found->second;
        }
    };

    explicit PlainClient(std::uint16_t port);
    ~PlainClient();

    PlainClient(const PlainClient&) = delete;
    PlainClient& operator=(const PlainClient&) = delete;

    bool IsConnected() const { return m_socket >= 0; }

    /// Logs in with the digest of the password; further requests carry the session.
    Answer Login(const std::string& password = "vantor-device");

    /// A request of a path below the protocol's root, such as "config/1008?channel=1", and its answer.
    Answer Ask(const std::string& method, const std::string& path, const std::string& body = {});

    bool Send(const std::string& octets);
    /// The next answer, within ten seconds.
    Answer Receive();
    /// All that comes until the end, or at most that many octets.
    std::string ReceiveRaw(std::size_t limit = SIZE_MAX);

    /// The lines of a request before its body, with the blank one.
    std::string Head(const std::string& method, const std::string& path, const std::string& moreLines) const;

    std::string user = "admin";
    std::string session;
    std::string authorization;
    std::string lastCredentials; ///< of the last login
    std::string version = "1";

private:
    bool ReceiveMore();

    int m_socket = -1;
    std::string m_received;
};
