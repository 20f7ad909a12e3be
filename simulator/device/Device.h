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

    /// Wants the device to be away for a while, beginning after the delay.
    using Restart = CConfiguration::Restart;

    /// door and faults must outlive the device; folder as CStateFolder takes it.
    CDevice(DevicePlan plan, const DoorSettings& door, CFaultBook& faults, const std::string& folder,
            Complain complain, Restart restart);

    /// Reads what is kept. False with the reason in error when the folder cannot be used.
    [[nodiscard]] bool Load(std::string& error);

    const DevicePlan& Plan() const { return m_plan; }
    CChannels& Channels() { return m_channels; }
    void EndSessions() { m_sessions.EndAll(); }

    bool TakesConnection() override;
    HttpAnswer Answer(const HttpRequest& request) override;
    Begun BeginUpload(const HttpRequest& request) override;

private:
    struct Route;
    static const Route kRoutes[];

    std::optional<FaultRule> TakeFault(const HttpRequest& request);
    void RefreshFaults();
    /// The user of the request's session, or why it is not served.
    std::variant<std::string, HttpAnswer> Identify(const HttpRequest& request);
    HttpAnswer Serve(const HttpRequest& request);
    Begun ServeUpload(const HttpRequest& request);
    HttpAnswer OpenSession(const Call& call);
    HttpAnswer EndSession(const Call& call);
    HttpAnswer Ability(const Call& call);

    const DevicePlan m_plan;
    CFaultBook& m_faults;
    const Complain m_complain;
    CStateFolder m_folder;
    CParameters m_parameters;
    CUsers m_users;
    CSessions m_sessions;
    CChannels m_channels;
    CConfiguration m_configuration;
    CVoiceChannels m_voice;
};

} // namespace simulator
