#pragma once

#include "LPC_Wire/Frame.h"
#include "LPC_Wire/Span.h"

#include <string>
#include <vector>

namespace lpc {

/// One message as the frames that carry it. A body that is not small is referred to, not copied: it must
/// outlive the set.
class CFrameSet
{
public:
    CFrameSet(Kind kind, RequestId id, const HeaderMap& headers, const std::string& body);

    CFrameSet(const CFrameSet&) = delete;
    CFrameSet& operator=(const CFrameSet&) = delete;

    /// kNoError; kTooLong when headers or body are over their limit, kInvalidArgument when the headers are
    /// not UTF-8: there is nothing to write then.
    int Error() const { return m_error; }

    /// The bytes to be written, in order.
    const std::vector<ConstSpan>& Spans() const { return m_spans; }
    std::size_t Size() const { return m_size; }

private:
    void AppendFrame(const FrameHead& head, const HeaderMap* headers, ConstSpan body, bool copyBody);

    std::string m_heads;
    std::vector<ConstSpan> m_spans;
    std::size_t m_size = 0;
    int m_error = kNoError;
};

/// The frame that refuses a request, or a connection when the id is 0, with an error number.
HeaderMap RefusalHeaders(int error);

/// The error number of a refusal; kRefused when it names none.
int RefusalError(const HeaderMap& headers);

} // namespace lpc
