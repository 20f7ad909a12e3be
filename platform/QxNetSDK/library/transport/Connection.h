#pragma once

#include "QxNetSDK/library/http/Answer.h"
#include "QxNetSDK/library/transport/TlsStream.h"

namespace sdk {

/// Where a device is.
struct DeviceEndpoint
{
    std::string address;
    std::uint16_t port = 0;
    bool useTls = false;
};

/// One connection to a device, for one exchange after the other. One thread at a time.
class CConnection
{
public:
    /// Connects, and agrees on TLS where it is wanted. RESOLVE, UNREACHABLE, CONNECT_TIMEOUT, CONNECTION_LOST
    /// or TLS; anything when it was interrupted.
    static Failure Open(const DeviceEndpoint& device, Deadline deadline, CInterrupt& interrupt,
                        std::unique_ptr<CConnection>& connection);

    /// Of the device's certificate; empty without TLS.
    const std::string& Fingerprint() const { return m_fingerprint; }

    /// Whether a request may be sent: the device has neither closed the connection nor said anything unasked.
    /// NOT_A_DEVICE or CONNECTION_LOST.
    Failure CheckQuiet();

    /// Sends bytes of a request and reads the answer into the reader. CONNECTION_LOST, ANSWER_TIMEOUT, or
    /// what the reader found. An answer that comes before the whole request was sent is read as well; it must
    /// refuse.
    Failure Exchange(const std::string& request, CAnswerReader& reader, Deadline deadline,
                     CInterrupt& interrupt);

    // An exchange by hand, for a request that is made while it is sent.

    /// For the guard that wakes it.
    CSocket& Socket() { return m_socket; }
    /// isSent: all of it. It is not when an answer came, or when the connection broke, which Receive then
    /// tells.
    Failure Send(const std::string& request, CAnswerReader& reader, Deadline deadline, bool& isSent);
    Failure Receive(CAnswerReader& reader, Deadline deadline);
    /// Takes what of an answer is there, without waiting.
    Failure Look(CAnswerReader& reader);

private:
    Failure ShakeHands(const DeviceEndpoint& device, Deadline deadline);
    Failure TakeWhatCame(CAnswerReader& reader, Io& io);
    Failure Lost() const;

    CSocket m_socket;
    std::unique_ptr<IStream> m_stream;
    std::string m_fingerprint;
};

} // namespace sdk
