#pragma once

#include "UiDataController/Model/Element.h"

#include <QObject>

#include <functional>
#include <mutex>
#include <utility>

namespace UiDataController {

/// Brings the changes of a source to the thread of an object, in order. While that thread is busy they are
/// kept up to a limit; beyond it they are dropped, and a Reset takes their place.
class CElementFeed : public IElementObserver
{
public:
    using Take = std::function<void(std::uint64_t version, const ElementChanges& changes)>;

    /// How many changes wait at most.
    static constexpr std::size_t kMostWaiting = 50000;

    /// take is called on the thread of context, which, like the source, outlives this object.
    CElementFeed(IElementSource& source, QObject* context, Take take);
    ~CElementFeed() override;
    CElementFeed(const CElementFeed&) = delete;
    CElementFeed& operator=(const CElementFeed&) = delete;

    void OnElements(std::uint64_t version, const ElementChanges& changes) override;

private:
    using Sets = std::vector<std::pair<std::uint64_t, ElementChanges>>;

    void Deliver();

    IElementSource& m_source;
    const Take m_take;
    QObject m_thread; ///< of the context's thread; calls posted to it go with it
    std::mutex m_mutex;
    Sets m_waiting;
    std::size_t m_count = 0; ///< changes in m_waiting
};

} // namespace UiDataController
