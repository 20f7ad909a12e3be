#include "logical/Communication/LPCDispatcher.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "Protocol/JSONStruct/LoggableText.h"
#include "logical/Communication/LPCNames.h"

namespace video {

namespace {

/// A notification, which holds its message until everybody is done with it.
struct HeldNotification
{
    protocol::WebSocketNotifyData notification;
    CLPCDispatcher::Call call;
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

void CLPCDispatcher::Dispatch(const Call& call) const
{
    const std::string protocol = call->Header(kProtocolHeader);
    if (protocol == kWebsocketProtocol)
        DispatchWebsocket(call);
    else if (protocol == kHttpProtocol)
        ServeFrom(m_http, call->Header(kUrlHeader), *call);
    else
        ServeFrom(m_methods, call->Header(kMethodHeader), *call);
}

void CLPCDispatcher::DispatchWebsocket(const Call& call) const
{
    auto held = std::make_shared<HeldNotification>();
    held->call = call;
    if (!held->notification.Parse(call->body))
        return;
    const bool isAlarm = held->notification.type == kAlarmMessageType;
    m_notifyCenter({held, &held->notification});
    m_websocket(*call);
    if (isAlarm)
        m_alarm(*call);
}

} // namespace video
