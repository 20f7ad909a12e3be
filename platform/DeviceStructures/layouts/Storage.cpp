#include "DeviceStructures/layouts/Shared.h"

namespace devices {

QXNET_LAYOUT(tagNET_DVR_DISK_QUOTA_CFG, "How much of the disks a channel may fill",
    QXNET_FIELD(size),
    QXNET_FIELD(mode).Named("none|capacity|percent"),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(capacity).In("MiB").Note("of all disks"),
    QXNET_FIELD(videoUsed).In("MiB"),
    QXNET_FIELD(pictureUsed).In("MiB"),
    QXNET_FIELD(videoQuota).In("MiB"),
    QXNET_FIELD(pictureQuota).In("MiB"),
    QXNET_FIELD(videoPercent).Range(0, 100).In("%"),
    QXNET_FIELD(picturePercent).Range(0, 100).In("%"),
    QXNET_FIELD(reserved2))

QXNET_LAYOUT(tagNET_DVR_STORAGE_SERVER_SWITCH_CFG, "The storage server that records a channel",
    QXNET_FIELD(size),
    QXNET_FIELD(recording).Flag(),
    QXNET_FIELD(pictures).Flag(),
    QXNET_FIELD(port).Note("0: no server is linked"),
    QXNET_FIELD(serverId),
    QXNET_FIELD(name),
    QXNET_FIELD(address).Note("host name or IP address"),
    QXNET_FIELD(user),
    QXNET_FIELD(diskGroup).Range(-1, 255).Default(-1).Note("of the server; -1: it chooses"),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetStorageCapability, "What the device has for storing",
    QXNET_FIELD(size),
    QXNET_FIELD(localDisks).Flag().Default(1),
    QXNET_FIELD(storageServers).Flag().Default(1).Note("its channels can be linked to one"),
    QXNET_FIELD(redundancy).Flag().Default(1).Note("two disks at once"),
    QXNET_FIELD(quotas).Flag().Default(1),
    QXNET_FIELD(pictures).Flag().Default(1),
    QXNET_FIELD(diskGroups).Default(1),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetDisk, "A disk",
    QXNET_FIELD(number).Range(0, 64).Note("from 1; 0 in an unused entry"),
    QXNET_FIELD(group).Range(0, 255),
    QXNET_FIELD(state).Named("normal|unformatted|formatting|sleeping|full|failed"),
    QXNET_FIELD(kind).Named("local|card|network"),
    QXNET_FIELD(progress).Range(0, 100).In("%").Note("of formatting"),
    QXNET_FIELD(writable).Flag(),
    QXNET_FIELD(capacity).In("MiB"),
    QXNET_FIELD(free).In("MiB"),
    QXNET_FIELD(model))

QXNET_LAYOUT(QxNetDiskList, "The disks of the device",
    QXNET_FIELD(size),
    QXNET_FIELD(count).Range(0, 64).Note("used entries"),
    QXNET_FIELD(disks),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetDiskFormat, "Erases disks; it goes on after the answer, and the list of disks tells how far",
    QXNET_FIELD(size),
    QXNET_FIELD(disk).Range(0, 64).Default(1).Note("number; 0: all"),
    QXNET_FIELD(reserved))

std::vector<ConfigCommand> StorageCommands()
{
    return {
        Parameter<tagNET_DVR_DISK_QUOTA_CFG>("disk-quota", Scope::Channel, QXNET_GET_DISK_QUOTA, 0),
        Parameter<tagNET_DVR_STORAGE_SERVER_SWITCH_CFG>("storage-server-switch", Scope::Channel,
                                                        QXNET_GET_STORAGE_SERVER_SWITCH,
                                                        QXNET_SET_STORAGE_SERVER_SWITCH),
        Parameter<QxNetStorageCapability>("storage-capability", Scope::Device, QXNET_GET_STORAGE_CAPABILITY, 0),
        Parameter<QxNetDiskList>("disks", Scope::Device, QXNET_GET_DISKS, 0),
        Parameter<QxNetDiskFormat>("format-disk", Scope::Device, 0, QXNET_FORMAT_DISK),
    };
}

} // namespace devices
