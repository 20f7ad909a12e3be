#include "framework/ui/demonstration/SimulatedDevices.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "framework/core/Stored.h"

#include <csignal>

namespace framework {

namespace {

constexpr int kLookMs = 50;
constexpr int kMostLooks = 200;
constexpr int kEndMs = 2000;

bool ReadReady(const std::string& path, SimulatorReady& ready)
{
    std::string text;
    if (!Base::FileUtil::ReadFile(path, text) || text.find('\n') == std::string::npos)
        return false;
    const protocol::json::Tree tree(cJSON_ParseWithLength(text.data(), text.find('\n')));
    protocol::json::ReadError error;
    return tree && protocol::json::Kind<SimulatorReady>::Read(tree.get(), ready, error);
}

} // namespace

CSimulatedDevices::CSimulatedDevices(std::string program, std::string folder)
    : m_program(std::move(program)), m_folder(std::move(folder))
{
    connect(&m_look, &QTimer::timeout, this, &CSimulatedDevices::Look);
}

CSimulatedDevices::~CSimulatedDevices()
{
    if (m_child && m_child->Signal(SIGTERM))
        (void)m_child->WaitForExit(kEndMs);
}

void CSimulatedDevices::Start(const std::vector<std::int32_t>& ports)
{
    m_ports = ports;
    std::vector<std::string> command = {
        m_program, "--devices", "4", "--channels", "16", "--state", m_folder + "devices", "--with-parent"};
    std::string list;
    for (const std::int32_t port : ports)
        list += (list.empty() ? "" : ",") + std::to_string(port);
    if (!list.empty())
        command.insert(command.end(), {"--port", list});
    m_child = std::make_unique<CChildProcess>();
    m_looks = 0;
    std::string error;
    if (!Base::FileUtil::MakeDirs(m_folder))
        GiveUp("its folder cannot be made");
    else if (!m_child->Start(command, m_folder + "output", error))
        GiveUp(error);
    else
        m_look.start(kLookMs);
}

void CSimulatedDevices::Cut()
{
    m_look.stop();
    m_child.reset();
}

void CSimulatedDevices::StartAgain()
{
    Start(m_last);
}

void CSimulatedDevices::Look()
{
    SimulatorReady ready;
    if (ReadReady(m_folder + "output", ready)) {
        m_look.stop();
        m_last.clear();
        for (const SimulatedDevice& device : ready.devices)
            m_last.push_back(device.port);
        emit Ready(ready);
    } else if (m_child->ExitStatus() && !m_ports.empty()) {
        Start({}); // somebody else has the ports
    } else if (m_child->ExitStatus() || ++m_looks > kMostLooks) {
        GiveUp("see " + m_folder + "output");
    }
}

void CSimulatedDevices::GiveUp(const std::string& why)
{
    m_look.stop();
    BASE_WARN("There are no simulated devices: %s.", why.c_str());
}

} // namespace framework
