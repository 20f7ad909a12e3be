#pragma once

#include "QxNetSDK/library/transport/Stream.h"

#include <string>

using SSL = struct ssl_st;

namespace sdk {

/// TLS 1.2 or later over a socket, as client. Who the other side is, is not looked at here: see Fingerprint.
class CTlsStream : public IStream
{
public:
    explicit CTlsStream(CSocket& socket) : m_socket(socket) {}
    ~CTlsStream() override;

    /// Agrees on keys. host is named to the server unless it is an IP address. TLS, CONNECTION_LOST or
    /// CONNECT_TIMEOUT.
    Failure ShakeHands(const std::string& host, Deadline deadline);

    /// SHA-256 of the certificate that the other side showed, in lower-case hexadecimal digits; empty when it
    /// showed none.
    std::string Fingerprint() const;

    Io Receive(char* data, std::size_t size, std::size_t& came) override;
    Io Send(const char* data, std::size_t size, std::size_t& sent) override;
    unsigned Wanted() const override { return m_wanted; }

private:
    struct Bio;

    void BeginAttempt();
    Io Explain(int result);

    CSocket& m_socket;
    SSL* m_ssl = nullptr;
    unsigned m_wanted = system::kReadable;
    int m_readsLeft = 0; ///< of the attempt under way
};

} // namespace sdk
