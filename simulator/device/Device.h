#pragma once

#include "simulator/device/Exchanges.h"
#include "simulator/faults/Faults.h"
#include "simulator/protocol/Sessions.h"
#include "simulator/voice/VoiceChannels.h"

#include <functional>

namespace simulator {

/// One simulated device: judges each request (faults, version, session) and serves it. Any thread.
class CDevice : public IHttpHandler
{
public:
    using Complain = CStateFolder::Complain;

    /// faults must outlive the device; folder as CStateFolder takes it.
    CDevice(DevicePlan plan, const DoorSettings& door, CFaultBook& faults, const std::string& folder,
            Complain complain);

    /// Reads what is kept. False with the reason in error when the folder cannot be used.
    [[nodiscard]] bool Load(std::string& error);

    const DevicePlan& Plan() const { return m_plan; }
    CChannels& Channels() { return m_channels; }

    bool TakesConnection() override;
    HttpAnswer Answer(const HttpRequest& request) override;
    std::variant<HttpAnswer, std::unique_ptr<IUpload>> BeginUpload(const HttpRequest& request) override;

private:
    struct Route;
    static const Route kRoutes[];

    std::optional<FaultRule> TakeFault(const HttpRequest& request);
    void RefreshFaults();
    std::optional<HttpAnswer> RefuseStranger(const HttpRequest& request);
    HttpAnswer Serve(const HttpRequest& request);
    HttpAnswer OpenSession(const Call& call);
    HttpAnswer EndSession(const Call& call);
    HttpAnswer Ability(const Call& call);

    const DevicePlan m_plan;
    CFaultBook& m_faults;
    const Complain m_complain;
    CStateFolder m_folder;
    CSessions m_sessions;
    CChannels m_channels;
    CParameters m_parameters;
    CConfiguration m_configuration;
    CVoiceChannels m_voice;
};

} // namespace simulator
