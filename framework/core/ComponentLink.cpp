#include "framework/core/ComponentLink.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "LPC_Forward/Answer.h"
#include "LPC_Wire/HeaderCodec.h"
#include "LPC_Wire/Limits.h"
#include "LPC_Wire/WellKnownNames.h"
#include "Protocol/JSONStruct/HTTP/AlarmJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/Routes.h"
#include "Protocol/JSONStruct/LPC/ComponentJSONStruct.h"
#include "Protocol/JSONStruct/LPC/LPCCommonJSONStruct.h"
#include "Protocol/JSONStruct/WebSocket/WebSocketCommonJSONStruct.h"

#include <algorithm>

namespace framework {

namespace {

namespace route = protocol::route;

/// Of a body: JSON takes many times its length when it is read. The longest that a route needs names the
/// channels of all devices, in 640 KiB.
constexpr std::size_t kBodyLimit = lpc::kMiB;

/// Of requests that nobody has served yet; more are answered with "try again". Each counts its headers and
/// body, and at least so much that no more than a thousand wait.
constexpr std::size_t kMostWaitingBytes = 16 * lpc::kMiB;
constexpr std::size_t kLeastBytesOfRequest = kMostWaitingBytes / 1000;

constexpr const char* kAlarmMessage = "alarmMessage";

lpc::Message MethodMessage(const std::string& method, std::string body)
{
    return {{{"method", method}}, std::move(body)};
}

lpc::Message WebsocketMessage(const std::string& type, const std::string& guid, const std::string& data)
{
    protocol::WebSocketNotifyData notification;
    notification.type = type;
    notification.guid = guid;
    if (!data.empty())
        notification.data.text = data;
    return {{{"protocol", "websocket"}}, protocol::WriteJSONStr(notification)};
}

std::string HeaderOf(const lpc::Message& message, const char* name)
{
    const auto found = message.headers.find(name);
    return found == message.headers.end() ? std::string() : found->second;
}

/// A component need not give a status when all went well.
bool IsGood(const lpc::Message& answer)
{
    const std::string status = HeaderOf(answer, lpc::kStatusHeader);
    const std::string error = HeaderOf(answer, lpc::kErrorCodeHeader);
    return (status.empty() || status == "200") && (error.empty() || error == "0");
}

AskOutcome OutcomeOf(int error, const lpc::Message& answer)
{
    if (error == lpc::kNoError)
        return IsGood(answer) ? AskOutcome::Answered : AskOutcome::Refused;
    const bool isGone = error == lpc::kNotConnected || error == lpc::kConnectionLost;
    return isGone ? AskOutcome::NotThere : AskOutcome::NoAnswer;
}

} // namespace

const char* NameOf(AskOutcome outcome)
{
    switch (outcome) {
    case AskOutcome::Answered:
        return "the component answered";
    case AskOutcome::NotThere:
        return "the component is not there";
    case AskOutcome::NoAnswer:
        return "the component did not answer in time";
    case AskOutcome::Refused:
        return "the component answered with an error";
    case AskOutcome::Unreadable:
        break;
    }
    return "the answer does not hold what was asked for";
}

CComponentLink::CComponentLink(Events events)
    : m_events(std::move(events)), m_server(*this),
      m_forwarder(m_server, "framework", lpc::kVideoComponentName)
{
    AddOwnRoutes();
}

CComponentLink::~CComponentLink()
{
    Stop();
}

void CComponentLink::AddOwnRoutes()
{
    using namespace protocol;
    m_routes.Add("POST", route::kRegister,
                 WithBody<ComponentRegisterInfo>(
                     [this](const RouteRequest& request, const ComponentRegisterInfo& info) {
                         return Register(request, info.supportUrlList);
                     }));
    m_routes.Add(
        "POST", route::kAlarmRegister,
        WithBody<AlarmRegisterData>([this](const RouteRequest& request, const AlarmRegisterData& alarms) {
            return RegisterAlarms(request, alarms.alarmTypes);
        }));
}

int CComponentLink::Listen()
{
    m_server.SetAccepting(false);
    return m_server.Start(lpc::kFrameworkServerName);
}

void CComponentLink::Stop()
{
    m_server.Stop();
    m_worker.Stop();
    m_deviceWorker.Stop();
}

void CComponentLink::OnClientConnected(lpcserver::ClientId client, const std::string& name)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_clients[client].name = name;
    }
    if (name != lpc::kVideoComponentName)
        return;
    if (m_component != 0) {
        BASE_LIMITED(Base::CFaultLimit, BASE_WARN, "%s",
                     "A second client has the component's name; it is not taken for it.");
        return;
    }
    m_component = client;
    m_events.onJoined();
}

void CComponentLink::OnClientDisconnected(lpcserver::ClientId client)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_clients.erase(client);
    }
    if (m_component != client)
        return;
    m_component = 0;
    m_forwarder.SetServed({});
    m_events.onLeft();
}

void CComponentLink::ForgetComponent()
{
    if (m_component.exchange(0) == 0)
        return;
    BASE_WARN("A client that joined before the component was started has its name; it is not taken for it.");
    m_forwarder.SetServed({});
}

void CComponentLink::OnData(lpcserver::ClientId client, const lpc::CallBackData& data)
{
    const std::string url = data.Header("url");
    const bool isFromComponent = client == m_component;
    if (data.requestId != 0 && (isFromComponent || m_routes.Knows(url)))
        ServeLater(client, data);
    else if (!isFromComponent)
        m_forwarder.Forward(client, NameOf(client), data, m_component);
    else if (url.empty())
        m_events.onNotification(data.Header("method"));
}

