#pragma once

#include "LPC_Wire/Records.h"

#include <cstddef>
#include <cstdint>

namespace lpc {

enum class Kind : std::uint8_t {
    Hello = 1,
    HelloAnswer = 2,
    Request = 3,
    Notification = 4,
    Answer = 5,
    Refusal = 6, ///< instead of an answer: the error number of a request that was not taken
};

/// What can be wrong with bytes that a peer sent.
enum class Fault {
    None,
    Magic,
    Version,
    Kind,
    Flags,
    RequestId,
    HeaderLength,
    BodyLength,
    Headers,
    Continuation,
    BodyTooLong,
    TooManyBodies,
    Order,
    Hello,
    Count_,
};

/// The fault in words for a log line.
const char* FaultText(Fault fault);

constexpr std::size_t kFrameHeadBytes = 24;
constexpr std::uint16_t kMoreFollows = 1;

/// The fixed part at the start of every frame.
struct FrameHead
{
    Kind kind = Kind::Request;
    std::uint16_t flags = 0;
    RequestId id = 0;
    std::uint32_t headerBytes = 0; ///< 0 in a frame that continues a body
    std::uint32_t bodyBytes = 0;

    bool MoreFollows() const { return (flags & kMoreFollows) != 0; }
    bool Continues() const { return headerBytes == 0; }
};

/// Writes kFrameHeadBytes bytes.
void WriteFrameHead(const FrameHead& head, char* out);

/// Reads kFrameHeadBytes bytes and checks every field against its limits; head is filled only without a
/// fault.
Fault ReadFrameHead(const char* in, FrameHead& head);

} // namespace lpc
