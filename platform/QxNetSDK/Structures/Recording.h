#pragma once

/* Recording at the device, and its holidays. All of a channel. */

#include "QxNetSDK/Structures/Schedule.h"

/* Index of a pre-record time: 0 none, 1 to 6: 5, 10, 15, 20, 25, 30 seconds, 7 as long as there is room.
 * Index of a post-record time: 0 to 2: 5, 10, 30 seconds; 3 to 6: 1, 2, 5, 10 minutes. */

typedef struct NET_DVR_RECORD_V30
{
    uint32_t size;
    uint8_t enabled;   /* 0, 1 */
    uint8_t redundant; /* 1: recorded on a second disk too */
    uint8_t audio;     /* 1: with sound */
    uint8_t reserved1;
    QxNetWeek week;
    uint32_t preRecordTime;  /* index, 0 to 7 */
    uint32_t postRecordTime; /* index, 0 to 6 */
    uint32_t duration;       /* days that recordings are kept, 0 to 3650; 0: until the disk is full */
    uint8_t reserved2[12];
} NET_DVR_RECORD_V30;
QXNET_SIZE(NET_DVR_RECORD_V30, 508);

/* Streams that are recorded. */
enum {
    QXNET_RECORD_MAIN = 0,
    QXNET_RECORD_SUB = 1,
    QXNET_RECORD_MAIN_AND_SUB = 2,
    QXNET_RECORD_STREAM3 = 3,
    QXNET_RECORD_STREAM4 = 4,
    QXNET_RECORD_STREAM5 = 5,
    QXNET_RECORD_VIRTUAL = 6, /* the one that the device makes when somebody watches */
};

typedef struct NET_DVR_RECORD_V40
{
    uint32_t size;
    uint8_t enabled;    /* 0, 1 */
    uint8_t redundant;  /* 1: recorded on a second disk too */
    uint8_t audio;      /* 1: with sound */
    uint8_t streamType; /* QXNET_RECORD_... */
    QxNetWeek week;
    uint32_t preRecordTime;  /* index, 0 to 7 */
    uint32_t postRecordTime; /* index, 0 to 6 */
    uint32_t duration;       /* days that recordings are kept, 0 to 3650; 0: until the disk is full */
    uint8_t reserved[2124];
} NET_DVR_RECORD_V40;
QXNET_SIZE(NET_DVR_RECORD_V40, 2620);

/* What is recorded on every holiday, instead of the week's day. */
typedef struct tagNET_DVR_HOLIDAY_RECORD
{
    uint32_t size;
    uint8_t enabled; /* 0: holidays are days like any other */
    uint8_t reserved1[3];
    QxNetDay day;
    uint8_t reserved2[16];
} tagNET_DVR_HOLIDAY_RECORD;
QXNET_SIZE(tagNET_DVR_HOLIDAY_RECORD, 92);

/* When an alarm counts on holidays and what follows it; the command says which alarm. */
typedef struct tagNET_DVR_HOLIDAY_HANDLE
{
    uint32_t size;
    uint8_t enabled; /* 0: holidays are days like any other */
    uint8_t reserved1[3];
    QxNetDay armed;
    QxNetAlarmActions actions;
    uint8_t reserved2[68];
} tagNET_DVR_HOLIDAY_HANDLE;
QXNET_SIZE(tagNET_DVR_HOLIDAY_HANDLE, 276);

typedef struct QxNetHoliday
{
    uint8_t enabled;    /* 0, 1 */
    uint8_t startMonth; /* 1 to 12; every year */
    uint8_t startDay;   /* 1 to 31 */
    uint8_t endMonth;   /* 1 to 12 */
    uint8_t endDay;     /* 1 to 31; belongs to the holiday */
    uint8_t reserved[3];
    char name[QXNET_LABEL_LENGTH];
} QxNetHoliday;
QXNET_SIZE(QxNetHoliday, 72);

#define QXNET_HOLIDAYS 32

/* Which days are holidays at the device. Read only. */
typedef struct QxNetHolidayCalendar
{
    uint32_t size;
    QxNetHoliday holidays[QXNET_HOLIDAYS];
    uint8_t reserved[32];
} QxNetHolidayCalendar;
QXNET_SIZE(QxNetHolidayCalendar, 2340);
