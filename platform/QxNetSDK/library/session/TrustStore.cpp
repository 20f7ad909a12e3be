#include "QxNetSDK/library/session/TrustStore.h"

#include "QxNetSDK/library/session/TrustFile.h"

#include <algorithm>
#include <sstream>

namespace sdk {

namespace {

constexpr std::size_t kFingerprintDigits = 64;

Failure FileFailure(const CTrustFile& file)
{
    return {QXNET_ERROR_TRUST_FILE, static_cast<std::uint32_t>(file.Error())};
}

bool IsFingerprint(const std::string& text)
{
    return text.size() == kFingerprintDigits &&
           text.find_first_not_of("0123456789abcdef") == std::string::npos;
}

} // namespace

Failure CTrustStore::UseFile(const std::string& path)
{
    const std::lock_guard lock(m_mutex);
    Pins pins;
    m_failure = {};
    if (!path.empty()) {
        CTrustFile file(path);
        std::string text;
        if (!file.Read(text) || !ReadPins(text, pins) || (text.empty() && !file.Write(text)))
            return m_failure = FileFailure(file);
    }
    m_path = path;
    m_pins = std::move(pins);
    return {};
}

Failure CTrustStore::Check(const std::string& device, const std::string& fingerprint)
{
    const std::lock_guard lock(m_mutex);
    return CheckLocked(device, fingerprint);
}

Failure CTrustStore::CheckLocked(const std::string& device, const std::string& fingerprint) const
{
    if (m_failure)
        return m_failure;
    const auto pin = m_pins.find(device);
    const bool isOther = pin != m_pins.end() && pin->second != fingerprint;
    return isOther ? Failure{QXNET_ERROR_CERTIFICATE_CHANGED} : Failure{};
}

Failure CTrustStore::Keep(const std::string& device, const std::string& fingerprint)
{
    const std::lock_guard lock(m_mutex);
    if (m_failure || m_pins.count(device) != 0)
        return CheckLocked(device, fingerprint);
    if (m_path.empty()) {
        m_pins[device] = fingerprint;
        return {};
    }
    // Another process may have added to the file.
    CTrustFile file(m_path);
    std::string text;
    Pins pins;
    if (!file.Read(text) || !ReadPins(text, pins))
        return FileFailure(file);
    const bool isNew = pins.emplace(device, fingerprint).second;
    if (isNew && !file.Write(WritePins(pins)))
        return FileFailure(file);
    m_pins = std::move(pins);
    return CheckLocked(device, fingerprint);
}

bool CTrustStore::ReadPins(const std::string& text, Pins& pins)
{
    std::istringstream lines(text);
    std::string line;
    while (std::getline(lines, line)) {
        const std::size_t blank = line.find(' ');
        if (blank == 0 || blank == std::string::npos || !IsFingerprint(line.substr(blank + 1)))
            return false;
        pins[line.substr(0, blank)] = line.substr(blank + 1);
    }
    return true;
}

std::string CTrustStore::WritePins(const Pins& pins)
{
    std::string text;
    for (const auto& [device, fingerprint] : pins)
        text.append(device).append(" ").append(fingerprint).append("\n");
    return text;
}

} // namespace sdk
