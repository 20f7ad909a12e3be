#pragma once

#include "simulator/device/DevicePlan.h"
#include "simulator/protocol/Sessions.h"

#include <iosfwd>

namespace simulator {

/// What the command line asks for.
struct Settings
{
    bool wantsHelp = false;
    unsigned devices = 1;
    unsigned cameras = 4;
    /// By device, each of the others one above that before it; empty: free ones.
    std::vector<std::uint16_t> ports;
    std::string listen = "127.0.0.1";
    std::string state;  ///< folder ending in "/", or empty
    std::string faults; ///< file, or empty
    bool useTls = false;
    bool wantsNewCertificate = false;
    bool endsWithParent = false;
    std::uint32_t firstKind = 1; ///< QXNET_DEVICE_ENCODER or _RECORDER
    std::vector<std::optional<TypeCode>> types;
    std::optional<VoicePlan> voice; ///< of every device; none: by kind
    DoorSettings door;
    std::chrono::milliseconds rebootTime{3000};
};

/// The port of a device; 0: a free one.
std::uint16_t PortOf(const Settings& settings, unsigned device);

/// Reads the command line; none with the reason in error when it is wrong.
std::optional<Settings> ReadSettings(const std::vector<std::string>& arguments, std::string& error);

/// How the program is called.
const char* HelpText();

} // namespace simulator
