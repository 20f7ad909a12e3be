#include "LPC_Wire/FrameReader.h"

#include "LPC_Wire/HeaderCodec.h"
#include "LPC_Wire/Limits.h"

#include <algorithm>
#include <cstring>

namespace lpc {
namespace {

/// Holds the head and the headers of any frame, and many small frames at once.
constexpr std::size_t kBufferBytes = 128 * kKiB;

/// Bodies from this size on take over memory that was given back; one step of growth.
constexpr std::size_t kLongBody = 64 * kKiB;

/// What is read ahead where a long body is expected: its head, so that the body goes straight to its place.
constexpr std::size_t kReadAhead = 4 * kKiB;

/// Larger memory is not kept for the next body.
constexpr std::size_t kMaxSpare = 4 * kMiB;

} // namespace

CFrameReader::CFrameReader() : m_buffer(new char[kBufferBytes]) {}

std::array<MutableSpan, 2> CFrameReader::Room()
{
    Compact();
    m_direct = 0;
    if (m_state != State::Body || Available() > 0) {
        const std::size_t room = kBufferBytes - m_end;
        const bool readAhead = m_expectLong && m_end == 0;
        return {{{m_buffer.get() + m_end, readAhead ? kReadAhead : room}, {}}};
    }
    GrowBody();
    std::string& body = m_current.message.body;
    m_direct = std::min(m_left, body.size() - m_current.used);
    return {{{body.data() + m_current.used, m_direct}, {m_buffer.get(), kReadAhead}}};
}

void CFrameReader::Commit(std::size_t bytes)
{
    const std::size_t direct = std::min(bytes, m_direct);
    m_current.used += direct;
    m_left -= direct;
    m_end += bytes - direct;
    m_direct = 0;
}

bool CFrameReader::Next(WireMessage& message)
{
    bool complete = false;
    while (m_fault == lpc::Fault::None && !complete)
        if (!Step(message, complete))
            break;
    return complete;
}

bool CFrameReader::Step(WireMessage& message, bool& complete)
{
    switch (m_state) {
    case State::Head:
        return StepHead();
    case State::Headers:
        return StepHeaders();
    default:
        return StepBody(message, complete);
    }
}

bool CFrameReader::StepHead()
{
    if (Available() < kFrameHeadBytes)
        return false;
    const lpc::Fault fault = ReadFrameHead(m_buffer.get() + m_begin, m_head);
    if (fault != lpc::Fault::None)
        return Fail(fault);
    m_begin += kFrameHeadBytes;
    m_expectLong = m_head.bodyBytes >= kLongBody / 2;
    return m_head.Continues() ? ContinueBody() : BeginFrame();
}

bool CFrameReader::BeginFrame()
{
    if (m_partials.count({m_head.kind, m_head.id}) != 0)
        return Fail(lpc::Fault::Continuation);
    m_current.message.kind = m_head.kind;
    m_current.message.id = m_head.id;
    m_current.used = 0;
    m_left = m_head.bodyBytes;
    m_state = State::Headers;
    return true;
}

bool CFrameReader::ContinueBody()
{
    const auto found = m_partials.find({m_head.kind, m_head.id});
    if (found == m_partials.end())
        return Fail(lpc::Fault::Continuation);
    if (found->second.used + m_head.bodyBytes > kMaxBody)
        return Fail(lpc::Fault::BodyTooLong);
    m_current = std::move(found->second);
    m_partials.erase(found);
    m_partialBytes -= m_current.used;
    m_left = m_head.bodyBytes;
    m_state = State::Body;
    return true;
}

bool CFrameReader::StepHeaders()
{
    if (Available() < m_head.headerBytes)
        return false;
    if (!ReadHeaders(m_buffer.get() + m_begin, m_head.headerBytes, m_current.message.headers))
        return Fail(lpc::Fault::Headers);
    m_begin += m_head.headerBytes;
    if (m_left >= kLongBody)
        m_current.message.body.swap(m_spare);
    m_state = State::Body;
    return true;
}

bool CFrameReader::StepBody(WireMessage& message, bool& complete)
{
    std::string& body = m_current.message.body;
    if (body.empty() && m_left <= Available()) {
        body.assign(m_buffer.get() + m_begin, m_left);
        m_begin += m_left;
        m_current.used = m_left;
        m_left = 0;
    }
    while (m_left > 0 && Available() > 0) {
        GrowBody();
        const std::size_t bytes = std::min({m_left, Available(), body.size() - m_current.used});
        std::memcpy(body.data() + m_current.used, m_buffer.get() + m_begin, bytes);
        m_begin += bytes;
        m_current.used += bytes;
        m_left -= bytes;
    }
    if (m_left > 0)
        return false;
    m_state = State::Head;
    if (m_head.MoreFollows())
        return KeepPartial();
    Finish(message);
    complete = true;
    return true;
}

bool CFrameReader::KeepPartial()
{
    if (m_partials.size() >= kMaxPartialBodies || m_partialBytes + m_current.used > kMaxPartialBytes)
        return Fail(lpc::Fault::TooManyBodies);
    m_partialBytes += m_current.used;
    m_partials.emplace(PartialKey{m_head.kind, m_head.id}, std::move(m_current));
    m_current = {};
    return true;
}

void CFrameReader::Finish(WireMessage& message)
{
    std::string& body = m_current.message.body;
    body.resize(m_current.used);
    if (body.capacity() > kLongBody && body.capacity() / 4 > body.size())
        body.shrink_to_fit();
    message = std::move(m_current.message);
    m_current = {};
}

void CFrameReader::GrowBody()
{
    std::string& body = m_current.message.body;
    if (body.size() > m_current.used)
        return;
    const std::size_t step = std::max(m_current.used, kLongBody);
    body.resize(m_current.used + std::min(m_left, step));
}

void CFrameReader::Compact()
{
    if (m_begin == 0)
        return;
    std::memmove(m_buffer.get(), m_buffer.get() + m_begin, Available());
    m_end -= m_begin;
    m_begin = 0;
}

void CFrameReader::Recycle(std::string&& body)
{
    if (body.capacity() >= kLongBody && body.capacity() <= kMaxSpare && body.capacity() > m_spare.capacity())
        m_spare.swap(body);
}

bool CFrameReader::Fail(lpc::Fault fault)
{
    m_fault = fault;
    return false;
}

} // namespace lpc
