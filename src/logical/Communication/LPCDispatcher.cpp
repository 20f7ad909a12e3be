#include "logical/Communication/LPCDispatcher.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "Protocol/JSONStruct/LoggableText.h"

namespace video {

namespace {

/// A notification, which holds its message until everybody is done with it.
struct HeldNotification
{
    protocol::WebSocketNotifyData notification;
    DispatchTaskPtr task;
};

void ServeFrom(const CRouteTable& table, const std::string& name, const lpcclient::LPCCallBackData& data)
{
    if (table.Serve(name, data) == CRouteTable::Result::NobodyServes)
        BASE_LIMITED(Base::CFaultLimit, BASE_INFO, "[%s] is not served.",
                     protocol::LoggableText(name).c_str());
}

} // namespace

void CLPCDispatcher::SetWebsocketSinks(NotifySink notifyCenter, LPCHandler websocket, LPCHandler alarm)
{
    m_notifyCenter = std::move(notifyCenter);
    m_websocket = std::move(websocket);
    m_alarm = std::move(alarm);
}

void CLPCDispatcher::Dispatch(const DispatchTaskPtr& task) const
{
    if (task->protocol == kWebsocketProtocol)
        DispatchWebsocket(task);
    else if (task->protocol == kHttpProtocol)
        ServeFrom(m_http, task->url, task->data);
    else
        ServeFrom(m_methods, task->method, task->data);
}

void CLPCDispatcher::DispatchWebsocket(const DispatchTaskPtr& task) const
{
    auto held = std::make_shared<HeldNotification>();
    held->task = task;
    if (!held->notification.Parse(task->data.body))
        return;
    const bool isAlarm = held->notification.type == kAlarmMessageType;
    m_notifyCenter({held, &held->notification});
    m_websocket(task->data);
    if (isAlarm)
        m_alarm(task->data);
}

} // namespace video
