#include "LPC_Wire/FlushOrders.h"

namespace lpc {

/// The order stands before the thread is looked at, and the thread calls itself busy before it looks at the
/// orders: one of both always sees the other.
bool CFlushOrders::Order()
{
    m_ordered = true;
    if (m_thread == std::this_thread::get_id())
        return true;
    if (m_busy)
        return false;
    m_poller.WakeSoon();
    return true;
}

} // namespace lpc
