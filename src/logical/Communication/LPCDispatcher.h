#pragma once

#include "Protocol/JSONStruct/WebSocket/WebSocketCommonJSONStruct.h"
#include "logical/Communication/DispatchTask.h"
#include "logical/Communication/RouteTable.h"

#include <functional>
#include <memory>

namespace video {

/// Hands what arrives over the local channel to whoever serves it: first by protocol, then by url or method.
///
/// It knows no route itself; see CRouteTable. Dispatch runs on threads of the worker pool and may be called
/// by several at a time.
class CLPCDispatcher
{
public:
    using NotifySink = std::function<void(std::shared_ptr<protocol::WebSocketNotifyData>)>;

    /// Routes of the protocol "http", by url.
    CRouteTable& Http() { return m_http; }
    /// Everything that is neither "http" nor "websocket", by method.
    CRouteTable& Methods() { return m_methods; }

    /// Who receives websocket notifications: the notify centre every parsed one, websocket each one's
    /// callback data, and alarm those of the type "alarmMessage". Set all before the link is opened.
    void SetWebsocketSinks(NotifySink notifyCenter, LPCHandler websocket, LPCHandler alarm);

    void Dispatch(const DispatchTaskPtr& task) const;

private:
    void DispatchWebsocket(const DispatchTaskPtr& task) const;

    CRouteTable m_http;
    CRouteTable m_methods;
    NotifySink m_notifyCenter;
    LPCHandler m_websocket;
    LPCHandler m_alarm;
};

} // namespace video
