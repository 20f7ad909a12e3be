#pragma once

#include "DeviceSessions/DeviceSessions.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QString>

namespace framework {

/// "Online", "Offline", "Connecting" in the language of the user, and the tone that goes with it.
QString TextOf(devices::SessionState state);
VantorGUIToolkit::Tone ToneOf(devices::SessionState state);

/// The state of a channel, one of QXNET_CHANNEL_..., at a device that is online.
QString ChannelStateText(int state);

/// Why a device cannot be reached, in the language of the user; empty for error 0.
QString DeviceErrorText(std::uint32_t error, std::uint32_t moduleError);

/// Whether the device may be there all the same: only the network says no.
bool IsOutOfReach(std::uint32_t error);

/// "Encoder", "Recorder", "Storage server", "Device" in the language of the user, and the icon that goes with
/// it.
QString DeviceTypeText(int typeCode);
QString DeviceTypeIcon(int typeCode);

/// "192.0.2.10:8000", with brackets around an IPv6 address.
QString AddressText(const std::string& address, int port);

} // namespace framework
