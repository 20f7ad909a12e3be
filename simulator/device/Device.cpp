#include "simulator/device/Device.h"

namespace simulator {

struct CDevice::Route
{
    const char* method;
    const char* stem;
    HttpAnswer (*serve)(CDevice& device, const Call& call);
};

const CDevice::Route CDevice::kRoutes[] = {
    {"GET", "config",
     [](CDevice& device, const Call& call) { return GetConfig(device.m_configuration, call); }},
    {"PUT", "config",
     [](CDevice& device, const Call& call) { return SetConfig(device.m_configuration, call); }},
    {"POST", "batch/get",
     [](CDevice& device, const Call& call) { return GetBatch(device.m_configuration, call); }},
    {"POST", "batch/set",
     [](CDevice& device, const Call& call) { return SetBatch(device.m_configuration, call); }},
    {"POST", "std/get",
     [](CDevice& device, const Call& call) { return GetStandard(device.m_configuration, call); }},
    {"POST", "std/set",
     [](CDevice& device, const Call& call) { return SetStandard(device.m_configuration, call); }},
    {"GET", "ability", [](CDevice& device, const Call& call) { return device.Ability(call); }},
    {"DELETE", "session", [](CDevice& device, const Call& call) { return device.EndSession(call); }},
};

CDevice::CDevice(DevicePlan plan, const DoorSettings& door, CFaultBook& faults, const std::string& folder,
                 Complain complain)
    : m_plan(std::move(plan)), m_faults(faults), m_complain(complain), m_folder(folder, complain),
      m_sessions(door), m_channels(m_plan.channels), m_parameters(m_folder),
      m_configuration(m_plan, m_channels, m_parameters), m_voice(m_plan, folder)
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

/// What answers in place of the device.
static std::optional<HttpAnswer> InsteadOfServing(const FaultRule& fault)
{
    HttpAnswer answer;
    if (fault.kind == FaultKind::Error)
        return Refusal(fault.status, fault.error, fault.module, fault.own);
    if (fault.kind != FaultKind::Refuse)
        return std::nullopt;
    answer.delivery.drops = true;
    return answer;
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

std::optional<HttpAnswer> CDevice::RefuseStranger(const HttpRequest& request)
{
    if (request.version != "1")
        return Refusal(505, 301);
    if (m_sessions.Touch(request.session))
        return std::nullopt;
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
    if (auto refusal = RefuseStranger(request))
        return std::move(*refusal);
    if (!call)
        return AnswerOf(kUnknownCommand);
    for (const Route& route : kRoutes)
        if (call->stem == route.stem && request.method == route.method)
            return route.serve(*this, *call);
    return AnswerOf(kUnknownCommand);
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
    return AnswerOf(std::optional<Refused>());
}

HttpAnswer CDevice::Ability(const Call&)
{
    return AnswerOf(kUnknownCommand);
}

std::variant<HttpAnswer, std::unique_ptr<IUpload>> CDevice::BeginUpload(const HttpRequest& request)
{
    const auto fault = TakeFault(request);
    if (fault)
        if (auto instead = InsteadOfServing(*fault))
            return std::move(*instead);
    if (auto refusal = RefuseStranger(request))
        return std::move(*refusal);
    const auto call = TakeApart(request);
    if (!call || call->stem != "voice" || request.method != "POST")
        return AnswerOf(kBadRequest);
    return m_voice.Begin(call->number, NumberIn(request.query, "encoding"), NumberIn(request.query, "rate"));
}

} // namespace simulator
