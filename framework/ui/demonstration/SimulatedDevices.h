#pragma once

#include "ChildProcess/ChildProcess.h"
#include "Protocol/JSONStruct/JSONMessage.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <string>
#include <vector>

namespace framework {

/// One device of those that are played.
struct SimulatedDevice
{
    std::string name;
    std::int32_t port = 0; ///< of this computer

    static constexpr auto Fields()
    {
        using T = SimulatedDevice;
        return std::make_tuple(protocol::Must("name", &T::name), protocol::Must("port", &T::port));
    }
};

/// The line by which vantor-device-sim tells that it plays.
struct SimulatorReady
{
    std::string user;
    std::vector<SimulatedDevice> devices;

    static constexpr auto Fields()
    {
        using T = SimulatorReady;
        return std::make_tuple(protocol::Must("user", &T::user), protocol::Must("devices", &T::devices));
    }
};

/// vantor-device-sim as a child of this process: four devices with sixteen channels. GUI thread, which lives
/// as long as the child.
class CSimulatedDevices : public QObject
{
    Q_OBJECT

public:
    /// The password of their user.
    static constexpr const char* kPassword = "vantor-device";

    /// program: vantor-device-sim. folder: where the devices keep what they are told, and where its output
    /// goes; ends in "/".
    CSimulatedDevices(std::string program, std::string folder);
    /// Ends it.
    ~CSimulatedDevices() override;

    /// Starts it; on the ports of an earlier time if there were any and they are free.
    void Start(const std::vector<std::int32_t>& ports);
    /// Ends it at once, as a power cut would.
    void Cut();
    /// After Cut, on the same ports.
    void StartAgain();

signals:
    void Ready(const framework::SimulatorReady& ready);

private:
    void Look();
    void GiveUp(const std::string& why);

    const std::string m_program;
    const std::string m_folder;
    std::vector<std::int32_t> m_ports; ///< asked for
    std::vector<std::int32_t> m_last;  ///< of the devices that played
    std::unique_ptr<CChildProcess> m_child;
    QTimer m_look; ///< for the line, which is in a file
    int m_looks = 0;
};

} // namespace framework
