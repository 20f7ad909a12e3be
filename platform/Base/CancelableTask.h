#pragma once

#include "Base/WeakAnchor.h"

#include <functional>
#include <utility>

namespace Base {

/// A piece of work for a message loop or pool.
using Task = std::function<void()>;

/// Runs a task; an exception that leaves it is logged and goes no further.
void RunGuarded(const Task& task);

/// Work that is left out when its owner is gone by the time it would run.
class CCancelableTask
{
public:
    CCancelableTask(details::WeakAnchorRef owner, Task work)
        : m_owner(std::move(owner)), m_work(std::move(work))
    {}

    /// Runs the member of the object with the arguments' values, while the object's anchor lives.
    template<typename T, typename... Params, typename... Args>
    CCancelableTask(const details::CWeakPtrBase& anchor, T* object, void (T::*member)(Params...),
                    Args... args)
        : m_owner(anchor.Ref()), m_work([object, member, args...] { (object->*member)(args...); })
    {}

    void operator()() const
    {
        std::lock_guard<std::recursive_mutex> lock(m_owner->running);
        if (m_owner->alive)
            m_work();
    }

private:
    details::WeakAnchorRef m_owner;
    Task m_work;
};

} // namespace Base
