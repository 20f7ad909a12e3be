#include "LPC_Wire/Outbound.h"

#include "LPC_Wire/Limits.h"

#include <algorithm>

namespace lpc {
namespace {

/// Small messages that wait are joined up to this size.
constexpr std::size_t kJoinBytes = 64 * kKiB;

/// A burst: messages up to this size, of which each comes so soon after the one before; they leave when so
/// much is together.
constexpr std::size_t kBurstMessage = 8 * kKiB;
constexpr std::chrono::microseconds kBurstGap{50};
constexpr std::size_t kBurstBytes = kJoinBytes - 2 * kBurstMessage;

/// An ordered flush is not relied on when what waits first has waited so long.
constexpr std::chrono::milliseconds kOverdue{1};

TimePoint Now()
{
    return std::chrono::steady_clock::now();
}

} // namespace

COutbound::COutbound(CLocalSocket& socket, std::size_t limit, Hooks hooks)
    : m_socket(socket), m_limit(limit), m_hooks(std::move(hooks))
{}

/// What only waits to be joined takes no room from others.
int COutbound::Admit(const CFrameSet& frames)
{
    if (frames.Error() != kNoError)
        return frames.Error();
    if (IsOver(frames) && !m_blocked)
        FlushLocked();
    if (m_broken)
        return kConnectionLost;
    return IsOver(frames) ? kTryAgain : kNoError;
}

int COutbound::Post(const CFrameSet& frames, Urgency urgency)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (const int error = Admit(frames))
        return error;
    if (m_blocked) {
        Queue(frames, 0, 0);
        UpdateWatch();
        return kNoError;
    }
    if (urgency == Urgency::MayWait && ContinuesBurst(frames)) {
        Join(frames);
        return m_broken ? kConnectionLost : kNoError;
    }
    Ticket ticket = 0;
    const int error = Write(frames, ticket);
    if (ticket != 0)
        FinishLocked(ticket);
    if (urgency == Urgency::MayWait)
        m_lastCasual = Now();
    return error;
}

bool COutbound::ContinuesBurst(const CFrameSet& frames) const
{
    return frames.Size() <= kBurstMessage && Now() - m_lastCasual < kBurstGap;
}

/// Asks for each message: who could take an order a moment ago may be busy now.
void COutbound::Join(const CFrameSet& frames)
{
    Queue(frames, 0, 0);
    m_lastCasual = Now();
    if (m_bytes >= kBurstBytes || m_lastCasual - m_progress > kOverdue || !m_hooks.orderFlush())
        FlushLocked();
}

int COutbound::PostShared(const CFrameSet& frames, Ticket& ticket)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    ticket = 0;
    const int error = Admit(frames);
    return error == kNoError ? Write(frames, ticket) : error;
}

/// The ticket is for what the socket did not take.
int COutbound::Write(const CFrameSet& frames, Ticket& ticket)
{
    const std::size_t written = m_chunks.empty() ? WriteNow(frames) : 0;
    if (!m_broken && written < frames.Size()) {
        ticket = ++m_lastTicket;
        Queue(frames, written, ticket);
        FlushLocked();
    }
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
    FinishLocked(ticket);
}

void COutbound::FinishLocked(Ticket ticket)
{
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

void COutbound::FlushOrdered()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_blocked)
        FlushLocked();
}

void COutbound::RenewWatch()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_hooks.watchRoom(!m_watching);
    m_hooks.watchRoom(m_watching);
}

void COutbound::FlushUntil(TimePoint deadline)
{
    Flush();
    while (WaitingSince() != kForever && Now() < deadline) {
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
        m_progress = Now();
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
        m_chunks.back().owned.swap(m_spare);
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
        if (m_chunks.front().ticket == 0) {
            --m_ownedChunks;
            KeepSpare(m_chunks.front().owned);
        }
        m_chunks.pop_front();
    }
}

void COutbound::KeepSpare(std::string& chunk)
{
    if (chunk.capacity() < kJoinBytes || chunk.capacity() > 2 * kJoinBytes)
        return;
    chunk.clear();
    m_spare.swap(chunk);
}

void COutbound::FlushLocked()
{
    m_blocked = false;
    ConstSpan spans[CLocalSocket::kMaxSpans];
    while (!m_broken && !m_chunks.empty()) {
        const IoResult result = m_socket.Write(spans, Gather(spans, CLocalSocket::kMaxSpans));
        if (result.state == IoState::Closed)
            BreakLocked();
        m_blocked = result.state == IoState::WouldBlock;
        if (result.state != IoState::Done)
            break;
        Consume(result.bytes);
        m_progress = Now();
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
    m_blocked = false;
    UpdateWatch();
}

/// Shared chunks are pushed on by the callers that wait for them; only copies need somebody else.
void COutbound::UpdateWatch()
{
    const bool watch = m_blocked && m_ownedChunks > 0;
    if (watch == m_watching)
        return;
    m_watching = watch;
    m_hooks.watchRoom(watch);
}

} // namespace lpc
