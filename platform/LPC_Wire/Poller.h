#pragma once

#include "LPC_Wire/LocalSocket.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace lpc {

/// Waits for many sockets and for a call from another thread. One thread waits; the other functions may be
/// called from any.
class CPoller
{
public:
    struct Event
    {
        std::uint64_t key = 0;
        unsigned ready = 0; ///< Readiness bits; all wanted ones when the connection ended
    };

    CPoller();
    ~CPoller();
    CPoller(const CPoller&) = delete;
    CPoller& operator=(const CPoller&) = delete;

    /// Why the system gave no handle to wait with, which makes the object useless; empty when all is well.
    std::string Failure() const;

    /// Watches a socket for the wanted Readiness bits; its events carry the key. With nothing wanted only its
    /// end may be told, once.
    void Add(SocketHandle handle, std::uint64_t key, unsigned wanted);
    void Modify(SocketHandle handle, std::uint64_t key, unsigned wanted);
    void Remove(SocketHandle handle);

    /// Waits for events, at most count, until the deadline or a Wake; returns how many there are.
    std::size_t Wait(Event* events, std::size_t count, TimePoint deadline);

    /// Ends the present Wait, or the next one.
    void Wake();

    /// The same about kSoon later, so that what happens until then costs one wake-up. Shorter would not pay: a
    /// timer of the system costs as much as several messages.
    void WakeSoon();
    static constexpr std::chrono::microseconds kSoon{500};

private:
    struct System;
    std::unique_ptr<System> m_system;
    std::atomic<bool> m_woken{false};
    std::atomic<bool> m_wakesSoon{false};
};

} // namespace lpc
