#pragma once

#include "framework/core/Resources.h"

#include <QString>

#include <map>

namespace framework {

/// The fields of a device that a person can get wrong.
enum class DeviceField { Name, Address, UserName };

/// What is wrong with a device as it was entered, in the language of the user, by field. Empty: nothing.
/// others: the names of all other devices. It may have no name yet.
std::map<DeviceField, QString> CheckDevice(const DeviceEntry& entry, const std::vector<std::string>& others);

/// A name for a device that was given none: that by which it calls itself, else its address; with a number
/// behind it where another device has it.
std::string NameFor(const QString& own, const DeviceEntry& entry, const std::vector<std::string>& others);

} // namespace framework
