#pragma once

#include "Base/MessageLoop.h"
#include "LPC_Forward/Forwarder.h"
#include "LPC_Server/LPC_Server.h"
#include "Protocol/JSONStruct/IJSONStruct.h"
#include "framework/core/ComponentAnswer.h"
#include "framework/core/RouteTable.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace framework {

/// The framework's end of the local channel. Serves the routes on a worker, those that wait for devices on
/// another one, passes on to the component what
/// other clients address to it, and sends to the component. Any thread.
class CComponentLink : private lpcserver::IServerEvents, Base::CNoncopyable
{
public:
    /// Called on the server's thread.
    struct Events
    {
        std::function<void()> onJoined;
        std::function<void()> onLeft;
        std::function<void(const std::string& method)> onNotification; ///< of the component
    };

    explicit CComponentLink(Events events);
    /// Stops.
    ~CComponentLink() override;

    /// Where rows are put in, before Open. Registering is served by the link itself.
    CRouteTable& Routes() { return m_routes; }

    /// Listens; requests are refused with lpc::kTryAgain until Open. An lpc::Error.
    [[nodiscard]] int Listen();
    void Open() { m_server.SetAccepting(true); }
    void Stop();

    bool IsJoined() const { return m_component != 0; }

    /// To be called before a component is started: who has its name now is another client from then on.
    void ForgetComponent();

    /// Sends the component a method's notification, if it is there.
    void Notify(const protocol::ILPCData& payload);
    void NotifyMethod(const std::string& method);

    /// Sends the component a method's request. onAnswer is called once, on the server's thread or at once on
    /// this one; body is none when there is no answer in time.
    void Ask(const protocol::ILPCData& payload, std::uint32_t timeoutMs,
             std::function<void(const std::string* body)> onAnswer);

    /// Takes the body of an answer; empty unless it is AskOutcome::Answered.
    using OnRouteAnswer = std::function<void(AskOutcome outcome, const std::string& body)>;

    /// Asks a route of the component with a JSON body. onAnswer is called as that of Ask.
    void AskRoute(const std::string& url, const std::string& body, std::uint32_t timeoutMs,
                  OnRouteAnswer onAnswer);

    /// Sends a websocket notification to the component when it has registered. data: JSON, or empty.
    void Publish(const std::string& type, const std::string& guid, const std::string& data);

    /// Sends an alarm to every client that registered for its type.
    void PublishAlarm(int alarmType, const std::string& guid, const std::string& data);

private:
    struct Client
    {
        std::string name;
        bool isRegistered = false;
        bool wantsAlarms = false;
        std::vector<std::int32_t> alarmTypes; ///< empty: all
    };

    void OnClientConnected(lpcserver::ClientId client, const std::string& name) override;
    void OnClientDisconnected(lpcserver::ClientId client) override;
    void OnData(lpcserver::ClientId client, const lpc::CallBackData& data) override;

    void AddOwnRoutes();
    void ServeLater(lpcserver::ClientId client, const lpc::CallBackData& data);
    void Serve(lpcserver::ClientId client, const lpc::CallBackData& data);
    void Reply(lpcserver::ClientId client, lpc::RequestId request, const lpc::Message& answer);
    lpc::Message Register(const RouteRequest& request, const std::vector<std::string>& urls);
    lpc::Message RegisterAlarms(const RouteRequest& request, const std::vector<std::int32_t>& types);
    std::string NameOf(lpcserver::ClientId client) const;
    void Send(lpcserver::ClientId client, const lpc::Message& notification);

    const Events m_events;
    CRouteTable m_routes;
    std::atomic<lpcserver::ClientId> m_component{0};
    std::atomic<std::size_t> m_waitingBytes{0}; ///< of requests that the workers have not begun
    mutable std::mutex m_mutex;
    std::map<lpcserver::ClientId, Client> m_clients;
    lpcserver::CLPCServer m_server;
    lpcforward::CForwarder m_forwarder;
    Base::CMessageLoop m_worker{"routes"};
    Base::CMessageLoop m_deviceWorker{"device-routes"};
};

} // namespace framework
