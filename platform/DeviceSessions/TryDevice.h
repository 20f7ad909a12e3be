#pragma once

#include "DeviceSessions/DeviceSessions.h"

#include <chrono>
#include <cstdint>

namespace devices {

/// What came of one try to reach a device.
struct TriedDevice
{
    std::uint32_t error = 0; ///< the SDK's pair; 0: it was reached
    std::uint32_t moduleError = 0;
    QxNetDeviceInfo info{}; ///< when it was
};

/// Logs in to a device and out again, to see whether it can be reached so. Waits for the device, twice the
/// answer's time at most. The SDK has been started; its end ends the wait. Any thread.
TriedDevice TryDevice(const DeviceAddress& address,
                      std::chrono::milliseconds answer = std::chrono::milliseconds(5000));

} // namespace devices
