#pragma once

/* What batches and standard configuration are asked with. */

#include "QxNetSDK/Structures/Layout.h"

#include <stdint.h>

/* Which item of a batch. */
typedef struct tagNET_DVR_CHANNEL_GROUP
{
    uint32_t size;
    uint32_t channel; /* 1 to 512 */
    uint32_t group;   /* of detections, where a channel has several, 0 to 255; else 0 */
    uint8_t reserved[64];
} tagNET_DVR_CHANNEL_GROUP;
QXNET_SIZE(tagNET_DVR_CHANNEL_GROUP, 76);

/* Argument of NET_DVR_GetSTDConfig and NET_DVR_SetSTDConfig. It does not travel; all memory is the caller's.
 */
typedef struct tagNET_DVR_STD_CONFIG
{
    const void* condition;  /* may be null when its size is 0 */
    uint32_t conditionSize; /* bytes, at most 1 MiB; the same for those below */
    const void* input;      /* of a set */
    uint32_t inputSize;
    void* output;          /* of a get */
    uint32_t outputSize;   /* room there */
    uint32_t outputLength; /* bytes that came */
} tagNET_DVR_STD_CONFIG;
