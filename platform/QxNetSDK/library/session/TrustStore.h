#pragma once

#include "QxNetSDK/library/Failure.h"

#include <map>
#include <mutex>
#include <string>

namespace sdk {

/// The certificates of the devices: SHA-256 by "address:port". Kept in a file that several processes may
/// share, or only in memory. For any thread.
class CTrustStore
{
public:
    /// Reads the file, and makes it when it is missing; empty: none. TRUST_FILE: then the others fail with it
    /// too, as nobody knows who was trusted.
    Failure UseFile(const std::string& path);

    /// CERTIFICATE_CHANGED when another one is kept for the device.
    Failure Check(const std::string& device, const std::string& fingerprint);
    /// Keeps the certificate of a device that has none yet. CERTIFICATE_CHANGED when it has one by now,
    /// TRUST_FILE.
    Failure Keep(const std::string& device, const std::string& fingerprint);

private:
    using Pins = std::map<std::string, std::string>;

    Failure CheckLocked(const std::string& device, const std::string& fingerprint) const;
    static bool ReadPins(const std::string& text, Pins& pins);
    static std::string WritePins(const Pins& pins);

    std::mutex m_mutex;
    std::string m_path;
    Pins m_pins;
    Failure m_failure; ///< of the file that was to be used
};

} // namespace sdk
