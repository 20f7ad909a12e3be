#pragma once

#include "Base/FileLock.h"
#include "simulator/Settings.h"
#include "simulator/device/Device.h"
#include "simulator/server/HttpServer.h"

namespace simulator {

/// All devices of one program with their servers. To be used from one thread.
class CSimulator
{
public:
    /// complain gets a line at a time, on any thread.
    CSimulator(const Settings& settings, CDevice::Complain complain);
    ~CSimulator();

    CSimulator(const CSimulator&) = delete;
    CSimulator& operator=(const CSimulator&) = delete;

    /// Reads state and faults and listens. False with the reason in error.
    [[nodiscard]] bool Start(std::string& error);
    void Stop();

    /// One line of JSON that tells who can be reached where.
    std::string ReadyLine() const;

private:
    /// The folder is this program's alone from now on.
    bool TakeStateFolder(std::string& error);
    bool LoadDevices(std::string& error);
    bool Listen(std::string& error);
    /// Lets a device be away for a while, beginning after the delay.
    void Restart(unsigned device, std::chrono::milliseconds delay);
    void ListenAgain(unsigned device);
    void SetChannel(const ChannelSetting& setting);

    const Settings m_settings;
    const CDevice::Complain m_complain;
    Base::CFileLock m_stateLock;
    CFaultBook m_faults;
    std::optional<TlsIdentity> m_identity;
    std::vector<std::unique_ptr<CDevice>> m_devices;
    CServerThreads m_threads;
    std::vector<std::unique_ptr<CHttpServer>> m_servers;
};

} // namespace simulator
