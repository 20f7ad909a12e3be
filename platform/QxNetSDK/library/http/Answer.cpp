#include "QxNetSDK/library/http/Answer.h"

#include "QxNetSDK/library/http/Headers.h"
#include "QxNetSDK/library/http/Limits.h"

#include <algorithm>
#include <boost/asio/buffer.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/parser.hpp>
#include <limits>

namespace sdk {

namespace http = boost::beast::http;

namespace {

Failure NotADevice(unsigned status)
{
    return {QXNET_ERROR_NOT_A_DEVICE, status};
}

std::string_view View(boost::beast::string_view text)
{
    return {text.data(), text.size()};
}

Failure FailureOfHead(const boost::system::error_code& error)
{
    const bool isTooLong = error == http::error::header_limit || error == http::error::buffer_overflow;
    return isTooLong ? Failure{QXNET_ERROR_TOO_LONG} : NotADevice(0);
}

} // namespace

/// Only reads the head: a body is counted and copied here, and is nothing that has to be understood.
struct CAnswerReader::Parser
{
    http::response_parser<http::empty_body> head;
    std::string unread; ///< of the head, at most its limit
};

CAnswerReader::CAnswerReader(const ExpectedAnswer& expected) : m_expected(expected), m_parser(new Parser)
{
    m_parser->head.header_limit(kMostHeaderBytes);
    // Boost 1.74 takes no limit at all as a limit of 0.
    m_parser->head.body_limit(std::numeric_limits<std::uint64_t>::max());
    m_parser->head.eager(false);
}

CAnswerReader::~CAnswerReader() = default;

Failure CAnswerReader::Take(const char* data, std::size_t size)
{
    m_hasBegun = m_hasBegun || size > 0;
    return m_parser ? TakeHead(data, size) : TakeBody(data, size);
}

Failure CAnswerReader::TakeHead(const char* data, std::size_t size)
{
    std::string& unread = m_parser->unread;
    unread.append(data, size);
    boost::system::error_code error;
    while (!m_parser->head.is_header_done()) {
        const std::size_t used = m_parser->head.put(boost::asio::buffer(unread), error);
        unread.erase(0, used);
        if (error == http::error::need_more)
            return unread.size() > kMostHeaderBytes ? Failure{QXNET_ERROR_TOO_LONG} : Failure{};
        if (error)
            return FailureOfHead(error);
    }
    if (const Failure failure = ReadHead())
        return failure;
    const std::string behind = std::move(unread);
    m_parser.reset();
    return TakeBody(behind.data(), behind.size());
}

Failure CAnswerReader::ReadHead()
{
    const auto& head = m_parser->head.get();
    m_answer.status = head.result_int();
    if (head.version() != 11)
        return NotADevice(m_answer.status);
    CHeaders headers(m_answer.status);
    for (const auto& field : head) {
        if (const Failure failure = headers.Add(View(field.name_string()), View(field.value())))
            return failure;
    }
    if (const Failure failure = headers.Read(m_answer))
        return failure;
    m_answer.keepsAlive = m_parser->head.keep_alive();
    return CheckFraming();
}

Failure CAnswerReader::CheckFraming()
{
    const unsigned status = m_answer.status;
    const auto length = m_parser->head.content_length();
    if (m_parser->head.chunked() || (!length && status != 204) || (status == 204 && length.value_or(0) != 0))
        return NotADevice(status);
    if (status >= 400)
        return length.value() > kMostRefusalBytes ? Failure{QXNET_ERROR_TOO_LONG}
                                                  : ExpectBody(length.value());
    if (status != m_expected.status)
        return NotADevice(status);
    const std::uint64_t size = length.value_or(0);
    const bool mayVary = m_expected.leastBytes != m_expected.mostBytes;
    if (size > (mayVary ? m_expected.mostBytes : kMostBodyBytes))
        return {QXNET_ERROR_TOO_LONG};
    if (size < m_expected.leastBytes || size > m_expected.mostBytes)
        return {QXNET_ERROR_WRONG_SIZE, static_cast<std::uint32_t>(size)};
    m_isExpected = true;
    m_answer.body.reserve(size);
    return ExpectBody(size);
}

Failure CAnswerReader::ExpectBody(std::uint64_t length)
{
    m_bodyLeft = static_cast<std::uint32_t>(length);
    return {};
}

Failure CAnswerReader::TakeBody(const char* data, std::size_t size)
{
    if (size > m_bodyLeft)
        return NotADevice(m_answer.status);
    if (m_isExpected)
        m_answer.body.append(data, size);
    m_bodyLeft -= static_cast<std::uint32_t>(size);
    m_isComplete = m_bodyLeft == 0;
    return {};
}

} // namespace sdk
