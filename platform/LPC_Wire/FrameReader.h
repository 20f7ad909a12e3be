#pragma once

#include "LPC_Wire/Frame.h"
#include "LPC_Wire/Span.h"

#include <array>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace lpc {

/// A message as it came off the wire.
struct WireMessage
{
    Kind kind = Kind::Request;
    RequestId id = 0;
    HeaderMap headers;
    std::string body;
};

/// Takes the bytes of one connection, cut anywhere, and gives its messages. Trusts no length: memory grows
/// with what has arrived, never with what was announced. One thread at a time.
class CFrameReader
{
public:
    CFrameReader();

    /// Where the next bytes go, in this order: the rest of a long body straight to its place, then the
    /// buffer. Valid until Commit.
    std::array<MutableSpan, 2> Room();

    /// Tells how many bytes were put there.
    void Commit(std::size_t bytes);

    /// The next complete message. False when more bytes are needed or there is a fault.
    bool Next(WireMessage& message);

    /// Why the connection has to be closed; nothing more is read after a fault.
    lpc::Fault GetFault() const { return m_fault; }

    /// Whether the bytes so far end inside a message.
    bool InsideMessage() const { return m_state != State::Head || m_begin != m_end || !m_partials.empty(); }

    /// Bytes that have arrived of bodies whose messages are not complete.
    std::size_t UnfinishedBytes() const { return m_partialBytes + m_current.used; }

    /// Gives a body back whose memory may serve for the next long one.
    void Recycle(std::string&& body);

private:
    enum class State { Head, Headers, Body };

    struct Partial
    {
        WireMessage message;
        std::size_t used = 0; ///< bytes of the body so far; the string itself may be longer
    };
    using PartialKey = std::pair<Kind, RequestId>;

    bool Step(WireMessage& message, bool& complete);
    bool StepHead();
    bool StepHeaders();
    bool StepBody(WireMessage& message, bool& complete);
    bool BeginFrame();
    bool ContinueBody();
    bool KeepPartial();
    void Finish(WireMessage& message);
    void GrowBody();
    void Compact();
    bool Fail(lpc::Fault fault);

    std::size_t Available() const { return m_end - m_begin; }

    std::unique_ptr<char[]> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::size_t m_direct = 0; ///< bytes of the last Room that lie in the body

    State m_state = State::Head;
    FrameHead m_head;
    std::size_t m_left = 0; ///< bytes of this frame's body still to come
    Partial m_current;
    std::map<PartialKey, Partial> m_partials;
    std::size_t m_partialBytes = 0;
    std::string m_spare;
    bool m_expectLong = false; ///< the last frame was long, so the next may be
    lpc::Fault m_fault = lpc::Fault::None;
};

} // namespace lpc
