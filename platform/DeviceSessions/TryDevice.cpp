#include "DeviceSessions/TryDevice.h"

#include "DeviceSessions/DeviceCalls.h"

namespace devices {

TriedDevice TryDevice(const DeviceAddress& address, std::chrono::milliseconds answer)
{
    TriedDevice tried;
    CallError error;
    const std::int32_t login = LogIn(address, answer, tried.info, error);
    if (login >= 0)
        LogOut(login);
    tried.error = error.error;
    tried.moduleError = error.module;
    return tried;
}

} // namespace devices
