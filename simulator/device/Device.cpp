#include "simulator/device/Device.h"

#include "simulator/abilities/AbilityDocument.h"

#include <algorithm>

namespace simulator {

namespace {

/// What a set of a command needs; other sets need the right to configure.
struct NeededRight
{
    unsigned command;
    UserRight right; ///< null: only administrators may
};

constexpr NeededRight kRights[] = {
    {QXNET_SET_USERS, nullptr},
    {QXNET_SET_USER_PASSWORD, nullptr},
    {QXNET_REBOOT, &QxNetUser::maintenance},
    {QXNET_RESET, &QxNetUser::maintenance},
    {QXNET_FORMAT_DISK, &QxNetUser::maintenance},
    {QXNET_SWITCH_ALARM_OUTPUT, &QxNetUser::alarmOutputs},
    {QXNET_SET_WIPER, &QxNetUser::movement},
    {QXNET_SET_PTZ_LOCK, &QxNetUser::movement},
};

UserRight RightFor(unsigned command)
{
    for (const NeededRight& needed : kRights)
        if (needed.command == command)
            return needed.right;
    return &QxNetUser::configuration;
}

/// What answers in place of the device.
std::optional<HttpAnswer> InsteadOfServing(const FaultRule& fault)
{
    HttpAnswer answer;
    if (fault.kind == FaultKind::Error)
        return Refusal(fault.status, fault.error, fault.module, fault.own);
    if (fault.kind != FaultKind::Refuse)
        return std::nullopt;
    answer.delivery.drops = true;
    return answer;
}

/// An upload whose answer has a fault.
class CSpoiltUpload : public IUpload
{
public:
    CSpoiltUpload(std::unique_ptr<IUpload> upload, FaultRule fault)
        : m_upload(std::move(upload)), m_fault(std::move(fault))
    {}

