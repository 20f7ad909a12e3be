#pragma once

#include "LPC_Wire/FrameSet.h"
#include "LPC_Wire/LocalSocket.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <string>

namespace lpc {

/// What one end still has to write to its connection: bounded, in order, from any thread. A message goes to
/// the socket at once, in one gathered write with what waits in front of it; what the socket does not take
/// waits. Small messages that nobody waits for and that follow one another within microseconds are joined and
/// leave together, a fraction of a millisecond later.
class COutbound
{
public:
    /// What the queue asks of the thread that serves its connection. Called under the queue's lock.
    struct Hooks
    {
        /// The socket has to be watched for room (true), or no longer; Flush when there is some.
        std::function<void(bool watch)> watchRoom;
        /// FlushOrdered is wanted soon; false when that cannot be promised just now.
        std::function<bool()> orderFlush;
    };

    enum class Urgency {
        AtOnce,  ///< somebody waits for the message
        MayWait, ///< it may be joined with those that follow it
    };

    /// Names the end of a message in the stream; 0: all of it is written.
    using Ticket = std::uint64_t;

    COutbound(CLocalSocket& socket, std::size_t limit, Hooks hooks);

    /// Writes or queues a message and never waits. kTryAgain: the queue is full; kConnectionLost.
    int Post(const CFrameSet& frames, Urgency urgency);

    /// The same without a copy, for a caller that waits until its message is written, calling Flush when the
    /// socket has room. Until Finish the queue refers to the memory of the frames and the body.
    int PostShared(const CFrameSet& frames, Ticket& ticket);

    /// Whether a PostShared still has bytes in the queue.
    bool IsWaiting(Ticket ticket) const;

    /// Ends a PostShared: what is still unwritten is copied, so that the stream stays whole.
    void Finish(Ticket ticket);

    /// Writes what the socket takes.
    void Flush();

    /// The same where orderFlush asked for it.
    void FlushOrdered();

    /// Says again whether the socket has to be watched.
    void RenewWatch();

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

    int Admit(const CFrameSet& frames);
    bool IsOver(const CFrameSet& frames) const { return m_bytes > 0 && m_bytes + frames.Size() > m_limit; }
    bool ContinuesBurst(const CFrameSet& frames) const;
    void Join(const CFrameSet& frames);
    int Write(const CFrameSet& frames, Ticket& ticket);
    std::size_t WriteNow(const CFrameSet& frames);
    void Queue(const CFrameSet& frames, std::size_t written, Ticket ticket);
    void QueueCopy(ConstSpan bytes);
    std::size_t Gather(ConstSpan* spans, std::size_t count) const;
    void Consume(std::size_t bytes);
    void KeepSpare(std::string& chunk);
    void FinishLocked(Ticket ticket);
    void FlushLocked();
    void BreakLocked();
    void UpdateWatch();

    CLocalSocket& m_socket;
    const std::size_t m_limit;
    const Hooks m_hooks;

    mutable std::mutex m_mutex;
    std::deque<Chunk> m_chunks;
    std::size_t m_offset = 0; ///< bytes of the first chunk that are written
    std::size_t m_bytes = 0;
    std::size_t m_ownedChunks = 0;
    Ticket m_lastTicket = 0;
    TimePoint m_progress = kForever; ///< see WaitingSince
    TimePoint m_lastCasual;          ///< when the last message that may wait was written or joined
    std::string m_spare;             ///< memory of a chunk that has left
    bool m_blocked = false;          ///< the socket takes no more for the moment
    bool m_watching = false;
    bool m_broken = false;
};

} // namespace lpc
