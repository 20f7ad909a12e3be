#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>

namespace lpcclient {

/// Counts the bytes that were received and are still in use: in the receive queue, and in the copies that the
/// receiver keeps. Outlives its session as long as there are copies. Any thread.
class CReceiveWindow : public std::enable_shared_from_this<CReceiveWindow>
{
public:
    /// onRoom is called, in any thread, when reading that had stopped may go on.
    explicit CReceiveWindow(std::function<void()> onRoom) : m_onRoom(std::move(onRoom)) {}

    /// Counts the bytes until the last copy of the receipt is gone.
    std::shared_ptr<const void> Charge(std::size_t bytes);

    /// Does not count so many bytes that are charged: those of the message that is just being delivered. A
    /// call made from within its callback could not wait for them.
    void Lend(std::size_t bytes) { m_lent = bytes; }

    /// The bytes in use.
    std::size_t Bytes() const;

    /// No onRoom from now on; none is under way afterwards.
    void Close();

private:
    class CReceipt;

    void Release(std::size_t bytes);

    std::atomic<std::size_t> m_bytes{0};
    std::atomic<std::size_t> m_lent{0};
    std::mutex m_mutex;
    std::function<void()> m_onRoom;
};

} // namespace lpcclient
