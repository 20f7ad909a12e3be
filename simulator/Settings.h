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
    std::uint16_t port = 0; ///< of the first device; 0: free ones
    std::string listen = "127.0.0.1";
    std::string state;  ///< folder ending in "/", or empty
    std::string faults; ///< file, or empty
    bool useTls = false;
    bool wantsNewCertificate = false;
    bool endsWithParent = false;
    std::uint32_t firstKind = 1; ///< QXNET_DEVICE_ENCODER or _RECORDER
    std::vector<std::optional<TypeCode>> types;
    DoorSettings door;
    std::chrono::milliseconds rebootTime{3000};
};

/// Reads the command line; none with the reason in error when it is wrong.
std::optional<Settings> ReadSettings(const std::vector<std::string>& arguments, std::string& error);

/// How the program is called.
const char* HelpText();

} // namespace simulator
