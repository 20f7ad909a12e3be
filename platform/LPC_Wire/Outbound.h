#pragma once

#include "LPC_Wire/FrameSet.h"
#include "LPC_Wire/LocalSocket.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <string>

namespace lpc {

/// What one end still has to write to its connection: bounded, in order, from any thread. A message that
/// finds the queue empty goes to the socket at once, in one gathered write; what the socket does not take
/// waits, and small messages that wait are joined and leave together.
class COutbound
{
public:
    /// Told when the socket has to be watched for room (true) and when no longer. Called under the queue's
    /// lock.
    using WatchRoom = std::function<void(bool watch)>;

    /// Names the end of a message in the stream; 0: all of it is written.
    using Ticket = std::uint64_t;

    COutbound(CLocalSocket& socket, std::size_t limit, WatchRoom watchRoom);

    /// Writes or queues a message and never waits. kTryAgain: the queue is full; kConnectionLost.
    int Post(const CFrameSet& frames);

    /// The same without a copy, for a caller that waits until its message is written, calling Flush when the
    /// socket has room. Until Finish the queue refers to the memory of the frames and the body.
    int PostShared(const CFrameSet& frames, Ticket& ticket);

    /// Whether a PostShared still has bytes in the queue.
    bool IsWaiting(Ticket ticket) const;

    /// Ends a PostShared: what is still unwritten is copied, so that the stream stays whole.
    void Finish(Ticket ticket);

    /// Writes what the socket takes.
    void Flush();

    /// Goes on writing until nothing waits, the deadline comes or the connection breaks.
    void FlushUntil(TimePoint deadline);

    /// Shuts the connection down and drops everything; from now on every Post gives kConnectionLost. Happens
    /// by itself when the socket takes no more for good.
    void Break();
    bool IsBroken() const;

    /// When bytes last left a queue that is not empty; kForever when nothing waits.
    TimePoint WaitingSince() const;

private:
    struct Chunk
    {
        std::string owned;
        ConstSpan shared; ///< used instead of owned when it has a size
        Ticket ticket = 0;

        ConstSpan Bytes() const { return shared.size > 0 ? shared : ConstSpan{owned.data(), owned.size()}; }
    };

    int Admit(const CFrameSet& frames) const;
    std::size_t WriteNow(const CFrameSet& frames);
    void Queue(const CFrameSet& frames, std::size_t written, Ticket ticket);
    void QueueCopy(ConstSpan bytes);
    std::size_t Gather(ConstSpan* spans, std::size_t count) const;
    void Consume(std::size_t bytes);
    void FlushLocked();
    void BreakLocked();
    void UpdateWatch();

    CLocalSocket& m_socket;
    const std::size_t m_limit;
    const WatchRoom m_watchRoom;

    mutable std::mutex m_mutex;
    std::deque<Chunk> m_chunks;
    std::size_t m_offset = 0; ///< bytes of the first chunk that are written
    std::size_t m_bytes = 0;
    std::size_t m_ownedChunks = 0;
    Ticket m_lastTicket = 0;
    TimePoint m_progress = kForever;
    bool m_watching = false;
    bool m_broken = false;
};

} // namespace lpc
