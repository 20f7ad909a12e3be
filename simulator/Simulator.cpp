#include "simulator/Simulator.h"

#include "Base/FileUtil.h"
#include "simulator/server/Certificate.h"

#include <cjson/cJSON.h>

namespace simulator {

namespace {

/// Some wait for a disk now and then, and their connections with them, so more than there are processors.
constexpr unsigned kThreads = 4;

/// In which the answer to a request to restart leaves.
constexpr std::chrono::milliseconds kTimeToAnswer{100};
constexpr std::chrono::seconds kTimeToTryAgain{1};

} // namespace

CSimulator::CSimulator(const Settings& settings, CDevice::Complain complain)
    : m_settings(settings), m_complain(std::move(complain)),
      m_faults(settings.faults, [this](const ChannelSetting& setting) { SetChannel(setting); }),
      m_threads(kThreads)
{}

CSimulator::~CSimulator()
{
    Stop();
}

bool CSimulator::Start(std::string& error)
{
    if (!TakeStateFolder(error) || !LoadDevices(error) || !m_faults.Refresh(error))
        return false;
    if (m_settings.useTls) {
        m_identity = ProvideIdentity(m_settings.state, m_settings.wantsNewCertificate, error);
        if (!m_identity)
            return false;
    }
    if (!Listen(error))
        return false;
    m_threads.Start();
    return true;
}

bool CSimulator::TakeStateFolder(std::string& error)
{
    using Result = Base::CFileLock::Result;
    const std::string& folder = m_settings.state;
    if (folder.empty())
        return true;
    const Result taken =
        Base::FileUtil::MakeDirs(folder) ? m_stateLock.Take(folder + "lock") : Result::Failed;
    if (taken != Result::Held)
        error = "state folder " + folder +
                (taken == Result::Busy ? " is in use by another program" : " cannot be used");
    return taken == Result::Held;
}

bool CSimulator::LoadDevices(std::string& error)
{
    for (DevicePlan& plan :
         PlanDevices(m_settings.devices, m_settings.cameras, m_settings.firstKind, m_settings.types)) {
        const std::string folder = m_settings.state.empty()
                                       ? std::string()
                                       : m_settings.state + "device-" + std::to_string(plan.index) + '/';
        const unsigned index = plan.index;
        plan.voice = m_settings.voice.value_or(plan.voice);
        m_devices.push_back(std::make_unique<CDevice>(
            std::move(plan), m_settings.door, m_faults, folder, m_complain,
            [this, index](std::chrono::seconds delay) { Restart(index, delay + kTimeToAnswer); }));
        if (!m_devices.back()->Load(error))
            return false;
    }
    return true;
}

bool CSimulator::Listen(std::string& error)
{
    for (const auto& device : m_devices) {
        auto server = std::make_unique<CHttpServer>(m_threads, *device, m_identity ? &*m_identity : nullptr);
        const std::uint16_t port = PortOf(m_settings, device->Plan().index);
        if (!server->Listen(m_settings.listen, port, error)) {
            error = "cannot listen on " + m_settings.listen + " port " + std::to_string(port) + ": " + error;
            return false;
        }
        m_servers.push_back(std::move(server));
    }
    return true;
}

void CSimulator::SetChannel(const ChannelSetting& setting)
{
    if (setting.device < m_devices.size())
        m_devices[setting.device]->Channels().Set(setting.channel, setting.name, setting.state);
}

void CSimulator::Restart(unsigned device, std::chrono::milliseconds delay)
{
    m_threads.After(delay, [this, device] {
        m_servers[device]->Close();
        m_devices[device]->EndSessions();
        m_threads.After(m_settings.rebootTime, [this, device] { ListenAgain(device); });
    });
}

void CSimulator::ListenAgain(unsigned device)
{
    std::string error;
    if (m_servers[device]->IsListening() || m_servers[device]->Listen(m_settings.listen, 0, error))
        return;
    m_complain("device " + std::to_string(device) + " cannot listen again: " + error);
    m_threads.After(kTimeToTryAgain, [this, device] { ListenAgain(device); });
}

void CSimulator::Stop()
{
    m_threads.Stop();
    m_servers.clear();
}

std::string CSimulator::ReadyLine() const
{
    const std::unique_ptr<cJSON, decltype(&cJSON_Delete)> line(cJSON_CreateObject(), &cJSON_Delete);
    cJSON_AddTrueToObject(line.get(), "ready");
    cJSON_AddStringToObject(line.get(), "user", m_settings.door.user.c_str());
    cJSON* devices = cJSON_AddArrayToObject(line.get(), "devices");
    for (std::size_t i = 0; i < m_devices.size(); ++i) {
        const DevicePlan& plan = m_devices[i]->Plan();
        cJSON* entry = cJSON_CreateObject();
        cJSON_AddStringToObject(entry, "kind", KindName(plan.kind));
        cJSON_AddNumberToObject(entry, "typeCode", plan.typeCode);
        cJSON_AddNumberToObject(entry, "subType", plan.subType);
        cJSON_AddStringToObject(entry, "name", plan.name.c_str());
        cJSON_AddNumberToObject(entry, "port", m_servers[i]->Port());
        cJSON_AddNumberToObject(entry, "channels", static_cast<double>(plan.channels.size()));
        if (m_identity)
            cJSON_AddStringToObject(entry, "fingerprint", FingerprintOf(*m_identity).c_str());
        cJSON_AddItemToArray(devices, entry);
    }
    const std::unique_ptr<char, decltype(&cJSON_free)> text(cJSON_PrintUnformatted(line.get()), &cJSON_free);
    return text.get();
}

} // namespace simulator
