#pragma once

/* Small settings of a camera. All of a channel. */

#include "QxNetSDK/Structures/Schedule.h"

/* Entropy coding of the main stream. */
typedef struct tagNET_DVR_STREAM_CABAC
{
    uint32_t size;
    uint8_t enabled; /* 1: CABAC, 0: CAVLC */
    uint8_t reserved[31];
} tagNET_DVR_STREAM_CABAC;
QXNET_SIZE(tagNET_DVR_STREAM_CABAC, 36);

/* Keeps pan, tilt and zoom for one user. */
typedef struct tagNET_DVR_PTZ_LOCKCFG
{
    uint32_t size;
    uint8_t locked; /* 0, 1 */
    uint8_t reserved1[3];
    uint32_t holdTime; /* seconds without a movement after which the lock ends, 0 to 86400; 0: never */
    char owner[QXNET_LABEL_LENGTH]; /* user who holds the lock */
    uint8_t reserved2[52];
} tagNET_DVR_PTZ_LOCKCFG;
QXNET_SIZE(tagNET_DVR_PTZ_LOCKCFG, 128);

enum { QXNET_WIPER_OFF = 0, QXNET_WIPER_ONCE = 1, QXNET_WIPER_INTERVAL = 2 };

typedef struct QxNetWiper
{
    uint32_t size;
    uint8_t mode; /* QXNET_WIPER_...; once: it wipes when this is set, and is off again */
    uint8_t reserved1;
    uint16_t interval; /* seconds between two wipes, 5 to 3600; for the mode interval */
    uint8_t reserved2[8];
} QxNetWiper;
QXNET_SIZE(QxNetWiper, 16);
