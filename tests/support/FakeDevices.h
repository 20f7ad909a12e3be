#pragma once

#include "QxNetSDK/QxNetSDK.h"

#include <cstdint>
#include <string>
#include <vector>

/// The part of the device SDK that watching takes, played in this process: devices by their host name.
namespace fakedevices {

struct Device
{
    /// Of every call; ANSWER_TIMEOUT comes after the time that the login gave, or when the library is ended.
    std::uint32_t error = 0;
    QxNetDeviceInfo info{};
    std::vector<QxNetChannelState> channels;
    std::uint32_t changes = 0;
    std::string password;
};

/// A device with so many channels "Camera 1" and so on, all online.
Device Make(std::uint32_t channels);
void Set(const std::string& host, const Device& device);
/// Ends all sessions and forgets all devices.
void Clear();

int Sessions(const std::string& host); ///< open at this moment
int Hanging();                         ///< calls of devices that do not answer
int Logins(const std::string& host);   ///< tried so far
int Pages(const std::string& host);    ///< read so far

/// What was written under a command (the last one; the structure's octets); empty: nothing.
std::string Written(const std::string& host, std::uint32_t command, int channel);

} // namespace fakedevices
