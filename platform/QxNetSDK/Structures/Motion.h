#pragma once

/* Motion detection of a channel. */

#include "QxNetSDK/Structures/Schedule.h"

#define QXNET_MOTION_ROWS 64
#define QXNET_MOTION_COLUMNS 96
#define QXNET_MOTION_AREAS 24
#define QXNET_MOTION_SCENES 10

typedef struct QxNetMotionArea
{
    uint8_t enabled;     /* 0, 1 */
    uint8_t sensitivity; /* 0 to 100 */
    uint8_t objectSize;  /* share of the area that must move, 0 to 100 percent */
    uint8_t reserved;
    QxNetRegion region;
} QxNetMotionArea;
QXNET_SIZE(QxNetMotionArea, 48);

/* What is watched while the camera looks in one direction. */
typedef struct QxNetMotionScene
{
    uint8_t enabled;     /* 0, 1 */
    uint8_t sensitivity; /* of the grid, 0 to 100 */
    uint16_t preset;     /* at which the scene counts, 0 to 300; 0: at any */
    char name[QXNET_LABEL_LENGTH];
    uint8_t grid[QXNET_MOTION_ROWS * QXNET_MOTION_COLUMNS]; /* row after row from the top left; 1: watched */
    QxNetMotionArea areas[QXNET_MOTION_AREAS];              /* for the mode areas */
} QxNetMotionScene;
QXNET_SIZE(QxNetMotionScene, 7364);

enum { QXNET_MOTION_GRID = 0, QXNET_MOTION_IN_AREAS = 1 };

typedef struct NET_DVR_MOTION_V40
{
    uint32_t size;
    uint8_t enabled;   /* 0, 1 */
    uint8_t highlight; /* 1: what moves is marked in the picture */
    uint8_t mode;      /* QXNET_MOTION_... */
    uint8_t reserved1;
    QxNetAlarmHandling handling;
    QxNetDay holiday; /* when motion counts on holidays */
    QxNetMotionScene scenes[QXNET_MOTION_SCENES];
    uint8_t reserved2[2816];
} NET_DVR_MOTION_V40;
QXNET_SIZE(NET_DVR_MOTION_V40, 77140);
