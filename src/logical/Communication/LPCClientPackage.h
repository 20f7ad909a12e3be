#pragma once

#include "Base/Noncopyable.h"
#include "Base/SerialTasks.h"
#include "Protocol/JSONStruct/LPC/ComponentJSONStruct.h"
#include "logical/Communication/LPCDispatcher.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <future>
#include <memory>
#include <string>

namespace video {

/// The component's link to the framework: connects, registers what the component serves, hands what arrives
/// to the worker pool, and sends. Init and UnInit belong to the GUI thread; everything else may be called
/// from any thread.
class CLPCClientPackage : Base::CNoncopyable
{
public:
    /// Posts work to the worker pool; false when the pool was stopped.
    using PostTask = std::function<bool(Base::Task)>;

    explicit CLPCClientPackage(PostTask postTask);
    ~CLPCClientPackage();

    /// The process's link, on the component's worker pool.
    static CLPCClientPackage& Instance();

    /// Where subsystems put their rows, before Init.
    CLPCDispatcher& Dispatcher() { return m_dispatcher; }

    /// The names that Init registers with the framework, in their order. Before Init.
    void SetServedUrls(std::vector<std::string> urls) { m_servedUrls = std::move(urls); }

    /// Connects and registers with the framework. Stops at the first failure; the component then runs without
    /// a link.
    void Init();

    /// Ends the link. Waiting requests fail at once; tasks that are queued already still run. May be called
    /// again.
    void UnInit();

    bool Notify(const lpcclient::tag_LPCNotifyData& notification);
    bool Reply(const lpcclient::tag_LPCReplyData& reply);
    lpcclient::RequestId Send(const lpcclient::tag_LPCRequestData& request);
    bool SendEx(lpcclient::tag_LPCResponseData& response, const lpcclient::tag_LPCRequestData& request,
                lpcclient::RequestId& id, std::uint32_t timeoutMs);

    /// Sends a notification of this method with an empty payload.
    bool NotifyMethod(const std::string& method);

    /// Answers a call with the body, under the call's request identifier and header map.
    bool ReplyBody(const lpcclient::LPCCallBackData& call, const std::string& body);

    /// Answers a call of a route, with the status and error number as headers beside those of the call where
    /// they report something. An answer that is too long for the channel is replaced by one that says so. A
    /// notification takes no answer: nothing is sent, and the result is true.
    bool Answer(const lpcclient::LPCCallBackData& call, const RouteAnswer& answer);

    /// Answers a method call with the payload, in the envelope of the payload's method.
    bool ReplyMethod(const lpcclient::LPCCallBackData& call, const protocol::ILPCData& payload);

    /// Registers for the framework's alarms; waits for the answer.
    void RegisterAlarm();

    /// The same on a pool thread. One registration is under way at a time; what is asked for meanwhile is one
    /// more.
    void RegisterAlarmLater();

    /// How the link does, for people who look for a fault. Any thread.
    protocol::ComponentStateData State() const;

private:
    bool OnInvoke(const lpcclient::LPCCallBackData& data);
    void RegisterServedUrls();

    const std::chrono::steady_clock::time_point m_created = std::chrono::steady_clock::now();
    std::atomic<std::uint64_t> m_taken{0};
    /// Shared with the messages, of which some may outlive the link.
    const std::shared_ptr<std::atomic<std::uint64_t>> m_underWay =
        std::make_shared<std::atomic<std::uint64_t>>(0);
    PostTask m_postTask;
    Base::CSerialTasks m_inOrder; ///< methods and websocket notifications; "http" requests run side by side
    CLPCDispatcher m_dispatcher;
    std::vector<std::string> m_servedUrls;
    Base::CSerialTasks m_alarmTasks;
    std::atomic<bool> m_alarmAsked{false};
    std::future<void> m_alarmRegistered;
};

} // namespace video
