#include "LPC_Wire/FlushOrders.h"

namespace lpc {

/// The order stands before the thread is looked at, and the thread calls itself busy before it looks at the
/// orders: one of both always sees the other. An order that stands already is as good: whoever takes it
/// flushes after that, and waits for the queue's lock, which is held here.
bool CFlushOrders::Order()
{
    if (!m_ordered)
        m_ordered = true;
    if (m_thread == std::this_thread::get_id())
        return true;
    if (m_busy)
        return false;
    m_poller.WakeSoon();
    return true;
}

} // namespace lpc
