#include "logical/Communication/LPCClientPackage.h"

#include "Base/AsyncTask.h"
#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "CommonMethodLib/WorkerPool.h"
#include "CommunicationLayer/FrameworkRequests.h"
#include "Protocol/JSONStruct/LPC/LPCCommonJSONStruct.h"
#include "logical/Communication/LPCNames.h"
#include "logical/Communication/RouteHandler.h"

namespace video {

namespace {

constexpr const char* kLogger = "VideoLogger";

/// Passes the library's result on; a failure is logged with the library's reason.
template<typename Result>
Result LoggedSend(Result result)
{
    if (result)
        return result;
    static Base::CFaultLimit limit;
    if (const auto skipped = limit.Next())
        BASE_ERROR_TO(kLogger, "Failed to send. LastError: [%d].%s", lpcclient::GetLPCLastError(),
                      skipped->c_str());
    return result;
}

constexpr int kOk = 200;

lpc::HeaderMap AnswerHeaders(const lpcclient::LPCCallBackData& call, const RouteAnswer& answer)
{
    lpc::HeaderMap headers = call.headers;
    if (answer.status != kOk)
        headers[lpc::kStatusHeader] = std::to_string(answer.status);
    if (answer.error != 0)
        headers[lpc::kErrorCodeHeader] = std::to_string(answer.error);
    return headers;
}

/// Counts the tasks that live.
struct CountedTask : CDispatchTask
{
    CountedTask(const lpcclient::LPCCallBackData& call, std::shared_ptr<std::atomic<std::uint64_t>> count)
        : CDispatchTask(call), underWay(std::move(count))
    {
        ++*underWay;
    }
    ~CountedTask() { --*underWay; }

