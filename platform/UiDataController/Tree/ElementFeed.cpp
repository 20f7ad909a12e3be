#include "UiDataController/Tree/ElementFeed.h"

#include "Base/Log.h"

namespace UiDataController {

CElementFeed::CElementFeed(IElementSource& source, QObject* context, Take take)
    : m_source(source), m_take(std::move(take))
{
    m_thread.moveToThread(context->thread());
    m_source.AddObserver(*this);
}

CElementFeed::~CElementFeed()
{
    m_source.RemoveObserver(*this);
}

void CElementFeed::OnElements(std::uint64_t version, const ElementChanges& changes)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const bool isPosted = !m_waiting.empty();
    m_count += changes.size();
    if (m_count > kMostWaiting) {
        BASE_WARN("The resource tree is behind by %zu changes and takes all elements anew.", m_count);
        m_waiting.assign(1, {version, {{ElementChange::Kind::Reset, {}}}});
        m_count = 1;
    } else {
        m_waiting.emplace_back(version, changes);
    }
    if (!isPosted)
        QMetaObject::invokeMethod(
            &m_thread, [this] { Deliver(); }, Qt::QueuedConnection);
}

void CElementFeed::Deliver()
{
    Sets sets;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        sets.swap(m_waiting);
        m_count = 0;
    }
    for (const auto& [version, changes] : sets)
        m_take(version, changes);
}

} // namespace UiDataController
