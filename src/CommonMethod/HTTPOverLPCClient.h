#pragma once

#include "CommunicationLayer/Transport.h"
#include "LPC_Client/LPC_Client.h"

#include <chrono>
#include <functional>
#include <optional>

namespace comm_method {

/// The transport of all outbound requests: HTTP-style requests over the local channel. Re-entrant.
///
/// An answer of the content type image/jpeg, whole or as the range that "Content-Range" tells, is passed on
/// as it is. Any other answer of no type or of type JSON must be JSON or empty. An answer reports an error
/// with a status other than 2xx or an error number other than 0, in the headers of LPC_Wire/Records.h.
class CHTTPOverLPCClient : public commlayer::ITransport
{
public:
    /// As lpcclient::SendEx and lpcclient::GetLPCLastError.
    using SendFunction =
        std::function<bool(lpcclient::tag_LPCResponseData&, const lpcclient::tag_LPCRequestData&,
                           lpcclient::RequestId&, std::uint32_t)>;
    using LastErrorFunction = std::function<int()>;
    using PauseFunction = std::function<void(std::chrono::milliseconds)>;

    /// Attempts in all for a request that may be retried, and the wait between two of them: time for the
    /// library's thread to empty a full queue.
    static constexpr int kAttempts = 3;
    static constexpr std::chrono::milliseconds kPause{20};

    CHTTPOverLPCClient();
    CHTTPOverLPCClient(SendFunction send, LastErrorFunction lastError, PauseFunction pause);

    [[nodiscard]] bool request(commlayer::RspInfos& out, const commlayer::RequestParams& in,
                               bool retry) override;

private:
    /// The error number with which the last attempt failed; nothing when one succeeded.
    std::optional<int> Send(lpcclient::tag_LPCResponseData& answer, const commlayer::RequestParams& in,
                            bool retry);

    SendFunction m_send;
    LastErrorFunction m_lastError;
    PauseFunction m_pause;
};

} // namespace comm_method
