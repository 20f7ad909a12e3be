#pragma once

#include "Base/MessageLoop.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace Base {

/// The observers of one object. They are not owned. Any thread, unless a function says otherwise.
///
/// A notification calls them one after the other, in the order in which they were added, under the lock of
/// the list of observers. What holds:
/// - Once Remove has returned, the observer is not called any more and may be destroyed. Called by another
///   thread than the one that notifies, it waits until the notification that is being delivered has ended; an
///   observer whose turn had not come yet is not called by it. So a callback must not wait for a thread that
///   adds or removes observers, and such a thread must not hold a lock that a callback takes.
/// - From within a callback observers may be added and removed, the one that is being called included; this
///   never waits. One that is added there hears the next notification.
/// - An observer is called once for each notification, however often it was added, and one Remove is enough.
///   Adding it again after that works, and puts it at the end.
/// - The registry may be destroyed from within a callback; the rest of the observers is then not called.
///   Destroyed by another thread, it waits as Remove does.
template<typename Observer>
class CObserverRegistry : CNoncopyable
{
public:
    CObserverRegistry() : m_lists(std::make_shared<Lists>()) {}

    ~CObserverRegistry()
    {
        const std::lock_guard<std::recursive_mutex> lock(m_lists->mutex);
        m_lists->observers.clear();
    }

    /// False, with no effect, for null.
    bool Add(Observer* observer)
    {
        if (!observer)
            return false;
        const std::lock_guard<std::recursive_mutex> lock(m_lists->mutex);
        m_lists->Unmark(observer);
        if (m_lists->Find(observer) == m_lists->observers.end())
            m_lists->observers.push_back(observer);
        return true;
    }

    /// False, with no effect, for null; true also for an observer that was never added.
    bool Remove(Observer* observer) { return observer && RemoveUnchecked(observer); }

    /// Remove without a look at the pointer: always true.
    bool RemoveUnchecked(Observer* observer)
    {
        m_lists->Mark(observer);
        const std::lock_guard<std::recursive_mutex> lock(m_lists->mutex);
        m_lists->TakeOut(observer);
        return true;
    }

    /// Calls `call(Observer&)` for every observer. The object that owns the registry may be gone when it
    /// returns.
    template<typename Call>
    void Notify(Call call)
    {
        const std::shared_ptr<Lists> lists = m_lists;
        const std::lock_guard<std::recursive_mutex> lock(lists->mutex);
        const Walk walk(*lists);
        const std::size_t count = lists->observers.size();
        for (std::size_t i = 0; i < std::min(count, lists->observers.size()); ++i)
            if (Observer* const observer = lists->Next(i))
                call(*observer);
    }

private:
    /// Shared with a notification that is under way, as it may outlive the registry.
    struct Lists
    {
        std::recursive_mutex mutex; ///< of the observers and of walks
        std::vector<Observer*> observers;
        int walks = 0; ///< notifications that are under way, one from within the other

        std::mutex removedMutex;
        /// Those whose removal waits for the end of a notification, which must not call them meanwhile.
        std::vector<Observer*> removed;

        auto Find(Observer* observer) { return std::find(observers.begin(), observers.end(), observer); }

        /// The observer at a position; null when it was removed.
        Observer* Next(std::size_t position)
        {
            Observer* const observer = observers[position];
            const bool called = observer && !IsMarked(observer);
            if (observer && !called)
                TakeOut(observer);
            return called ? observer : nullptr;
        }

        /// During a notification the place stays, and is empty: a new observer at the same address is another
        /// one.
        void TakeOut(Observer* observer)
        {
            Unmark(observer);
            const auto found = Find(observer);
            if (found == observers.end())
                return;
            if (walks > 0)
                *found = nullptr;
            else
                observers.erase(found);
        }

        void Mark(Observer* observer)
        {
            const std::lock_guard<std::mutex> lock(removedMutex);
            removed.push_back(observer);
        }

        void Unmark(Observer* observer)
        {
            const std::lock_guard<std::mutex> lock(removedMutex);
            removed.erase(std::remove(removed.begin(), removed.end(), observer), removed.end());
        }

        bool IsMarked(Observer* observer)
        {
            const std::lock_guard<std::mutex> lock(removedMutex);
            return std::find(removed.begin(), removed.end(), observer) != removed.end();
        }
    };

    /// Closes the gaps that removals left when the outermost notification ends, also by an exception.
    struct Walk
    {
        explicit Walk(Lists& which) : lists(which) { ++lists.walks; }
        ~Walk()
        {
            auto& all = lists.observers;
            if (--lists.walks == 0)
                all.erase(std::remove(all.begin(), all.end(), nullptr), all.end());
        }

        Lists& lists;
    };

    const std::shared_ptr<Lists> m_lists;
};

/// A registry whose notifications are posted to a loop, so that observers are called there and never from
/// within the function that changed something. Member of the object whose changes are observed; notifications
/// that are still queued when it goes are dropped. Hear is the observers' operation.
///
///     Base::CPostedObservers<IObserver, &IObserver::OnChanged> m_observers{loop};
///     m_observers.Post({kColour});
template<typename Observer, void (Observer::*Hear)(const typename Observer::Param&)>
class CPostedObservers : public CObserverRegistry<Observer>
{
public:
    using Param = typename Observer::Param;

    /// The loop must outlive this object.
    explicit CPostedObservers(CMessageLoop& loop) : m_loop(loop) {}

    /// Returns at once. Nothing happens after the loop was stopped.
    void Post(const Param& param)
    {
        m_loop.PostTask(CCancelableTask(m_anchor, this, &CPostedObservers::Deliver, param));
    }

private:
    using CObserverRegistry<Observer>::Notify;

    void Deliver(Param param)
    {
        Notify([&param](Observer& observer) { (observer.*Hear)(param); });
    }

    CMessageLoop& m_loop;
    details::CWeakPtrBase m_anchor;
};

} // namespace Base
