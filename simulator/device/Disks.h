#pragma once

#include "QxNetSDK/Structures.h"

#include <cstdint>
#include <functional>

namespace simulator {

constexpr std::int64_t kFormatSeconds = 10;
constexpr std::uint32_t kDiskCapacity = 3815448; ///< MiB: what is sold as 4 TB

/// Since when a disk is being or was formatted, in seconds since 1970; 0: never.
using FormatTimes = std::function<std::int64_t(unsigned disk)>;

/// The disks of a device with that many. Those that were never formatted are two thirds full.
QxNetDiskList DisksAt(unsigned count, const FormatTimes& formatted, std::int64_t now);

/// The share of the disks of one channel of several.
tagNET_DVR_DISK_QUOTA_CFG QuotaOf(const QxNetDiskList& disks, unsigned channels);

} // namespace simulator
