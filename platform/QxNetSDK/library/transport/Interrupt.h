#pragma once

#include <algorithm>
#include <atomic>
#include <mutex>
#include <vector>

namespace sdk {

/// Something that waits and can be told from another thread to stop.
class IWaiting
{
public:
    virtual ~IWaiting() = default;
    /// Makes the wait end soon; also one that begins only afterwards. Must not wait itself.
    virtual void Wake() = 0;
};

/// Ends all waits of one session, for good. For any thread.
class CInterrupt
{
public:
    CInterrupt() = default;
    CInterrupt(const CInterrupt&) = delete;
    CInterrupt& operator=(const CInterrupt&) = delete;

    bool IsSet() const { return m_isSet; }

    void Set()
    {
        m_isSet = true;
        const std::lock_guard lock(m_mutex);
        for (IWaiting* waiting : m_waiting)
            waiting->Wake();
    }

    /// While it lives, Set wakes what it was made for; at once when the interrupt was set before.
    class CGuard
    {
    public:
        CGuard(CInterrupt& interrupt, IWaiting& waiting) : m_interrupt(interrupt), m_waiting(waiting)
        {
            const std::lock_guard lock(m_interrupt.m_mutex);
            m_interrupt.m_waiting.push_back(&m_waiting);
            if (m_interrupt.m_isSet)
                m_waiting.Wake();
        }
        ~CGuard()
        {
            const std::lock_guard lock(m_interrupt.m_mutex);
            auto& all = m_interrupt.m_waiting;
            all.erase(std::find(all.begin(), all.end(), &m_waiting));
        }
        CGuard(const CGuard&) = delete;
        CGuard& operator=(const CGuard&) = delete;

    private:
        CInterrupt& m_interrupt;
        IWaiting& m_waiting;
    };

private:
    std::atomic<bool> m_isSet = false;
    std::mutex m_mutex;
    std::vector<IWaiting*> m_waiting;
};

} // namespace sdk
