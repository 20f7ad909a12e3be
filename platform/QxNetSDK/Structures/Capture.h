#pragma once

/* Pictures that the device takes by itself. All of a channel. */

#include "QxNetSDK/Structures/Schedule.h"

typedef struct tagNET_DVR_SCHED_CAPTURECFG
{
    uint32_t size;
    uint8_t enabled; /* 0, 1 */
    uint8_t reserved1[3];
    QxNetWeek week;
    QxNetDay holiday; /* where the device knows holidays */
    uint8_t reserved2[44];
} tagNET_DVR_SCHED_CAPTURECFG;
QXNET_SIZE(tagNET_DVR_SCHED_CAPTURECFG, 596);

enum { QXNET_INTERVAL_SECONDS = 0, QXNET_INTERVAL_HOURS = 1 };

/* How pictures are taken on one occasion. */
typedef struct QxNetCaptureGroup
{
    uint8_t enabled;      /* 0, 1 */
    uint8_t resolution;   /* index of the channel's picture ability, 0 to 255 */
    uint8_t quality;      /* 0 best to 2 */
    uint8_t intervalUnit; /* QXNET_INTERVAL_... */
    uint32_t interval;    /* between two pictures, in the unit above, 1 to 604800 */
    uint32_t count;       /* pictures an occasion, 1 to 120; without meaning for continuous pictures */
    uint8_t reserved[20];
} QxNetCaptureGroup;
QXNET_SIZE(QxNetCaptureGroup, 32);

typedef struct tagNET_DVR_JPEG_CAPTURE_CFG
{
    uint32_t size;
    QxNetCaptureGroup continuous;
    QxNetCaptureGroup event;
    uint8_t reserved[1772];
} tagNET_DVR_JPEG_CAPTURE_CFG;
QXNET_SIZE(tagNET_DVR_JPEG_CAPTURE_CFG, 1840);
