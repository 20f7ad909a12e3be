#include "logical/Communication/LPCDispatcher.h"

#include "Base/Log.h"
#include "logical/Communication/LPCNames.h"

namespace video {

namespace {

void ServeFrom(const CRouteTable& table, const std::string& name, const lpcclient::LPCCallBackData& data)
{
    if (table.Serve(name, data) == CRouteTable::Result::NobodyServes)
        BASE_INFO("[%s] is not served.", name.c_str());
}

} // namespace

void CLPCDispatcher::SetWebsocketSinks(NotifySink notifyCenter, LPCHandler websocket, LPCHandler alarm)
{
    m_notifyCenter = std::move(notifyCenter);
    m_websocket = std::move(websocket);
    m_alarm = std::move(alarm);
}

void CLPCDispatcher::Dispatch(const lpcclient::LPCCallBackData& data) const
{
    const std::string protocol = data.Header(kProtocolHeader);
    if (protocol == kWebsocketProtocol)
        DispatchWebsocket(data);
    else if (protocol == kHttpProtocol)
        ServeFrom(m_http, data.Header(kUrlHeader), data);
    else
        ServeFrom(m_methods, data.Header(kMethodHeader), data);
}

void CLPCDispatcher::DispatchWebsocket(const lpcclient::LPCCallBackData& data) const
{
    auto notification = std::make_shared<protocol::WebSocketNotifyData>();
    if (!notification->Parse(data.body))
        return;
    const bool isAlarm = notification->type == kAlarmMessageType;
    m_notifyCenter(std::move(notification));
    m_websocket(data);
    if (isAlarm)
        m_alarm(data);
}

} // namespace video
