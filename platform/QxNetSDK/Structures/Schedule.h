#pragma once

/* What several families share: weeks of time segments, regions of a picture, what follows an alarm. */

#include "QxNetSDK/Structures/Layout.h"

#include <stdint.h>

#define QXNET_DAYS 7
#define QXNET_SEGMENTS_PER_DAY 8
#define QXNET_LABEL_LENGTH 64 /* names of alarms, rules and users; UTF-8 with the zero */
#define QXNET_ADDRESS_TEXT 48 /* an IP address as text with the zero */
#define QXNET_NUMBER_SET                                                                                     \
    64 /* bytes of a set of numbers 1 to 512: number n is bit (n - 1) % 8 of byte                            \
          (n - 1) / 8, the lowest bit being 0 */
#define QXNET_REGION_POINTS 10
#define QXNET_PICTURE_EXTENT 1000 /* coordinates are thousandths of the picture's width or height */

/* What is recorded or captured in a segment. */
enum {
    QXNET_ON_CONTINUOUS = 0,
    QXNET_ON_EVENT = 1, /* any of those below */
    QXNET_ON_MOTION = 2,
    QXNET_ON_ALARM_INPUT = 3,
    QXNET_ON_DETECTION = 4, /* a smart detection */
    QXNET_ON_MOTION_AND_ALARM = 5,
    QXNET_ON_COMMAND = 6, /* when somebody asks for it */
};

/* From start to before end, on one day; empty where start and end are equal. */
typedef struct QxNetSegment
{
    uint8_t startHour;   /* 0 to 24 */
    uint8_t startMinute; /* 0 to 59 */
    uint8_t endHour;     /* 0 to 24; 24:00 is the end of the day */
    uint8_t endMinute;   /* 0 to 59 */
    uint8_t type;        /* QXNET_ON_...; 0 where a schedule only says when */
    uint8_t reserved[3];
} QxNetSegment;
QXNET_SIZE(QxNetSegment, 8);

typedef struct QxNetDay
{
    uint8_t allDay; /* 1: from 00:00 to 24:00 with the type below, besides the segments */
    uint8_t type;   /* QXNET_ON_..., of the whole day */
    uint8_t reserved[2];
    QxNetSegment segments[QXNET_SEGMENTS_PER_DAY];
} QxNetDay;
QXNET_SIZE(QxNetDay, 68);

typedef struct QxNetWeek
{
    QxNetDay days[QXNET_DAYS]; /* Monday first */
} QxNetWeek;
QXNET_SIZE(QxNetWeek, 476);

typedef struct QxNetPoint
{
    uint16_t x; /* 0 to 1000, from the left */
    uint16_t y; /* 0 to 1000, from the top */
} QxNetPoint;
QXNET_SIZE(QxNetPoint, 4);

/* A polygon; a rectangle is one of four points. */
typedef struct QxNetRegion
{
    uint8_t count; /* of points, 0 to 10; 0: the whole picture */
    uint8_t reserved[3];
    QxNetPoint points[QXNET_REGION_POINTS];
} QxNetRegion;
QXNET_SIZE(QxNetRegion, 44);

typedef struct QxNetAlarmActions
{
    uint8_t notify; /* 1: the alarm is sent to clients */
    uint8_t sound;  /* 1: the device sounds its buzzer */
    uint8_t mail;   /* 1: the device sends a mail */
    uint8_t reserved;
    uint8_t recordChannels[QXNET_NUMBER_SET]; /* cameras that are recorded */
    uint8_t outputs[QXNET_NUMBER_SET];        /* alarm outputs that are switched on */
} QxNetAlarmActions;
QXNET_SIZE(QxNetAlarmActions, 132);

/* When an alarm counts, and what follows it. */
typedef struct QxNetAlarmHandling
{
    QxNetWeek armed;
    QxNetAlarmActions actions;
} QxNetAlarmHandling;
QXNET_SIZE(QxNetAlarmHandling, 608);
