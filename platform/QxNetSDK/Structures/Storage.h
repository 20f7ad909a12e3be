#pragma once

/* Where a channel's recordings go, and the disks of the device. */

#include "QxNetSDK/Structures/Schedule.h"

enum { QXNET_QUOTA_NONE = 0, QXNET_QUOTA_CAPACITY = 1, QXNET_QUOTA_PERCENT = 2 };

/* How much of the disks a channel may fill. Read only. */
typedef struct tagNET_DVR_DISK_QUOTA_CFG
{
    uint32_t size;
    uint8_t mode; /* QXNET_QUOTA_... */
    uint8_t reserved1[3];
    uint32_t capacity;     /* of all disks, MiB */
    uint32_t videoUsed;    /* MiB */
    uint32_t pictureUsed;  /* MiB */
    uint32_t videoQuota;   /* MiB; for the mode capacity */
    uint32_t pictureQuota; /* MiB; for the mode capacity */
    uint8_t videoPercent;  /* 0 to 100; for the mode percent */
    uint8_t picturePercent;
    uint8_t reserved2[130];
} tagNET_DVR_DISK_QUOTA_CFG;
QXNET_SIZE(tagNET_DVR_DISK_QUOTA_CFG, 160);

/* The storage server that records a channel. */
typedef struct tagNET_DVR_STORAGE_SERVER_SWITCH_CFG
{
    uint32_t size;
    uint8_t recording; /* 1: the server records the channel */
    uint8_t pictures;  /* 1: the server takes the channel's pictures */
    uint16_t port;     /* of the server, 0 to 65535; 0: none is linked */
    char serverId[QXNET_LABEL_LENGTH];
    char name[QXNET_LABEL_LENGTH];
    char address[128]; /* host name or IP address */
    char user[QXNET_LABEL_LENGTH];
    int32_t diskGroup; /* of the server, -1 to 255; -1: the server chooses */
    uint8_t reserved[124];
} tagNET_DVR_STORAGE_SERVER_SWITCH_CFG;
QXNET_SIZE(tagNET_DVR_STORAGE_SERVER_SWITCH_CFG, 456);

/* What the device has for storing. Of the device, read only. */
typedef struct QxNetStorageCapability
{
    uint32_t size;
    uint8_t localDisks;     /* 1: it records on disks of its own */
    uint8_t storageServers; /* 1: its channels can be linked to a storage server */
    uint8_t redundancy;     /* 1: it can record on two disks at once */
    uint8_t quotas;         /* 1: it keeps quotas */
    uint8_t pictures;       /* 1: it stores pictures */
    uint8_t diskGroups;     /* 0 to 255 */
    uint8_t reserved[22];
} QxNetStorageCapability;
QXNET_SIZE(QxNetStorageCapability, 32);

enum {
    QXNET_DISK_NORMAL = 0,
    QXNET_DISK_UNFORMATTED = 1,
    QXNET_DISK_FORMATTING = 2,
    QXNET_DISK_SLEEPING = 3,
    QXNET_DISK_FULL = 4,
    QXNET_DISK_FAILED = 5,
};

enum { QXNET_DISK_LOCAL = 0, QXNET_DISK_CARD = 1, QXNET_DISK_NETWORK = 2 };

typedef struct QxNetDisk
{
    uint16_t number;   /* 1 to 64 in a used entry */
    uint16_t group;    /* 0 to 255 */
    uint8_t state;     /* QXNET_DISK_NORMAL ... */
    uint8_t kind;      /* QXNET_DISK_LOCAL ... */
    uint8_t progress;  /* of formatting, 0 to 100 percent */
    uint8_t writable;  /* 0: it is only read */
    uint32_t capacity; /* MiB */
    uint32_t free;     /* MiB */
    char model[48];
} QxNetDisk;
QXNET_SIZE(QxNetDisk, 64);

#define QXNET_DISKS 64

/* Of the device, read only. */
typedef struct QxNetDiskList
{
    uint32_t size;
    uint32_t count; /* used entries, 0 to 64 */
    QxNetDisk disks[QXNET_DISKS];
    uint8_t reserved[24];
} QxNetDiskList;
QXNET_SIZE(QxNetDiskList, 4128);

/* Erases disks. It goes on after the answer; the list of disks tells how far. */
typedef struct QxNetDiskFormat
{
    uint32_t size;
    uint32_t disk; /* number, 0 to 64; 0: all */
    uint8_t reserved[8];
} QxNetDiskFormat;
QXNET_SIZE(QxNetDiskFormat, 16);
