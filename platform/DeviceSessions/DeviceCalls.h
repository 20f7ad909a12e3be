#pragma once

#include "DeviceSessions/DeviceSessions.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

/// The calls of the device SDK that watching takes. They wait for the device; any thread.
namespace devices {

/// The SDK's error pair; no error: 0.
struct CallError
{
    std::uint32_t error = 0;
    std::uint32_t module = 0;

    explicit operator bool() const { return error != 0; }
};

/// The device is there, and has refused what was asked of it.
bool IsRefusalOfADevice(std::uint32_t error);
/// Trying again soon would lock the user out.
bool IsRefusalOfTheUser(std::uint32_t error);

/// What was heard of a device.
struct Heard
{
    QxNetDeviceInfo info{};
    std::vector<ChannelState> channels;
    std::uint32_t changes = 0; ///< of the page that the channels were read by
    int looks = 0;             ///< since all channels were read; negative: never

    bool operator==(const Heard& other) const; ///< of what users see
};

/// The session, or -1 with the error. Fills info.
std::int32_t LogIn(const DeviceAddress& address, std::chrono::milliseconds answer, QxNetDeviceInfo& info,
                   CallError& error);

/// Reads the first page of the channels, and everything else when that tells of a change, or after a while.
/// heard stays as it is on an error.
CallError Look(std::int32_t login, Heard& heard);

void LogOut(std::int32_t login);

} // namespace devices
