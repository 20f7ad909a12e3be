#pragma once

#include <cstdint>
#include <string>

namespace UiDataController {

/// What stands in the place of a login handle (0 or more) where there is none.
constexpr std::int32_t kLoginFailed = -1;
constexpr std::int32_t kNoDevice = -999;

/// The sessions with devices, as the logic model asks for them. Any thread.
class IDeviceLogins
{
public:
    virtual ~IDeviceLogins() = default;

    /// The login handle of a device at this moment, without waiting: kLoginFailed when there is no session,
    /// kNoDevice when the device is not known. Must not call the model.
    virtual std::int32_t Session(const std::string& deviceId) const = 0;
};

} // namespace UiDataController
