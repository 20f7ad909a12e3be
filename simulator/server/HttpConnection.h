#pragma once

#include "simulator/server/Http.h"

#include <boost/asio/ssl.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl.hpp>

#include <array>

/// One connection of the server. Included by HttpServer.cpp alone, since it costs much to compile.
namespace simulator {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = boost::beast::http;
using ErrorCode = boost::system::error_code;

constexpr std::chrono::seconds kIdleTime{60};
constexpr std::chrono::seconds kSendTime{60};
constexpr std::size_t kHeaderLimit = 16384;
constexpr std::size_t kLineLimit = 8192;
constexpr std::ptrdiff_t kHeaderLines = 64;
constexpr std::uint64_t kBodyLimit = 16 * 1024 * 1024;
constexpr std::size_t kPiece = 64 * 1024;

/// What the server keeps of a connection.
class IConnection
{
public:
    virtual ~IConnection() = default;
    /// From any thread.
    virtual void Abort() = 0;
};

using PlainStream = beast::tcp_stream;
using TlsStream = beast::ssl_stream<beast::tcp_stream>;

/// Reads requests one by one and writes their answers, all on the thread of its stream. It lives as long as
/// something of it is under way.
template<class Stream>
class CConnection : public IConnection, public std::enable_shared_from_this<CConnection<Stream>>
{
public:
    template<class... Arguments>
    CConnection(IHttpHandler& handler, Arguments&&... stream)
        : m_handler(handler), m_stream(std::forward<Arguments>(stream)...), m_timer(m_stream.get_executor())
    {}

    /// From any thread.
    void Begin()
    {
        asio::post(m_stream.get_executor(), [self = this->shared_from_this()] { self->Run(); });
    }

    void Abort() override
    {
        asio::post(m_stream.get_executor(), [self = this->shared_from_this()] { self->Close(); });
    }

private:
    void Run()
    {
        ErrorCode ignored;
        Tcp().socket().set_option(asio::ip::tcp::no_delay(true), ignored);
        Tcp().expires_after(kIdleTime);
        if constexpr (std::is_same_v<Stream, TlsStream>)
            m_stream.async_handshake(asio::ssl::stream_base::server, Then(&CConnection::OnHandshake));
        else
            ReadHead();
    }

    using Parser = http::request_parser<http::buffer_body>;

    beast::tcp_stream& Tcp() { return beast::get_lowest_layer(m_stream); }

    /// A handler that keeps the connection alive and calls the member.
    template<class... Arguments>
    auto Then(void (CConnection::*member)(Arguments...))
    {
        return [self = this->shared_from_this(), member](Arguments... arguments) {
            ((*self).*member)(arguments...);
        };
    }

    void Close()
    {
        m_timer.cancel();
        Tcp().close();
    }

    void OnHandshake(ErrorCode error)
    {
        if (!error)
            ReadHead();
    }

    void ReadHead()
    {
        m_parser.emplace();
        m_parser->header_limit(kHeaderLimit);
        m_parser->body_limit(kBodyLimit);
        m_upload.reset();
        Tcp().expires_after(kIdleTime);
        http::async_read_header(m_stream, m_received, *m_parser, Then(&CConnection::OnHead));
    }

    void OnHead(ErrorCode error, std::size_t)
    {
        if (error)
            return RefuseUnreadable(error);
        const auto& head = m_parser->get();
        if (!WithinLimits(head))
            return Respond(ClosingRefusal(431));
        m_request = {};
        m_request.method = std::string(head.method_string());
        const std::string target(head.target());
        const std::size_t mark = target.find('?');
        m_request.path = target.substr(0, mark);
        m_request.query = mark == std::string::npos ? std::string() : target.substr(mark + 1);
        m_request.authorization = std::string(head[http::field::authorization]);
        m_request.session = std::string(head["Vantor-Session"]);
        m_request.version = std::string(head["Vantor-Protocol"]);
        if (m_parser->chunked())
            return BeginUpload();
        if (m_parser->is_done())
            return Respond(m_handler.Answer(m_request));
        ReadPiece();
    }

    static bool WithinLimits(const http::request_header<>& head)
    {
        if (std::distance(head.begin(), head.end()) > kHeaderLines || head.target().size() > kLineLimit)
            return false;
        return std::all_of(head.begin(), head.end(), [](const auto& field) {
            return field.name_string().size() + field.value().size() <= kLineLimit;
        });
    }

    static HttpAnswer ClosingRefusal(unsigned status)
    {
        HttpAnswer answer = Refusal(status, 502);
        answer.delivery.closes = true;
        return answer;
    }

    /// What is no HTTP or over a limit is told so when there is still somebody to read it.
    void RefuseUnreadable(ErrorCode error)
    {
        if (error == http::error::body_limit)
            return Respond(ClosingRefusal(413));
        if (error == http::error::header_limit)
            return Respond(ClosingRefusal(431));
        const bool isNoHttp = error.category() == http::make_error_code(http::error::bad_method).category();
        if (isNoHttp && error != http::error::end_of_stream && error != http::error::partial_message)
            return Respond(ClosingRefusal(400));
        Close();
    }

