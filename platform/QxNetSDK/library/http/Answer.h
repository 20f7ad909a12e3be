#pragma once

#include "QxNetSDK/library/Failure.h"
#include "QxNetSDK/library/http/Request.h"

#include <cstddef>
#include <memory>
#include <string>

namespace sdk {

/// What a device answered: that of its headers which means something, and the body.
struct Answer
{
    unsigned status = 0;
    bool keepsAlive = false;
    std::string session;   ///< "ended", or 32 hexadecimal digits
    std::string challenge; ///< the first digest challenge that can be answered
    Failure refusal;       ///< why, of an answer of 400 or above; none for 401
    std::string body;      ///< of an answer that was expected
};

/// Puts an answer together from the bytes that come, without trusting any of them and without keeping more
/// than the request expects.
class CAnswerReader
{
public:
    explicit CAnswerReader(const ExpectedAnswer& expected);
    ~CAnswerReader();
    CAnswerReader(const CAnswerReader&) = delete;
    CAnswerReader& operator=(const CAnswerReader&) = delete;

    /// Takes the next bytes. NOT_A_DEVICE, VERSION, TOO_LONG, WRONG_SIZE or UNREADABLE; then the reader and
    /// the connection are of no more use. So are they when bytes come behind the answer, which is
    /// NOT_A_DEVICE.
    Failure Take(const char* data, std::size_t size);

    bool HasBegun() const { return m_hasBegun; }
    bool IsComplete() const { return m_isComplete; }
    /// When it is complete. 400 or above, or of the expected status and size.
    Answer& Result() { return m_answer; }

private:
    struct Parser;

    Failure TakeHead(const char* data, std::size_t size);
    Failure TakeBody(const char* data, std::size_t size);
    Failure ReadHead();
    Failure CheckFraming();
    Failure ExpectBody(std::uint64_t length);

    const ExpectedAnswer m_expected;
    std::unique_ptr<Parser> m_parser;
    Answer m_answer;
    std::uint32_t m_bodyLeft = 0;
    bool m_isExpected = false; ///< the body is kept
    bool m_hasBegun = false;
    bool m_isComplete = false;
};

} // namespace sdk
