#pragma once

/* Alarms of sensors that belong to a camera: body heat, call for help, wireless. They travel together. */

#include "QxNetSDK/Structures/Schedule.h"

typedef struct tagNET_IPC_PIR_ALARMCFG
{
    uint8_t enabled; /* 0, 1 */
    uint8_t reserved[3];
    char name[QXNET_LABEL_LENGTH];
    QxNetAlarmHandling handling;
} tagNET_IPC_PIR_ALARMCFG;
QXNET_SIZE(tagNET_IPC_PIR_ALARMCFG, 676);

typedef struct tagNET_IPC_PIR_ALARMCFG_EX
{
    tagNET_IPC_PIR_ALARMCFG alarm;
    uint8_t sensitivity; /* 1 to 100 */
    uint8_t reserved[3];
    QxNetDay holiday; /* when it counts on holidays */
} tagNET_IPC_PIR_ALARMCFG_EX;
QXNET_SIZE(tagNET_IPC_PIR_ALARMCFG_EX, 748);

/* The button for help; it counts at any time. */
typedef struct QxNetCallHelpAlarm
{
    uint8_t enabled; /* 0, 1 */
    uint8_t reserved[3];
    char name[QXNET_LABEL_LENGTH];
    QxNetAlarmActions actions;
} QxNetCallHelpAlarm;
QXNET_SIZE(QxNetCallHelpAlarm, 200);

typedef struct QxNetWirelessAlarm
{
    uint8_t enabled; /* 0, 1 */
    uint8_t reserved[3];
    uint32_t sensor; /* its own number; 0: none is paired */
    char name[QXNET_LABEL_LENGTH];
    QxNetAlarmHandling handling;
} QxNetWirelessAlarm;
QXNET_SIZE(QxNetWirelessAlarm, 680);

#define QXNET_WIRELESS_ALARMS 16

typedef struct tagNET_IPC_AUX_ALARMCFG
{
    uint32_t size;
    tagNET_IPC_PIR_ALARMCFG_EX pir;
    QxNetCallHelpAlarm callHelp;
    QxNetWirelessAlarm wireless[QXNET_WIRELESS_ALARMS];
    uint8_t reserved[3500];
} tagNET_IPC_AUX_ALARMCFG;
QXNET_SIZE(tagNET_IPC_AUX_ALARMCFG, 15332);