    void BeginUpload()
    {
        auto begun = m_handler.BeginUpload(m_request);
        if (auto* refusal = std::get_if<HttpAnswer>(&begun)) {
            refusal->delivery.closes = true;
            return Respond(std::move(*refusal));
        }
        m_upload = std::move(std::get<std::unique_ptr<IUpload>>(begun));
        m_parser->body_limit(boost::none);
        ReadPiece();
    }

    /// Memory grows with what has come, not with what was announced. Somebody may speak as long as they like;
    /// any other request has the time that began with its head.
    void ReadPiece()
    {
        m_piece.resize(kPiece);
        m_parser->get().body().data = m_piece.data();
        m_parser->get().body().size = m_piece.size();
        m_parser->get().body().more = true;
        if (m_upload)
            Tcp().expires_after(kIdleTime);
        http::async_read_some(m_stream, m_received, *m_parser, Then(&CConnection::OnPiece));
    }

    void OnPiece(ErrorCode error, std::size_t)
    {
        if (error && error != http::error::need_buffer)
            return RefuseUnreadable(error);
        const std::string_view piece(m_piece.data(), m_piece.size() - m_parser->get().body().size);
        if (m_upload && !m_upload->Write(piece))
            return Respond(ClosingRefusal(507));
        if (!m_upload)
            m_request.body.append(piece);
        if (!m_parser->is_done())
            return ReadPiece();
        Respond(m_upload ? m_upload->Finish() : m_handler.Answer(m_request));
    }

    void Respond(HttpAnswer answer)
    {
        m_upload.reset();
        m_answer = std::move(answer);
        m_answer.delivery.closes |= !m_parser->is_header_done() || !m_parser->keep_alive();
        const Delivery& delivery = m_answer.delivery;
        if (delivery.drops)
            return Close();
        if (delivery.silent)
            return AwaitEnd();
        if (delivery.delay.count() == 0)
            return Send();
        m_timer.expires_after(delivery.delay);
        m_timer.async_wait(Then(&CConnection::OnDelayEnd));
    }

    void OnDelayEnd(ErrorCode error)
    {
        if (!error)
            Send();
    }

    void Send()
    {
        const Delivery& delivery = m_answer.delivery;
        m_head = WireHead(m_answer);
        Tcp().expires_after(kSendTime);
        if (delivery.cutAfter || delivery.insteadOfAnswer || delivery.dripEvery.count() > 0)
            return SendUnusually();
        const std::array<asio::const_buffer, 2> wire = {
            asio::buffer(m_head), m_answer.body ? asio::buffer(*m_answer.body) : asio::const_buffer()};
        asio::async_write(m_stream, wire, Then(&CConnection::OnSent));
    }

    void OnSent(ErrorCode error, std::size_t)
    {
        if (error)
            return Close();
        if (m_answer.delivery.closes)
            return CloseInOrder();
        ReadHead();
    }

    /// Lets the other side read the whole answer before the connection is gone.
    void CloseInOrder()
    {
        ErrorCode ignored;
        Tcp().socket().shutdown(asio::ip::tcp::socket::shutdown_send, ignored);
        AwaitEnd();
    }

    /// Reads and forgets until the other side ends or the time is over.
    void AwaitEnd()
    {
        m_piece.resize(kPiece);
        Tcp().expires_after(kIdleTime);
        Tcp().async_read_some(asio::buffer(m_piece),
                              [self = this->shared_from_this()](ErrorCode error, std::size_t) {
                                  if (error || ++self->m_forgotten > 1024)
                                      return self->Close();
                                  self->AwaitEnd();
                              });
    }

    void SendUnusually()
    {
        const Delivery& delivery = m_answer.delivery;
        if (m_answer.body)
            m_head += *m_answer.body;
        if (delivery.insteadOfAnswer)
            m_head = *delivery.insteadOfAnswer;
        if (delivery.cutAfter)
            m_head.resize(std::min(m_head.size(), *delivery.cutAfter));
        m_answer.delivery.closes |= delivery.cutAfter || delivery.insteadOfAnswer;
        if (delivery.dripEvery.count() > 0)
            return Drip(0);
        asio::async_write(m_stream, asio::buffer(m_head), Then(&CConnection::OnSent));
    }

    void Drip(std::size_t at)
    {
        if (at == m_head.size())
            return OnSent({}, 0);
        Tcp().expires_after(kSendTime);
        asio::async_write(m_stream, asio::buffer(m_head.data() + at, 1),
                          [self = this->shared_from_this(), at](ErrorCode error, std::size_t) {
                              if (error)
                                  return self->Close();
                              self->m_timer.expires_after(self->m_answer.delivery.dripEvery);
                              self->m_timer.async_wait([self, at](ErrorCode stopped) {
                                  if (!stopped)
                                      self->Drip(at + 1);
                              });
                          });
    }

    IHttpHandler& m_handler;
    Stream m_stream;
    asio::steady_timer m_timer;
    beast::flat_buffer m_received;
    std::optional<Parser> m_parser;
    std::string m_piece;
    HttpRequest m_request;
    std::unique_ptr<IUpload> m_upload;
    HttpAnswer m_answer;
    std::string m_head;
    int m_forgotten = 0;
};

} // namespace simulator
