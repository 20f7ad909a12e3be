#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace commlayer {

using Headers = std::map<std::string, std::string>;

/// A request of this component.
struct RequestParams
{
    std::string url;
    std::string method;             ///< HTTP method, for example "GET"
    std::string body;               ///< JSON; empty for none
    std::uint32_t timeoutMs = 5000; ///< for one attempt; 0: as long as the connection lives
    std::string range; ///< a part of a picture, as the header "Range" has it; empty for the whole
};

/// The answer to it.
struct RspInfos
{
    int status = 0;    ///< HTTP status; 0 when there was no answer
    int errorCode = 0; ///< the answering side's error number, or the transport's when there was no answer
    Headers headers;
    std::string body;

    /// The header's value; empty when it is missing.
    std::string Header(const std::string& key) const
    {
        const auto found = headers.find(key);
        return found == headers.end() ? std::string() : found->second;
    }
};

/// Last-error numbers of this layer, beside those of the transport.
enum RequestError : int {
    kNoTransport = 2001,   ///< the layer is not initialised
    kBadAnswer = 2002,     ///< the answer is not what the request asks for
    kBadIdentifier = 2003, ///< an identifier that cannot stand in a url
};

/// Carries a request to the framework and waits for the answer.
class ITransport
{
public:
    virtual ~ITransport() = default;

    /// False when there is no answer, or one that reports an error; the reason has then been logged and is
    /// the calling thread's last error (Base/Error.h). With retry, a request that could not be queued is
    /// tried again. Any thread.
    [[nodiscard]] virtual bool request(RspInfos& answer, const RequestParams& params, bool retry) = 0;
};

} // namespace commlayer