    bool Write(std::string_view octets) override { return m_upload->Write(octets); }
    HttpAnswer Finish() override
    {
        HttpAnswer answer = m_upload->Finish();
        Spoil(m_fault, answer);
        return answer;
    }

private:
    const std::unique_ptr<IUpload> m_upload;
    const FaultRule m_fault;
};

HttpAnswer Done()
{
    return AnswerOf(std::optional<Refused>());
}

} // namespace

struct CDevice::Route
{
    const char* method;
    const char* stem;
    bool changes; ///< it wants a right
    HttpAnswer (*serve)(CDevice& device, const Call& call);
};

const CDevice::Route CDevice::kRoutes[] = {
    {"GET", "config", false,
     [](CDevice& device, const Call& call) { return GetConfig(device.m_configuration, call); }},
    {"PUT", "config", true,
     [](CDevice& device, const Call& call) { return SetConfig(device.m_configuration, call); }},
    {"POST", "batch/get", false,
     [](CDevice& device, const Call& call) { return GetBatch(device.m_configuration, call); }},
    {"POST", "batch/set", true,
     [](CDevice& device, const Call& call) { return SetBatch(device.m_configuration, call); }},
    {"POST", "std/get", false,
     [](CDevice& device, const Call& call) { return GetStandard(device.m_configuration, call); }},
    {"POST", "std/set", true,
     [](CDevice& device, const Call& call) { return SetStandard(device.m_configuration, call); }},
    {"GET", "ability", false, [](CDevice& device, const Call& call) { return device.Ability(call); }},
    {"DELETE", "session", false, [](CDevice& device, const Call& call) { return device.EndSession(call); }},
};

CDevice::CDevice(DevicePlan plan, const DoorSettings& door, CFaultBook& faults, const std::string& folder,
                 Complain complain, Restart restart)
    : m_plan(std::move(plan)), m_faults(faults), m_complain(complain), m_folder(folder, complain),
      m_parameters(m_folder), m_users(door, m_parameters), m_sessions(door, m_users),
      m_channels(m_plan.channels),
      m_configuration(m_plan, m_channels, m_users, m_parameters, std::move(restart)), m_voice(m_plan, folder)
{}

bool CDevice::Load(std::string& error)
{
    return m_parameters.Load(error);
}

void CDevice::RefreshFaults()
{
    std::string error;
    if (!m_faults.Refresh(error))
        m_complain(error);
}

bool CDevice::TakesConnection()
{
    RefreshFaults();
    return !m_faults.TakeForConnection(m_plan.index);
}

std::optional<FaultRule> CDevice::TakeFault(const HttpRequest& request)
{
    RefreshFaults();
    FaultSubject subject{m_plan.index, request.method, request.path, NumberIn(request.query, "channel")};
    if (const auto call = TakeApart(request))
        subject.path = call->stem + (call->number ? '/' + std::to_string(call->number) : std::string());
    return m_faults.Take(subject);
}

HttpAnswer CDevice::Answer(const HttpRequest& request)
{
    const auto fault = TakeFault(request);
    if (!fault)
        return Serve(request);
    if (auto instead = InsteadOfServing(*fault))
        return std::move(*instead);
    HttpAnswer answer = Serve(request);
    Spoil(*fault, answer);
    return answer;
}

std::variant<std::string, HttpAnswer> CDevice::Identify(const HttpRequest& request)
{
    if (request.version != "1")
        return Refusal(505, 301);
    if (auto user = m_sessions.Touch(request.session)) {
        if (m_users.LetsIn(*user))
            return std::move(*user);
        m_sessions.End(request.session);
    }
    HttpAnswer answer;
    answer.status = 401;
    answer.headers = {{"Vantor-Session", "ended"}};
    return answer;
}

HttpAnswer CDevice::Serve(const HttpRequest& request)
{
    const auto call = TakeApart(request);
    if (call && call->stem == "session" && request.method == "POST" && request.version == "1")
        return OpenSession(*call);
    auto identity = Identify(request);
    if (auto* refusal = std::get_if<HttpAnswer>(&identity))
        return std::move(*refusal);
    const auto route = std::find_if(std::begin(kRoutes), std::end(kRoutes), [&](const Route& known) {
        return call && call->stem == known.stem && request.method == known.method;
    });
    if (route == std::end(kRoutes))
        return AnswerOf(kUnknownCommand);
    if (route->changes && !m_users.May(std::get<std::string>(identity), RightFor(call->number)))
        return AnswerOf(kNotAllowed);
    return route->serve(*this, *call);
}

HttpAnswer CDevice::OpenSession(const Call& call)
{
    HttpAnswer answer = m_sessions.Open(call.request);
    if (answer.status == 200)
        answer.body = OctetsOf(m_configuration.Info());
    return answer;
}

HttpAnswer CDevice::EndSession(const Call& call)
{
    m_sessions.End(call.request.session);
    return Done();
}

HttpAnswer CDevice::Ability(const Call& call)
{
    const auto channel = NumberIn(call.request.query, "channel");
    if (!channel)
        return AnswerOf(kBadRequest);
    if (*channel > m_plan.channels.size())
        return AnswerOf(kUnknownChannel);
    std::string document = abilities::AbilityDocument(m_plan.kind, m_configuration.Info(),
                                                      static_cast<std::int32_t>(*channel), call.number);
    if (document.empty())
        return AnswerOf(kUnknownCommand);
    return AnswerOf(Outcome(std::make_shared<const std::string>(std::move(document))));
}

CDevice::Begun CDevice::BeginUpload(const HttpRequest& request)
{
    const auto fault = TakeFault(request);
    if (!fault)
        return ServeUpload(request);
    if (auto instead = InsteadOfServing(*fault))
        return std::move(*instead);
    Begun begun = ServeUpload(request);
    if (auto* refusal = std::get_if<HttpAnswer>(&begun))
        Spoil(*fault, *refusal);
    else
        begun = std::make_unique<CSpoiltUpload>(std::move(std::get<std::unique_ptr<IUpload>>(begun)), *fault);
    return begun;
}

CDevice::Begun CDevice::ServeUpload(const HttpRequest& request)
{
    auto identity = Identify(request);
    if (auto* refusal = std::get_if<HttpAnswer>(&identity))
        return std::move(*refusal);
    const auto call = TakeApart(request);
    if (!call || call->stem != "voice" || request.method != "POST")
        return AnswerOf(kBadRequest);
    if (!m_users.May(std::get<std::string>(identity), &QxNetUser::voice))
        return AnswerOf(kNotAllowed);
    // Who speaks for long sends no other request meanwhile.
    return m_voice.Begin(call->number, NumberIn(request.query, "encoding"), NumberIn(request.query, "rate"),
                         [this, session = request.session] { (void)m_sessions.Touch(session); });
}

} // namespace simulator
