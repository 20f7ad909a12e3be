#pragma once

#include "LPC_Wire/Poller.h"

#include <atomic>
#include <thread>

namespace lpc {

/// The orders of a thread that waits in a poller and flushes queues for others: COutbound::Hooks::orderFlush.
/// A thread that is inside a callback takes orders from itself only, for the callback may last.
class CFlushOrders
{
public:
    explicit CFlushOrders(CPoller& poller) : m_poller(poller) {}

    /// Any thread, under the lock of the queue that is to be flushed. False when the order may not be carried
    /// out soon.
    bool Order();

    // Of the thread that carries them out:

    void SetThread() { m_thread = std::this_thread::get_id(); }
    /// Said before callbacks begin (then orders that stand are to be carried out first) and after their end.
    void SetBusy(bool busy) { m_busy = busy; }
    /// Whether there are orders; they are the caller's now.
    bool Take() { return m_ordered && m_ordered.exchange(false); }

private:
    CPoller& m_poller;
    std::atomic<std::thread::id> m_thread{};
    std::atomic<bool> m_busy{false};
    std::atomic<bool> m_ordered{false};
};

} // namespace lpc
