#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace bench {

/// What a device can be asked with the HTTP library alone: one connection, blocking, nothing checked but the
/// status. Failures end the program.
class CBareClient
{
public:
    /// Logs in as "admin" with "vantor-device".
    explicit CBareClient(std::uint16_t port);
    ~CBareClient();
    CBareClient(const CBareClient&) = delete;
    CBareClient& operator=(const CBareClient&) = delete;

    /// The body of the answer.
    std::string Get(const std::string& target);
    void Put(const std::string& target, const std::string& body);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace bench
