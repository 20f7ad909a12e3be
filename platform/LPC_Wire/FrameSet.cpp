#include "LPC_Wire/FrameSet.h"

#include "LPC_Wire/HeaderCodec.h"
#include "LPC_Wire/Limits.h"

#include <algorithm>
#include <cstdlib>

namespace lpc {
namespace {

/// A body up to this size is copied behind its head: one piece is cheaper for the system than two.
constexpr std::size_t kSmallBody = 4 * kKiB;

} // namespace

CFrameSet::CFrameSet(Kind kind, RequestId id, const HeaderMap& headers, const std::string& body)
{
    const std::size_t headerBytes = EncodedHeaderBytes(headers);
    if (headerBytes == 0 || body.size() > kMaxBody) {
        m_error = kTooLong;
        return;
    }
    if (!AreUtf8(headers)) {
        m_error = kInvalidArgument;
        return;
    }

    const std::size_t frames = std::max<std::size_t>(1, (body.size() + kMaxFrameBody - 1) / kMaxFrameBody);
    const bool copyBody = body.size() <= kSmallBody;
    m_heads.reserve(frames * kFrameHeadBytes + headerBytes +
                    (copyBody ? body.size() : 0)); // the spans point into it
    m_spans.reserve(2 * frames);
    m_size = frames * kFrameHeadBytes + headerBytes + body.size();

    for (std::size_t frame = 0; frame < frames; ++frame) {
        const std::size_t start = frame * kMaxFrameBody;
        const std::size_t length = std::min(kMaxFrameBody, body.size() - start);
        FrameHead head;
        head.kind = kind;
        head.flags = frame + 1 < frames ? kMoreFollows : 0;
        head.id = id;
        head.headerBytes = frame == 0 ? static_cast<std::uint32_t>(headerBytes) : 0;
        head.bodyBytes = static_cast<std::uint32_t>(length);
        AppendFrame(head, frame == 0 ? &headers : nullptr, {body.data() + start, length}, copyBody);
    }
}

void CFrameSet::AppendFrame(const FrameHead& head, const HeaderMap* headers, ConstSpan body, bool copyBody)
{
    const std::size_t start = m_heads.size();
    m_heads.resize(start + kFrameHeadBytes);
    WriteFrameHead(head, m_heads.data() + start);
    if (headers)
        AppendHeaders(*headers, m_heads);
    if (copyBody)
        m_heads.append(body.data, body.size);
    m_spans.push_back({m_heads.data() + start, m_heads.size() - start});
    if (body.size > 0 && !copyBody)
        m_spans.push_back(body);
}

HeaderMap RefusalHeaders(int error)
{
    return {{kErrorCodeHeader, std::to_string(error)}};
}

int RefusalError(const HeaderMap& headers)
{
    constexpr long kHighest = 65535;
    const auto found = headers.find(kErrorCodeHeader);
    if (found == headers.end())
        return kRefused;
    const long error = std::strtol(found->second.c_str(), nullptr, 10);
    return error > 0 && error <= kHighest ? static_cast<int>(error) : kRefused;
}

} // namespace lpc