void CComponentLink::ServeLater(lpcserver::ClientId client, const lpc::CallBackData& data)
{
    if (data.body.size() > kBodyLimit)
        return Reply(client, data.requestId, Failed(413, "The body is larger than 1 MiB."));
    const std::size_t bytes =
        std::max(kLeastBytesOfRequest, lpc::EncodedHeaderBytes(data.headers) + data.body.size());
    auto serve = [this, client, data, bytes] {
        m_waitingBytes -= bytes;
        Serve(client, data);
    };
    const bool waitsForDevices =
        m_routes.WaitsOf(data.Header("url"), data.Header("method")) == RouteWaits::ForDevices;
    Base::CMessageLoop& worker = waitsForDevices ? m_deviceWorker : m_worker;
    if ((m_waitingBytes += bytes) > kMostWaitingBytes || !worker.PostTask(std::move(serve))) {
        m_waitingBytes -= bytes;
        Reply(client, data.requestId, lpcforward::MakeAnswer(503, lpc::kTryAgain, {}));
    }
}

void CComponentLink::Serve(lpcserver::ClientId client, const lpc::CallBackData& data)
{
    RouteRequest request;
    request.client = client;
    request.isFromComponent = client == m_component;
    request.body = data.body;
    Reply(client, data.requestId,
          m_routes.Serve(data.Header("url"), data.Header("method"), std::move(request)));
}

void CComponentLink::Reply(lpcserver::ClientId client, lpc::RequestId request, const lpc::Message& answer)
{
    const int error = m_server.Reply(client, {request, answer.headers, answer.body});
    if (error != lpc::kNoError && error != lpc::kNotConnected)
        BASE_LIMITED(Base::CFaultLimit, BASE_WARN, "An answer to a client could not be sent. [error-%d].",
                     error);
}

lpc::Message CComponentLink::Register(const RouteRequest& request, const std::vector<std::string>& urls)
{
    if (!request.isFromComponent)
        return Failed(403, "Only a component registers urls.");
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        const auto client = m_clients.find(request.client);
        if (client == m_clients.end())
            return Failed(403, "The component has left.");
        client->second.isRegistered = true;
    }
    m_forwarder.SetServed(urls);
    return Done();
}

lpc::Message CComponentLink::RegisterAlarms(const RouteRequest& request,
                                            const std::vector<std::int32_t>& types)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto client = m_clients.find(request.client);
    if (client == m_clients.end())
        return Failed(403, "The client has left.");
    client->second.wantsAlarms = true;
    client->second.alarmTypes = types;
    return Done();
}

std::string CComponentLink::NameOf(lpcserver::ClientId client) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_clients.find(client);
    return found == m_clients.end() ? std::string() : found->second.name;
}

void CComponentLink::Send(lpcserver::ClientId client, const lpc::Message& notification)
{
    const int error = client == 0 ? lpc::kNotConnected : m_server.Notify(client, notification);
    if (error != lpc::kNoError && error != lpc::kNotConnected)
        BASE_LIMITED(Base::CFaultLimit, BASE_WARN, "A notification could not be sent. [error-%d].", error);
}

void CComponentLink::Notify(const protocol::ILPCData& payload)
{
    Send(m_component, MethodMessage(payload.Key(), protocol::WriteLPCStr(payload)));
}

void CComponentLink::NotifyMethod(const std::string& method)
{
    Send(m_component, MethodMessage(method, protocol::WriteLPCStr(method)));
}

void CComponentLink::Ask(const protocol::ILPCData& payload, std::uint32_t timeoutMs,
                         std::function<void(const std::string*)> onAnswer)
{
    const auto take = [onAnswer](int error, const lpc::Message& answer) {
        onAnswer(error == lpc::kNoError ? &answer.body : nullptr);
    };
    const lpc::Message request = MethodMessage(payload.Key(), protocol::WriteLPCStr(payload));
    if (m_component == 0 || m_server.Send(m_component, request, timeoutMs, take) != lpc::kNoError)
        onAnswer(nullptr);
}

void CComponentLink::AskRoute(const std::string& url, const std::string& body, std::uint32_t timeoutMs,
                              OnRouteAnswer onAnswer)
{
    const auto take = [url, onAnswer](int error, const lpc::Message& answer) {
        const AskOutcome outcome = OutcomeOf(error, answer);
        if (outcome != AskOutcome::Answered)
            BASE_LIMITED(Base::CFaultLimit, BASE_WARN, "No answer of %s: %s. [error-%d].", url.c_str(),
                         framework::NameOf(outcome), error);
        onAnswer(outcome, outcome == AskOutcome::Answered ? answer.body : std::string());
    };
    const lpc::Message request{{{"protocol", "http"}, {"method", "POST"}, {"url", url}}, body};
    const lpcserver::ClientId component = m_component;
    const int error =
        component == 0 ? lpc::kNotConnected : m_server.Send(component, request, timeoutMs, take);
    if (error != lpc::kNoError)
        take(error, {});
}

void CComponentLink::Publish(const std::string& type, const std::string& guid, const std::string& data)
{
    const lpcserver::ClientId component = m_component;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        const auto client = m_clients.find(component);
        if (client == m_clients.end() || !client->second.isRegistered)
            return;
    }
    Send(component, WebsocketMessage(type, guid, data));
}

void CComponentLink::PublishAlarm(int alarmType, const std::string& guid, const std::string& data)
{
    std::vector<lpcserver::ClientId> takers;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        for (const auto& [id, client] : m_clients) {
            const auto& types = client.alarmTypes;
            const bool fits =
                types.empty() || std::find(types.begin(), types.end(), alarmType) != types.end();
            if (client.wantsAlarms && fits)
                takers.push_back(id);
        }
    }
    for (const lpcserver::ClientId taker : takers)
        Send(taker, WebsocketMessage(kAlarmMessage, guid, data));
}

} // namespace framework
