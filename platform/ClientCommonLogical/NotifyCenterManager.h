#pragma once

#include "Base/MessageLoop.h"
#include "Base/WeakAnchor.h"
#include "Protocol/JSONStruct/WebSocket/WebSocketCommonJSONStruct.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace clientcommon {

/// Delivers the framework's notifications to those who registered for their type, on the notification loop,
/// in the order in which they came. One that nobody registered for is dropped with a line at debug level.
class CNotifyCenterManager : Base::CNoncopyable
{
public:
    using Notify = std::shared_ptr<protocol::WebSocketNotifyData>;
    using Handler = std::function<void(const protocol::WebSocketNotifyData&)>;
    using HandlerId = std::uint64_t;

    explicit CNotifyCenterManager(Base::CMessageLoop& loop) : m_loop(loop) {}

    /// The process's notify centre, on Base::CMessageLoopForNotify.
    static CNotifyCenterManager& Instance();

    /// Queues the notification for delivery and holds it until then; an empty pointer is ignored, and so is
    /// everything after the loop was stopped. Any thread.
    void addNotify(Notify notify);

    /// The handlers of a type are called in the order of their registration. A handler whose owner has gone
    /// is not called any more. Any thread, also from within a handler; a handler that is added there sees the
    /// next notification.
    HandlerId RegisterHandler(const std::string& type, const Base::details::WeakAnchorRef& owner,
                              Handler handler);

    /// From here on the handler is not started any more. A call that is running on another thread goes on; an
    /// owner that must wait for it releases its anchor. Any thread, also from within a handler. An unknown id
    /// is ignored.
    void UnregisterHandler(HandlerId id);

private:
    struct Registration
    {
        HandlerId id;
        Base::details::WeakAnchorRef owner;
        Handler handler;
        std::atomic<bool> active{true};
    };
    using Registrations = std::vector<std::shared_ptr<Registration>>;

    void Deliver(const protocol::WebSocketNotifyData& notify);
    Registrations HandlersOf(const std::string& type);

    Base::CMessageLoop& m_loop;
    std::mutex m_mutex;
    std::map<std::string, Registrations> m_handlers;
    HandlerId m_lastId = 0;
    Base::details::CWeakPtrBase m_anchor;
};

} // namespace clientcommon
