#pragma once

#include "framework/core/Resources.h"

#include <QString>

#include <map>

namespace framework {

/// The fields of a device that a person can get wrong.
enum class DeviceField { Name, Address, UserName };

/// What is wrong with a device as it was entered, in the language of the user, by field. Empty: nothing.
/// others: the names of all other devices.
std::map<DeviceField, QString> CheckDevice(const DeviceEntry& entry, const std::vector<std::string>& others);

/// "Encoder", "Recorder", "Storage server" in the language of the user, and the icon that goes with it.
QString DeviceTypeText(int typeCode);
QString DeviceTypeIcon(int typeCode);

} // namespace framework
