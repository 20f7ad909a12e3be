#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace simulator {

/// Octets that are shared and never changed.
using Octets = std::shared_ptr<const std::string>;

/// One request as it came, within the limits of the protocol.
struct HttpRequest
{
    std::string method;
    std::string path;  ///< of the target, as sent
    std::string query; ///< what stands behind the "?"
    std::string authorization;
    std::string session; ///< header Vantor-Session
    std::string version; ///< header Vantor-Protocol
    std::string body;    ///< of an upload: empty
};

/// In which unusual way an answer leaves; by default in none.
struct Delivery
{
    std::chrono::milliseconds delay{0};         ///< before its first octet
    std::chrono::milliseconds dripEvery{0};     ///< one octet each; 0: at once
    std::optional<std::size_t> cutAfter;        ///< so many octets of the whole, then the connection ends
    std::optional<std::uint64_t> claimedLength; ///< Content-Length, whatever the body has
    std::optional<std::string> insteadOfAnswer; ///< these octets, then the connection ends
    std::vector<std::string> moreHeaders;       ///< whole lines
    std::string version = "1";                  ///< header Vantor-Protocol
    bool silent = false;                        ///< nothing is ever sent
    bool closes = false;                        ///< the connection ends afterwards
    bool drops = false;                         ///< the connection ends without an answer
};

struct HttpAnswer
{
    unsigned status = 200;
    std::vector<std::pair<const char*, std::string>> headers;
    Octets body; ///< null: none
    Delivery delivery;
};

/// Takes the body of one upload, on one thread at a time. Its end without Finish means that it was cut off.
class IUpload
{
public:
    virtual ~IUpload() = default;
    /// False when nothing more can be kept.
    [[nodiscard]] virtual bool Write(std::string_view octets) = 0;
    virtual HttpAnswer Finish() = 0;
};

/// What serves requests; called on several threads at once.
class IHttpHandler
{
public:
    virtual ~IHttpHandler() = default;
    /// Whether a connection that was just made is kept.
    virtual bool TakesConnection() = 0;
    virtual HttpAnswer Answer(const HttpRequest& request) = 0;
    /// An upload, or why there is none.
    using Begun = std::variant<HttpAnswer, std::unique_ptr<IUpload>>;
    /// For a request with a chunked body, before that is read.
    virtual Begun BeginUpload(const HttpRequest& request) = 0;
};

/// An answer without a body of the error numbers that the protocol knows.
HttpAnswer Refusal(unsigned status, unsigned error, unsigned module = 0, std::optional<unsigned> own = {});

/// The octets of an answer before its body.
std::string WireHead(const HttpAnswer& answer);

} // namespace simulator
