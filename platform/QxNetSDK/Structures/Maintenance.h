#pragma once

/* Restart and reset of the device. */

#include "QxNetSDK/Structures/Layout.h"

#include <stdint.h>

/* The device answers first; its sessions end. */
typedef struct QxNetReboot
{
    uint32_t size;
    uint32_t delay; /* seconds, 0 to 60 */
    uint8_t reserved[8];
} QxNetReboot;
QXNET_SIZE(QxNetReboot, 16);

enum { QXNET_RESET_SETTINGS = 0, QXNET_RESET_EVERYTHING = 1 };

/* Back to the values of a fresh device. Recordings stay. */
typedef struct QxNetReset
{
    uint32_t size;
    uint8_t scope; /* QXNET_RESET_...; settings: network and users stay */
    uint8_t reserved[11];
} QxNetReset;
QXNET_SIZE(QxNetReset, 16);
