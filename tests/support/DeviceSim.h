#pragma once

#include "ChildProcess/ChildProcess.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The program vantor-device-sim as a child of a test, in a folder of its own that goes with the object. User
/// "admin", password "vantor-device" unless the options say otherwise. Failures to start are failures of the
/// test.
class DeviceSim
{
public:
    struct Device
    {
        std::string kind; ///< "encoder", "recorder" or "storage"
        std::string name;
        unsigned typeCode = 0;
        unsigned subType = 0;
        std::uint16_t port = 0;
        unsigned channels = 0;
        std::string fingerprint; ///< with TLS
    };

    enum class Keeps { Nothing, State };

    /// Starts it with the options, such as {"--devices", "2", "--channels", "8"}, and waits until it is
    /// ready. With Keeps::State what is set outlives Stop and Kill.
    explicit DeviceSim(std::vector<std::string> options = {}, Keeps keeps = Keeps::Nothing);
    ~DeviceSim();

    DeviceSim(const DeviceSim&) = delete;
    DeviceSim& operator=(const DeviceSim&) = delete;

    const std::vector<Device>& Devices() const { return m_devices; }
    std::uint16_t Port(std::size_t device = 0) const { return m_devices.at(device).port; }

    /// Gives the program a faults file with the text, a JSON list of rules or the object with rules and
    /// channels that docs/device-sim.md tells of. It holds from the next request on.
    void SetFaults(const std::string& json);

    /// Ends it by SIGTERM; its exit status, none when it did not end.
    std::optional<int> Stop();
    /// Ends it by SIGKILL.
    void Kill();
    /// Stops it by SIGSTOP: connections stay, and nobody reads them.
    void Pause();
    /// Starts it again on the same ports, with more options if that is wanted.
    [[nodiscard]] bool Restart(const std::vector<std::string>& moreOptions = {});

    /// All that it has written since it was started last.
    std::string Output() const;
    std::string StateFolder() const { return m_folder + "state/"; }
    long long Id() const { return m_process ? m_process->Id() : 0; }

    /// The program, for tests that start it themselves.
    static std::string Program();

private:
    bool Start(const std::vector<std::string>& options);
    bool ReadReadyLine();

    std::string m_folder;
    std::vector<std::string> m_options;
    std::vector<Device> m_devices;
    unsigned m_faultsWritten = 0;
    std::unique_ptr<CChildProcess> m_process;
};
