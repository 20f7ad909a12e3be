#include "simulator/device/Disks.h"

#include <algorithm>
#include <cstring>

namespace simulator {

namespace {

QxNetDisk DiskAt(unsigned number, std::int64_t formatted, std::int64_t now)
{
    QxNetDisk disk{};
    disk.number = static_cast<std::uint16_t>(number);
    disk.state = QXNET_DISK_NORMAL;
    disk.kind = QXNET_DISK_LOCAL;
    disk.writable = 1;
    disk.capacity = kDiskCapacity;
    disk.free = formatted == 0 ? kDiskCapacity / 3 : kDiskCapacity;
    std::strncpy(disk.model, "Simulated disk 4 TB", sizeof disk.model - 1);
    if (formatted == 0 || now >= formatted + kFormatSeconds)
        return disk;
    disk.state = QXNET_DISK_FORMATTING;
    disk.progress =
        static_cast<std::uint8_t>(std::max<std::int64_t>(0, now - formatted) * 100 / kFormatSeconds);
    disk.writable = 0;
    disk.free = 0;
    return disk;
}

} // namespace

QxNetDiskList DisksAt(unsigned count, const FormatTimes& formatted, std::int64_t now)
{
    QxNetDiskList list{};
    list.size = sizeof list;
    list.count = std::min<unsigned>(count, QXNET_DISKS);
    for (unsigned i = 0; i < list.count; ++i)
        list.disks[i] = DiskAt(i + 1, formatted(i + 1), now);
    return list;
}

tagNET_DVR_DISK_QUOTA_CFG QuotaOf(const QxNetDiskList& disks, unsigned channels)
{
    tagNET_DVR_DISK_QUOTA_CFG quota{};
    quota.size = sizeof quota;
    quota.mode = QXNET_QUOTA_CAPACITY;
    std::uint32_t used = 0;
    for (const QxNetDisk& disk : disks.disks) {
        quota.capacity += disk.capacity;
        used += disk.capacity - disk.free;
    }
    const std::uint32_t share = std::max(1U, channels);
    quota.videoUsed = used / share / 10 * 9;
    quota.pictureUsed = used / share / 10;
    quota.videoQuota = quota.capacity / share / 10 * 9;
    quota.pictureQuota = quota.capacity / share / 10;
    return quota;
}

} // namespace simulator
