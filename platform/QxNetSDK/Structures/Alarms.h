#pragma once

/* Alarm inputs and outputs of the device. Where a command is of one input or output, its number (from 1)
 * travels as channel. */

#include "QxNetSDK/Structures/Schedule.h"

enum { QXNET_NORMALLY_OPEN = 0, QXNET_NORMALLY_CLOSED = 1 };

typedef struct QxNetAlarmInput
{
    uint32_t size;
    uint8_t enabled; /* 0, 1 */
    uint8_t contact; /* QXNET_NORMALLY_... */
    uint8_t reserved1[2];
    char name[QXNET_LABEL_LENGTH];
    QxNetAlarmHandling handling;
    uint8_t reserved2[24];
} QxNetAlarmInput;
QXNET_SIZE(QxNetAlarmInput, 704);

typedef struct QxNetAlarmOutput
{
    uint32_t size;
    uint8_t contact; /* QXNET_NORMALLY_... */
    uint8_t reserved1;
    uint16_t holdTime; /* seconds that it stays on after an alarm, 0 to 3600; 0: until it is switched off */
    char name[QXNET_LABEL_LENGTH];
    QxNetWeek armed; /* when alarms may switch it */
    uint8_t reserved2[28];
} QxNetAlarmOutput;
QXNET_SIZE(QxNetAlarmOutput, 576);

/* All at once. Of the device, read only. */
typedef struct QxNetAlarmStates
{
    uint32_t size;
    uint16_t inputCount;               /* 0 to 512 */
    uint16_t outputCount;              /* 0 to 512 */
    uint8_t inputs[QXNET_NUMBER_SET];  /* that are in alarm */
    uint8_t outputs[QXNET_NUMBER_SET]; /* that are on */
    uint8_t reserved[24];
} QxNetAlarmStates;
QXNET_SIZE(QxNetAlarmStates, 160);

typedef struct QxNetOutputSwitch
{
    uint32_t size;
    uint8_t on; /* 0, 1 */
    uint8_t reserved[11];
} QxNetOutputSwitch;
QXNET_SIZE(QxNetOutputSwitch, 16);
