#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

/// What both ends of the local channel share: records, limits and error numbers.
namespace lpc {

/// Header keys and values, UTF-8. "url", "method" and "protocol" address a request.
using HeaderMap = std::map<std::string, std::string>;

/// Identifies a request among those of the side that sent it; 0 is never used.
using RequestId = std::uint64_t;

/// A request or notification as it arrives. requestId is 0 for a notification, which takes no reply.
struct CallBackData
{
    RequestId requestId = 0;
    HeaderMap headers;
    std::string body;
    /// While any copy of it lives, the data counts against the receive queue's limit: whoever keeps data
    /// for later keeps this with it. May go in any thread; empty at a server.
    std::shared_ptr<const void> receipt{};

    /// The header's value; empty when it is missing.
    std::string Header(const std::string& key) const
    {
        const auto found = headers.find(key);
        return found == headers.end() ? std::string() : found->second;
    }
};

/// A request or notification as it is sent.
struct Message
{
    HeaderMap headers;
    std::string body;
};

/// The answer to a request: requestId is that of the request.
struct ReplyData
{
    RequestId requestId = 0;
    HeaderMap headers;
    std::string body;
};

/// Error numbers of the channel, as GetLPCLastError gives them.
enum Error : int {
    kNoError = 0,
    kNotInitialised = 1001,
    kInvalidArgument = 1002,
    kCannotConnect = 1003, ///< no server of that name, or it belongs to another user
    kRefused = 1004,       ///< the other side speaks another version, or refused the hello
    kNotConnected = 1005,
    kConnectionLost = 1006,
    kTimedOut = 1007,
    kTooLong = 1008, ///< headers or body over the limit
    kCannotListen = 1009,
    kTryAgain = 1015, ///< a queue is full, or the server is not accepting yet
};

/// Headers of an answer that reports an error: the HTTP-style status (absent: 200) and the error number
/// (absent: 0).
constexpr const char* kStatusHeader = "status";
constexpr const char* kErrorCodeHeader = "errorCode";

} // namespace lpc
