#include "BareClient.h"

#include "QxNetSDK/library/http/Digest.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http.hpp>
#include <cstdio>
#include <cstdlib>

namespace bench {

namespace http = boost::beast::http;
using boost::asio::ip::tcp;
using Request = http::request<http::string_body>;
using Response = http::response<http::string_body>;

namespace {

constexpr char kSession[] = "/vantor/device/v1/session";

void Expect(const Response& response, unsigned status)
{
    if (response.result_int() == status)
        return;
    std::fprintf(stderr, "the device answered %u instead of %u\n", response.result_int(), status);
    std::exit(1);
}

} // namespace

struct CBareClient::State
{
    boost::asio::io_context context;
    tcp::socket socket{context};
    boost::beast::flat_buffer buffer;
    std::string session;

    Response Exchange(http::verb verb, const std::string& target, const std::string& body,
                      const std::string& authorization = {})
    {
        Request request(verb, target, 11, body);
        request.set(http::field::host, "127.0.0.1");
        request.set("Vantor-Protocol", "1");
        if (!session.empty())
            request.set("Vantor-Session", session);
        if (!authorization.empty())
            request.set(http::field::authorization, authorization);
        request.content_length(body.size());
        http::write(socket, request);
        Response response;
        http::read(socket, buffer, response);
        return response;
    }
};

CBareClient::CBareClient(std::uint16_t port) : m_state(new State)
{
    m_state->socket.connect(tcp::endpoint(boost::asio::ip::address_v4::loopback(), port));
    m_state->socket.set_option(tcp::no_delay(true));
    const Response asked = m_state->Exchange(http::verb::post, kSession, {});
    Expect(asked, 401);
    sdk::DigestChallenge challenge;
    if (!sdk::ReadChallenge(std::string(asked[http::field::www_authenticate]), challenge))
        std::exit(1);
    const std::string nonce = sdk::NewClientNonce();
    const Response answer = m_state->Exchange(
        http::verb::post, kSession, {},
        sdk::DigestAuthorization(challenge, {"admin", "vantor-device", "POST", kSession, nonce}));
    Expect(answer, 200);
    m_state->session = std::string(answer["Vantor-Session"]);
}

CBareClient::~CBareClient() = default;

std::string CBareClient::Get(const std::string& target)
{
    Response response = m_state->Exchange(http::verb::get, target, {});
    Expect(response, 200);
    return std::move(response.body());
}

void CBareClient::Put(const std::string& target, const std::string& body)
{
    Expect(m_state->Exchange(http::verb::put, target, body), 204);
}

} // namespace bench
