#pragma once

#include "Base/Noncopyable.h"

#include <memory>
#include <mutex>

namespace Base::details {

/// What an anchor and the references to it share.
struct AnchorState
{
    std::recursive_mutex running;
    bool alive = true;
};

/// A weak reference to the owner of an anchor.
using WeakAnchorRef = std::shared_ptr<AnchorState>;

/// Member of a class whose members run later, on another thread, as posted tasks. A task keeps only a weak
/// reference; when the owner is gone it does nothing.
///
/// Release (called by the destructor) waits for a task that is running on another thread; it may be called
/// from within such a task. The owner must not hold, while it is destroyed, a lock that its tasks take.
/// Declare it as the last member, so that it is released before what the tasks use.
class CWeakPtrBase : CNoncopyable
{
public:
    CWeakPtrBase() : m_state(std::make_shared<AnchorState>()) {}
    ~CWeakPtrBase() { Release(); }

    WeakAnchorRef Ref() const { return m_state; }

    /// From here on no task of the owner starts.
    void Release()
    {
        std::lock_guard<std::recursive_mutex> lock(m_state->running);
        m_state->alive = false;
    }

private:
    WeakAnchorRef m_state;
};

} // namespace Base::details
