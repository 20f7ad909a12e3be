#pragma once

#include "LPC_Wire/FrameSet.h"

#include <string>

/// The bytes that a message takes on the wire.
inline std::string WireBytes(lpc::Kind kind, lpc::RequestId id, const lpc::HeaderMap& headers,
                             const std::string& body)
{
    const lpc::CFrameSet frames(kind, id, headers, body);
    std::string bytes;
    for (const lpc::ConstSpan& span : frames.Spans())
        bytes.append(span.data, span.size);
    return bytes;
}
