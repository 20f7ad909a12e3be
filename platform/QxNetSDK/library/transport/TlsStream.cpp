#include "QxNetSDK/library/transport/TlsStream.h"

#include "QxNetSDK/library/http/Hexadecimal.h"

#include <openssl/err.h>
#include <openssl/ssl.h>

namespace sdk {

namespace {

// Of the socket in one attempt. OpenSSL reads on while there are messages that it passes over, and a device
// could send such for ever; two reads make a record.
constexpr int kMostReads = 64;

} // namespace

// OpenSSL's own socket BIO could raise SIGPIPE in the caller's program, so that TLS writes through ours.
struct CTlsStream::Bio
{
    static CTlsStream& StreamOf(BIO* bio) { return *static_cast<CTlsStream*>(BIO_get_data(bio)); }
    static int Write(BIO* bio, const char* data, int size);
    static int Read(BIO* bio, char* data, int size);
    static long Control(BIO*, int command, long, void*) { return command == BIO_CTRL_FLUSH ? 1 : 0; }
    static BIO_METHOD* Method();
};

int CTlsStream::Bio::Write(BIO* bio, const char* data, int size)
{
    std::size_t sent = 0;
    BIO_clear_retry_flags(bio);
    const Io io = StreamOf(bio).m_socket.Send(data, static_cast<std::size_t>(size), sent);
    if (io == Io::Blocked)
        BIO_set_retry_write(bio);
    return io == Io::Done ? static_cast<int>(sent) : -1;
}

int CTlsStream::Bio::Read(BIO* bio, char* data, int size)
{
    std::size_t came = 0;
    BIO_clear_retry_flags(bio);
    CTlsStream& stream = StreamOf(bio);
    const Io io = stream.m_readsLeft-- > 0
                      ? stream.m_socket.Receive(data, static_cast<std::size_t>(size), came)
                      : Io::Blocked;
    if (io == Io::Blocked)
        BIO_set_retry_read(bio);
    if (io == Io::Ended)
        return 0;
    return io == Io::Done ? static_cast<int>(came) : -1;
}

BIO_METHOD* CTlsStream::Bio::Method()
{
    static BIO_METHOD* const method = [] {
        BIO_METHOD* made = BIO_meth_new(BIO_get_new_index() | BIO_TYPE_SOURCE_SINK, "device socket");
        BIO_meth_set_write(made, Write);
        BIO_meth_set_read(made, Read);
        BIO_meth_set_ctrl(made, Control);
        return made;
    }();
    return method;
}

namespace {

SSL_CTX* ClientContext()
{
    static SSL_CTX* const context = [] {
        SSL_CTX* made = SSL_CTX_new(TLS_client_method());
        SSL_CTX_set_min_proto_version(made, TLS1_2_VERSION);
        // Certificates are pinned, not signed by anybody whom this computer knows.
        SSL_CTX_set_verify(made, SSL_VERIFY_NONE, nullptr);
        SSL_CTX_set_mode(made, SSL_MODE_ENABLE_PARTIAL_WRITE | SSL_MODE_ACCEPT_MOVING_WRITE_BUFFER);
        SSL_CTX_set_session_cache_mode(made, SSL_SESS_CACHE_OFF);
        return made;
    }();
    return context;
}

bool IsNumericAddress(const std::string& host)
{
    std::vector<system::Endpoint> ignored;
    return system::LookUp(host, 0, true, ignored) == 0;
}

} // namespace

CTlsStream::~CTlsStream()
{
    SSL_free(m_ssl);
}

void CTlsStream::BeginAttempt()
{
    ERR_clear_error();
    m_readsLeft = kMostReads;
}

Failure CTlsStream::ShakeHands(const std::string& host, Deadline deadline)
{
    ERR_clear_error();
    m_ssl = SSL_new(ClientContext());
    BIO* bio = m_ssl ? BIO_new(Bio::Method()) : nullptr;
    if (!bio)
        return {QXNET_ERROR_MEMORY};
    BIO_set_data(bio, this);
    BIO_set_init(bio, 1);
    SSL_set_bio(m_ssl, bio, bio);
    if (!IsNumericAddress(host))
        SSL_set_tlsext_host_name(m_ssl, host.c_str());
    for (;;) {
        BeginAttempt();
        const int result = SSL_connect(m_ssl);
        if (result == 1)
            return {};
        if (Explain(result) != Io::Blocked)
            return {QXNET_ERROR_TLS, static_cast<std::uint32_t>(ERR_GET_REASON(ERR_peek_last_error()))};
        if (m_socket.Wait(m_wanted, deadline) == 0)
            return {QXNET_ERROR_CONNECT_TIMEOUT};
    }
}

std::string CTlsStream::Fingerprint() const
{
    X509* certificate = SSL_get1_peer_certificate(m_ssl);
    if (!certificate)
        return {};
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned length = 0;
    const bool isMade = X509_digest(certificate, EVP_sha256(), digest, &length) == 1;
    X509_free(certificate);
    return isMade ? Hexadecimal(digest, length) : std::string();
}

Io CTlsStream::Receive(char* data, std::size_t size, std::size_t& came)
{
    BeginAttempt();
    came = 0;
    const int result = SSL_read_ex(m_ssl, data, size, &came);
    return result == 1 ? Io::Done : Explain(result);
}

Io CTlsStream::Send(const char* data, std::size_t size, std::size_t& sent)
{
    BeginAttempt();
    sent = 0;
    const int result = SSL_write_ex(m_ssl, data, size, &sent);
    return result == 1 ? Io::Done : Explain(result);
}

Io CTlsStream::Explain(int result)
{
    switch (SSL_get_error(m_ssl, result)) {
    case SSL_ERROR_WANT_READ:
        m_wanted = system::kReadable;
        return Io::Blocked;
    case SSL_ERROR_WANT_WRITE:
        m_wanted = system::kWritable;
        return Io::Blocked;
    case SSL_ERROR_ZERO_RETURN:
        return Io::Ended;
    default:
        return Io::Lost;
    }
}

} // namespace sdk
