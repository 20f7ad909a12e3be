#include "ClientCommonLogical/NotifyCenterManager.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "Base/Singleton.h"
#include "Protocol/JSONStruct/LoggableText.h"

#include <algorithm>
#include <utility>

namespace clientcommon {

namespace {

/// Runs the call while the owner lives; false when the owner has gone. An exception of one handler is logged
/// and does not keep the notification from the next.
bool RunFor(const Base::details::WeakAnchorRef& owner, const Base::Task& call)
{
    bool ran = false;
    Base::CCancelableTask(owner, [&] {
        ran = true;
        Base::RunGuarded(call);
    })();
    return ran;
}

} // namespace

CNotifyCenterManager& CNotifyCenterManager::Instance()
{
    static auto* const center =
        new CNotifyCenterManager(Base::CSingleton<Base::CMessageLoopForNotify>::Instance());
    return *center;
}

void CNotifyCenterManager::addNotify(Notify notify)
{
    if (!notify)
        return;
    m_loop.PostTask(
        Base::CCancelableTask(m_anchor.Ref(), [this, notify = std::move(notify)] { Deliver(*notify); }));
}

CNotifyCenterManager::HandlerId
CNotifyCenterManager::RegisterHandler(const std::string& type, const Base::details::WeakAnchorRef& owner,
                                      Handler handler)
{
    auto registration = std::make_shared<Registration>();
    registration->owner = owner;
    registration->handler = std::move(handler);
    std::lock_guard<std::mutex> lock(m_mutex);
    registration->id = ++m_lastId;
    m_handlers[type].push_back(std::move(registration));
    return m_lastId;
}

void CNotifyCenterManager::UnregisterHandler(HandlerId id)
{
    std::shared_ptr<Registration> removed; // its handler is destroyed outside the lock
    std::lock_guard<std::mutex> lock(m_mutex);
    for (auto& [type, registrations] : m_handlers) {
        const auto found = std::find_if(registrations.begin(), registrations.end(),
                                        [id](const auto& registration) { return registration->id == id; });
        if (found == registrations.end())
            continue;
        removed = std::move(*found);
        removed->active = false;
        registrations.erase(found);
        return;
    }
}

void CNotifyCenterManager::Deliver(const protocol::WebSocketNotifyData& notify)
{
    bool handled = false;
    for (const std::shared_ptr<Registration>& registration : HandlersOf(notify.type)) {
        if (!registration->active)
            continue;
        if (RunFor(registration->owner, [&] { registration->handler(notify); }))
            handled = true;
        else
            UnregisterHandler(registration->id);
    }
    if (!handled)
        BASE_LIMITED(Base::CFaultLimit, BASE_DEBUG, "Nobody handles the notification [%s].",
                     protocol::LoggableText(notify.type).c_str());
}

CNotifyCenterManager::Registrations CNotifyCenterManager::HandlersOf(const std::string& type)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_handlers.find(type);
    return found == m_handlers.end() ? Registrations() : found->second;
}

} // namespace clientcommon
