#include "LPC_Wire/Frame.h"

#include "LPC_Wire/ByteOrder.h"
#include "LPC_Wire/Limits.h"

#include <cstring>

namespace lpc {
namespace {

constexpr char kMagic[4] = {'V', 'L', 'P', 'C'};

constexpr const char* kFaultTexts[] = {
    "no fault",
    "bad magic",
    "unknown version",
    "unknown kind of frame",
    "unknown flags",
    "request id does not fit the kind of frame",
    "header length out of range",
    "body length out of range",
    "malformed headers",
    "frame continues no body, or begins one twice",
    "body too long",
    "too many bodies under way",
    "kind of frame not expected here",
    "malformed hello",
};
static_assert(sizeof kFaultTexts / sizeof *kFaultTexts == static_cast<std::size_t>(Fault::Count_));

bool TakesId(Kind kind)
{
    return kind == Kind::Request || kind == Kind::Answer;
}

bool HasNoId(Kind kind)
{
    return kind == Kind::Hello || kind == Kind::HelloAnswer || kind == Kind::Notification;
}

/// Hello, its answer and a refusal are one frame without a body.
bool IsBare(Kind kind)
{
    return kind == Kind::Hello || kind == Kind::HelloAnswer || kind == Kind::Refusal;
}

Fault CheckLengths(const FrameHead& head)
{
    constexpr std::size_t kCountBytes = 2;
    if (head.headerBytes > kMaxHeaderBytes || (head.headerBytes != 0 && head.headerBytes < kCountBytes))
        return Fault::HeaderLength;
    if (head.bodyBytes > kMaxFrameBody || (IsBare(head.kind) && head.bodyBytes != 0))
        return Fault::BodyLength;
    // A frame of a longer body that brings nothing could be repeated for ever.
    if (head.bodyBytes == 0 && (head.MoreFollows() || head.Continues()))
        return Fault::BodyLength;
    return Fault::None;
}

} // namespace

const char* FaultText(Fault fault)
{
    return kFaultTexts[static_cast<std::size_t>(fault)];
}

void WriteFrameHead(const FrameHead& head, char* out)
{
    std::memcpy(out, kMagic, sizeof kMagic);
    out[4] = static_cast<char>(kProtocolVersion);
    out[5] = static_cast<char>(head.kind);
    PutNumber(out + 6, head.flags);
    PutNumber(out + 8, head.id);
    PutNumber(out + 16, head.headerBytes);
    PutNumber(out + 20, head.bodyBytes);
}

Fault ReadFrameHead(const char* in, FrameHead& head)
{
    if (std::memcmp(in, kMagic, sizeof kMagic) != 0)
        return Fault::Magic;
    if (static_cast<std::uint8_t>(in[4]) != kProtocolVersion)
        return Fault::Version;
    const auto kind = static_cast<std::uint8_t>(in[5]);
    if (kind < static_cast<std::uint8_t>(Kind::Hello) || kind > static_cast<std::uint8_t>(Kind::Refusal))
        return Fault::Kind;

    FrameHead read;
    read.kind = static_cast<Kind>(kind);
    read.flags = GetNumber<std::uint16_t>(in + 6);
    read.id = GetNumber<std::uint64_t>(in + 8);
    read.headerBytes = GetNumber<std::uint32_t>(in + 16);
    read.bodyBytes = GetNumber<std::uint32_t>(in + 20);
    if ((read.flags & ~kMoreFollows) != 0 || (read.MoreFollows() && IsBare(read.kind)))
        return Fault::Flags;
    if ((TakesId(read.kind) && read.id == 0) || (HasNoId(read.kind) && read.id != 0))
        return Fault::RequestId;
    const Fault lengths = CheckLengths(read);
    if (lengths == Fault::None)
        head = read;
    return lengths;
}

} // namespace lpc
