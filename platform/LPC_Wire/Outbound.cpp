#include "LPC_Wire/Outbound.h"

#include "LPC_Wire/Limits.h"

#include <algorithm>

namespace lpc {
namespace {

/// Small messages that wait are joined up to this size.
constexpr std::size_t kJoinBytes = 64 * kKiB;

} // namespace

COutbound::COutbound(CLocalSocket& socket, std::size_t limit, WatchRoom watchRoom)
    : m_socket(socket), m_limit(limit), m_watchRoom(std::move(watchRoom))
{}

int COutbound::Admit(const CFrameSet& frames) const
{
    if (frames.Error() != kNoError)
        return frames.Error();
    if (m_broken)
        return kConnectionLost;
    return m_bytes > 0 && m_bytes + frames.Size() > m_limit ? kTryAgain : kNoError;
}

int COutbound::Post(const CFrameSet& frames)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (const int error = Admit(frames))
        return error;
    const std::size_t written = m_chunks.empty() ? WriteNow(frames) : 0;
    if (m_broken)
        return kConnectionLost;
    Queue(frames, written, 0);
    UpdateWatch();
    return kNoError;
}

int COutbound::PostShared(const CFrameSet& frames, Ticket& ticket)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    ticket = 0;
    if (const int error = Admit(frames))
        return error;
    const std::size_t written = m_chunks.empty() ? WriteNow(frames) : 0;
    if (m_broken)
        return kConnectionLost;
    if (written == frames.Size())
        return kNoError;
    ticket = ++m_lastTicket;
    Queue(frames, written, ticket);
    FlushLocked();
    return m_broken ? kConnectionLost : kNoError;
}

bool COutbound::IsWaiting(Ticket ticket) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return std::any_of(m_chunks.begin(), m_chunks.end(),
                       [&](const Chunk& chunk) { return chunk.ticket == ticket; });
}

void COutbound::Finish(Ticket ticket)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    for (Chunk& chunk : m_chunks) {
        if (chunk.ticket != ticket)
            continue;
        chunk.owned.assign(chunk.shared.data, chunk.shared.size);
        chunk.shared = {};
        chunk.ticket = 0;
        ++m_ownedChunks;
    }
    UpdateWatch();
}

void COutbound::Flush()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    FlushLocked();
}

void COutbound::FlushUntil(TimePoint deadline)
{
    Flush();
    while (WaitingSince() != kForever && std::chrono::steady_clock::now() < deadline) {
        m_socket.Wait(kWritable, deadline);
        Flush();
    }
}

void COutbound::Break()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    BreakLocked();
}

bool COutbound::IsBroken() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_broken;
}

TimePoint COutbound::WaitingSince() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_chunks.empty() ? kForever : m_progress;
}

std::size_t COutbound::WriteNow(const CFrameSet& frames)
{
    const IoResult result = m_socket.Write(frames.Spans().data(), frames.Spans().size());
    if (result.state == IoState::Closed)
        BreakLocked();
    m_progress = kForever;
    return result.bytes;
}

void COutbound::Queue(const CFrameSet& frames, std::size_t written, Ticket ticket)
{
    m_bytes += frames.Size() - written;
    if (m_chunks.empty() && written < frames.Size())
        m_progress = std::chrono::steady_clock::now();
    for (ConstSpan span : frames.Spans()) {
        const std::size_t skipped = std::min(written, span.size);
        written -= skipped;
        span = {span.data + skipped, span.size - skipped};
        if (span.size == 0)
            continue;
        if (ticket == 0)
            QueueCopy(span);
        else
            m_chunks.push_back({{}, span, ticket});
    }
}

void COutbound::QueueCopy(ConstSpan bytes)
{
    const bool join = !m_chunks.empty() && m_chunks.back().ticket == 0 &&
                      m_chunks.back().owned.size() + bytes.size <= kJoinBytes;
    if (!join) {
        m_chunks.emplace_back();
        m_chunks.back().owned.reserve(std::max(bytes.size, kJoinBytes));
        ++m_ownedChunks;
    }
    m_chunks.back().owned.append(bytes.data, bytes.size);
}

std::size_t COutbound::Gather(ConstSpan* spans, std::size_t count) const
{
    std::size_t used = 0;
    for (auto chunk = m_chunks.begin(); chunk != m_chunks.end() && used < count; ++chunk)
        spans[used++] = chunk->Bytes();
    spans[0] = {spans[0].data + m_offset, spans[0].size - m_offset};
    return used;
}

void COutbound::Consume(std::size_t bytes)
{
    m_bytes -= bytes;
    m_offset += bytes;
    while (!m_chunks.empty() && m_offset >= m_chunks.front().Bytes().size) {
        m_offset -= m_chunks.front().Bytes().size;
        if (m_chunks.front().ticket == 0)
            --m_ownedChunks;
        m_chunks.pop_front();
    }
}

void COutbound::FlushLocked()
{
    ConstSpan spans[CLocalSocket::kMaxSpans];
    while (!m_broken && !m_chunks.empty()) {
        const IoResult result = m_socket.Write(spans, Gather(spans, CLocalSocket::kMaxSpans));
        if (result.state == IoState::Closed)
            BreakLocked();
        if (result.state != IoState::Done)
            break;
        Consume(result.bytes);
        m_progress = std::chrono::steady_clock::now();
    }
    UpdateWatch();
}

void COutbound::BreakLocked()
{
    if (m_broken)
        return;
    m_broken = true;
    m_socket.Shutdown();
    m_chunks.clear();
    m_offset = 0;
    m_bytes = 0;
    m_ownedChunks = 0;
    UpdateWatch();
}

/// Shared chunks are pushed on by the callers that wait for them; only copies need somebody else.
void COutbound::UpdateWatch()
{
    const bool watch = m_ownedChunks > 0;
    if (watch == m_watching)
        return;
    m_watching = watch;
    m_watchRoom(watch);
}

} // namespace lpc
