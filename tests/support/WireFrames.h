#pragma once

#include "LPC_Wire/ByteOrder.h"
#include "LPC_Wire/Limits.h"
#include "support/WireBytes.h"

/// One frame, whatever its fields say.
inline std::string Frame(lpc::Kind kind, lpc::RequestId id, std::uint16_t flags, const std::string& headers,
                         const std::string& body)
{
    lpc::FrameHead head;
    head.kind = kind;
    head.flags = flags;
    head.id = id;
    head.headerBytes = static_cast<std::uint32_t>(headers.size());
    head.bodyBytes = static_cast<std::uint32_t>(body.size());
    std::string bytes(lpc::kFrameHeadBytes, '\0');
    lpc::WriteFrameHead(head, bytes.data());
    return bytes + headers + body;
}

/// The encoding of a header's key or value.
inline std::string Text(const std::string& text)
{
    std::string length(2, '\0');
    lpc::PutNumber(length.data(), static_cast<std::uint16_t>(text.size()));
    return length + text;
}

/// The encoding of no headers.
inline std::string NoHeaders()
{
    return std::string(2, '\0');
}

inline std::string TenThousandHeaders()
{
    std::string headers(2, '\0');
    lpc::PutNumber<std::uint16_t>(headers.data(), 10000);
    for (int i = 0; i < 10000; ++i)
        headers += Text("k") + Text("");
    return headers;
}

/// Frames of 1 MiB that belong to one request, which goes on.
inline std::string LongBody(std::size_t frames)
{
    const std::string part(lpc::kMaxFrameBody, 'x');
    std::string bytes = Frame(lpc::Kind::Request, 1, lpc::kMoreFollows, NoHeaders(), part);
    for (std::size_t i = 1; i < frames; ++i)
        bytes += Frame(lpc::Kind::Request, 1, lpc::kMoreFollows, "", part);
    return bytes;
}

/// The first frames of so many requests.
inline std::string BegunBodies(std::size_t count)
{
    std::string bytes;
    for (lpc::RequestId id = 1; id <= count; ++id)
        bytes += Frame(lpc::Kind::Request, id, lpc::kMoreFollows, NoHeaders(), "x");
    return bytes;
}

/// What a reader must end the connection over, and how its log line calls it.
struct FaultRow
{
    std::string bytes;
    const char* line;
};

/// A whole good request with some bytes overwritten.
inline std::string Damaged(std::size_t at, const std::string& bytes)
{
    std::string request = WireBytes(lpc::Kind::Request, 1, {{"k", "v"}}, "body");
    return request.replace(at, bytes.size(), bytes);
}

/// Those that are the same for both ends.
inline std::vector<FaultRow> FaultRows()
{
    const auto request = [](std::uint16_t flags, const std::string& headers, const std::string& body) {
        return Frame(lpc::Kind::Request, 1, flags, headers, body);
    };
    return {
        {Damaged(0, "X"), "bad magic"},
        {Damaged(4, "\x02"), "unknown version"},
        {Damaged(5, "\x09"), "unknown kind of frame"},
        {Damaged(6, "\x02"), "unknown flags"},
        {Damaged(8, std::string(1, '\0')), "request id does not fit"},
        {Damaged(16, "\xff\xff\xff\xff"), "header length out of range"},
        {Damaged(20, "\xff\xff\xff\xff"), "body length out of range"},
        {Damaged(24, "\xff\xff"), "malformed headers"},
        {request(0, TenThousandHeaders(), ""), "malformed headers"},
        {request(0, std::string("\1\0", 2) + Text("k") + Text("\xff"), ""), "malformed headers"},
        {request(0, "", "goes on with nothing"), "frame continues no body"},
        {LongBody(lpc::kMaxBody / lpc::kMaxFrameBody) + request(0, "", "x"), "body too long"},
        {BegunBodies(lpc::kMaxPartialBodies + 1), "too many bodies under way"},
    };
}