    const std::shared_ptr<std::atomic<std::uint64_t>> underWay;
};

} // namespace

CLPCClientPackage::CLPCClientPackage(PostTask postTask)
    : m_postTask(postTask), m_inOrder(postTask), m_alarmTasks(std::move(postTask))
{}

CLPCClientPackage::~CLPCClientPackage() = default;

CLPCClientPackage& CLPCClientPackage::Instance()
{
    static CLPCClientPackage* const link = new CLPCClientPackage(
        [](Base::Task task) { return comm_methodlib::CWorkerPool::Instance().PostTask(std::move(task)); });
    return *link;
}

void CLPCClientPackage::Init()
{
    if (!lpcclient::Init(kLPCClientName, false)) {
        BASE_ERROR_TO(kLogger, "Failed to lpcclient::Init. LastError: [%d].", lpcclient::GetLPCLastError());
        return;
    }
    if (!lpcclient::ConnectToServer(kLPCServerName)) {
        BASE_ERROR_TO(kLogger, "Failed to lpcclient::connectToServer. LastError: [%d].",
                      lpcclient::GetLPCLastError());
        return;
    }
    const auto onInvoke = [](const lpcclient::LPCCallBackData& data, void* self) {
        return static_cast<CLPCClientPackage*>(self)->OnInvoke(data);
    };
    if (!lpcclient::SetInvokeCallBack(onInvoke, this)) {
        BASE_ERROR_TO(kLogger, "Failed to lpcclient::SetInvokeCallBack. LastError: [%d].",
                      lpcclient::GetLPCLastError());
        return;
    }
    RegisterServedUrls();
    BASE_INFO("alarmRegisteredRet async start.");
    m_alarmRegistered = Base::RunAsync("alarm-register", [this] { RegisterAlarm(); });
}

void CLPCClientPackage::UnInit()
{
    if (!lpcclient::SetInvokeCallBack({}, nullptr))
        BASE_ERROR_TO(kLogger, "Failed to lpcclient::SetInvokeCallBack. LastError: [%d].",
                      lpcclient::GetLPCLastError());
    if (!lpcclient::DisconnectToServer())
        BASE_ERROR_TO(kLogger, "Failed to lpcclient::DisconnectToServer. LastError: [%d].",
                      lpcclient::GetLPCLastError());
    // Disconnecting has ended the wait for the answer, so this takes no time.
    if (m_alarmRegistered.valid())
        m_alarmRegistered.get();
    if (!lpcclient::Uninit())
        BASE_ERROR_TO(kLogger, "Failed to lpcserver::Uninit. LastError: [%d].", lpcclient::GetLPCLastError());
}

bool CLPCClientPackage::Notify(const lpcclient::tag_LPCNotifyData& notification)
{
    return LoggedSend(lpcclient::Notify(notification));
}

bool CLPCClientPackage::Reply(const lpcclient::tag_LPCReplyData& reply)
{
    return LoggedSend(lpcclient::Reply(reply));
}

lpcclient::RequestId CLPCClientPackage::Send(const lpcclient::tag_LPCRequestData& request)
{
    return LoggedSend(lpcclient::Send(request));
}

bool CLPCClientPackage::SendEx(lpcclient::tag_LPCResponseData& response,
                               const lpcclient::tag_LPCRequestData& request, lpcclient::RequestId& id,
                               std::uint32_t timeoutMs)
{
    return LoggedSend(lpcclient::SendEx(response, request, id, timeoutMs));
}

bool CLPCClientPackage::NotifyMethod(const std::string& method)
{
    return Notify({{{kMethodHeader, method}}, protocol::WriteLPCStr(method)});
}

bool CLPCClientPackage::ReplyBody(const lpcclient::LPCCallBackData& call, const std::string& body)
{
    return Reply({call.requestId, call.headers, body});
}

bool CLPCClientPackage::Answer(const lpcclient::LPCCallBackData& call, const RouteAnswer& answer)
{
    if (call.requestId == 0)
        return true;
    if (Reply({call.requestId, AnswerHeaders(call, answer), answer.body}))
        return true;
    if (lpcclient::GetLPCLastError() != lpc::kTooLong)
        return false;
    const RouteAnswer tooLong = TooLongAnswer();
    return Reply({call.requestId, AnswerHeaders(call, tooLong), tooLong.body});
}

bool CLPCClientPackage::ReplyMethod(const lpcclient::LPCCallBackData& call, const protocol::ILPCData& payload)
{
    return ReplyBody(call, protocol::WriteLPCStr(payload));
}

void CLPCClientPackage::RegisterAlarm()
{
    if (commlayer::CRegisterAlarm::request())
        BASE_LIMITED(Base::CCallLimit, BASE_INFO, "%s", "Register alarm success.");
    else
        BASE_ERROR_TO(kLogger, "Failed to register alarm.");
}

void CLPCClientPackage::RegisterAlarmLater()
{
    if (m_alarmAsked.exchange(true))
        return;
    m_alarmTasks.PostTask([this] {
        m_alarmAsked = false;
        RegisterAlarm();
    });
}

protocol::ComponentStateData CLPCClientPackage::State() const
{
    protocol::ComponentStateData state;
    const auto running = std::chrono::steady_clock::now() - m_created;
    state.runningSeconds = std::chrono::duration_cast<std::chrono::seconds>(running).count();
    state.messagesTaken = m_taken;
    state.messagesUnderWay = *m_underWay;
    return state;
}

bool CLPCClientPackage::OnInvoke(const lpcclient::LPCCallBackData& data)
{
    ++m_taken;
    const DispatchTaskPtr task = std::make_shared<CountedTask>(data, m_underWay);
    auto dispatch = [this, task] { m_dispatcher.Dispatch(task); };
    if (task->protocol == kHttpProtocol)
        m_postTask(std::move(dispatch));
    else
        m_inOrder.PostTask(std::move(dispatch));
    return true;
}

void CLPCClientPackage::RegisterServedUrls()
{
    commlayer::CRegisterComponent::request(m_servedUrls);
}

} // namespace video
