#pragma once

/* Smart detections: the rules of a channel, and the single detections, which travel as items of a batch. */

#include "QxNetSDK/Structures/Schedule.h"

/* Kinds of rule. */
enum {
    QXNET_RULE_NONE = 0,
    QXNET_RULE_ENTER = 1, /* something comes into the region */
    QXNET_RULE_LEAVE = 2, /* something leaves it */
    QXNET_RULE_STAY = 3,  /* something stays in it for a time */
    QXNET_RULE_LEFT = 4,  /* an object was left there */
    QXNET_RULE_TAKEN = 5, /* an object was taken away */
    QXNET_RULE_CROWD = 6, /* many gather */
    QXNET_RULE_FAST = 7,  /* something moves fast */
    QXNET_RULE_CROSS = 8, /* something crosses the line of the region's first two points */
};

/* Ways across a line, seen from its first point to its second. */
enum { QXNET_CROSS_BOTH = 0, QXNET_CROSS_TO_RIGHT = 1, QXNET_CROSS_TO_LEFT = 2 };

typedef struct QxNetDetectionRule
{
    uint8_t enabled;     /* 0, 1 */
    uint8_t kind;        /* QXNET_RULE_... */
    uint8_t sensitivity; /* 1 to 100 */
    uint8_t direction;   /* QXNET_CROSS_... */
    char name[QXNET_LABEL_LENGTH];
    uint16_t duration; /* seconds that it must last, 0 to 3600 */
    uint8_t reserved1[2];
    uint16_t minWidth; /* of the object, 0 to 1000; the same for those below */
    uint16_t minHeight;
    uint16_t maxWidth;
    uint16_t maxHeight;
    QxNetRegion region;
    QxNetAlarmHandling handling;
    uint8_t reserved2[64];
} QxNetDetectionRule;
QXNET_SIZE(QxNetDetectionRule, 796);

#define QXNET_DETECTION_RULES 40

/* Of a channel. */
typedef struct tagNET_DVR_VCA_DETECTION_CFG_V40
{
    uint32_t size;
    uint8_t enabled;  /* 0, 1 */
    uint8_t showRule; /* 1: regions are drawn into the picture */
    uint8_t showTarget;
    uint8_t reserved1;
    QxNetDetectionRule rules[QXNET_DETECTION_RULES];
    uint8_t reserved2[28];
} tagNET_DVR_VCA_DETECTION_CFG_V40;
QXNET_SIZE(tagNET_DVR_VCA_DETECTION_CFG_V40, 31876);

typedef struct tagNET_DVR_DETECT_FACE
{
    uint32_t size;
    uint8_t enabled;     /* 0, 1 */
    uint8_t sensitivity; /* 1 to 100 */
    uint8_t showTarget;  /* 1: faces are framed in the picture */
    uint8_t reserved1;
    QxNetRegion region;
    QxNetAlarmHandling handling;
    uint8_t reserved2[60];
} tagNET_DVR_DETECT_FACE;
QXNET_SIZE(tagNET_DVR_DETECT_FACE, 720);

/* Somebody turned or moved the camera. */
typedef struct tagNET_DVR_SCENECHANGE_DETECTION
{
    uint32_t size;
    uint8_t enabled;     /* 0, 1 */
    uint8_t sensitivity; /* 1 to 100 */
    uint8_t reserved1[2];
    QxNetAlarmHandling handling;
    uint8_t reserved2[24];
} tagNET_DVR_SCENECHANGE_DETECTION;
QXNET_SIZE(tagNET_DVR_SCENECHANGE_DETECTION, 640);

#define QXNET_DETECTION_PLACES 8

typedef struct QxNetLine
{
    uint8_t enabled;     /* 0, 1 */
    uint8_t direction;   /* QXNET_CROSS_... */
    uint8_t sensitivity; /* 1 to 100 */
    uint8_t reserved;
    QxNetPoint start;
    QxNetPoint end;
} QxNetLine;
QXNET_SIZE(QxNetLine, 12);

/* Something crosses a line. */
typedef struct tagNET_VCA_TRAVERSE_PLANEPARAM
{
    uint32_t size;
    uint8_t enabled;    /* 0, 1 */
    uint8_t showTarget; /* 1: what crosses is framed in the picture */
    uint8_t reserved1[2];
    QxNetLine lines[QXNET_DETECTION_PLACES];
    QxNetAlarmHandling handling;
    uint8_t reserved2[24];
} tagNET_VCA_TRAVERSE_PLANEPARAM;
QXNET_SIZE(tagNET_VCA_TRAVERSE_PLANEPARAM, 736);

typedef struct QxNetField
{
    uint8_t enabled;     /* 0, 1 */
    uint8_t sensitivity; /* 1 to 100 */
    uint8_t duration;    /* seconds that it must last, 0 to 100 */
    uint8_t share;       /* of the target that must be inside, 0 to 100 percent */
    QxNetRegion region;
} QxNetField;
QXNET_SIZE(QxNetField, 48);

/* Something is where nothing may be. */
typedef struct tagNET_VCA_FIELDDETECION
{
    uint32_t size;
    uint8_t enabled;    /* 0, 1 */
    uint8_t showTarget; /* 1: what is inside is framed in the picture */
    uint8_t reserved1[2];
    QxNetField fields[QXNET_DETECTION_PLACES];
    QxNetAlarmHandling handling;
    uint8_t reserved2[24];
} tagNET_VCA_FIELDDETECION;
QXNET_SIZE(tagNET_VCA_FIELDDETECION, 1024);

typedef struct tagNET_VCA_DEFOCUSPARAM
{
    uint32_t size;
    uint8_t enabled;     /* 0, 1 */
    uint8_t sensitivity; /* 1 to 100 */
    uint8_t reserved1[2];
    QxNetAlarmHandling handling;
    uint8_t reserved2[24];
} tagNET_VCA_DEFOCUSPARAM;
QXNET_SIZE(tagNET_VCA_DEFOCUSPARAM, 640);

/* Sound that is missing, or suddenly louder or quieter. */
typedef struct tagNET_DVR_AUDIO_EXCEPTION
{
    uint32_t size;
    uint8_t enabled;         /* 0, 1 */
    uint8_t inputLost;       /* 1: alarm when there is no sound at all */
    uint8_t rise;            /* 1: alarm when it is suddenly louder */
    uint8_t riseSensitivity; /* 1 to 100 */
    uint8_t riseThreshold;   /* loudness that counts, 0 to 100 percent */
    uint8_t fall;            /* 1: alarm when it is suddenly quieter */
    uint8_t fallSensitivity; /* 1 to 100 */
    uint8_t reserved1;
    QxNetAlarmHandling handling;
    uint8_t reserved2[300];
} tagNET_DVR_AUDIO_EXCEPTION;
QXNET_SIZE(tagNET_DVR_AUDIO_EXCEPTION, 920);
