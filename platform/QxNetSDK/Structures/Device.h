#pragma once

/* What a device tells of itself, and of its channels' states. */

#include "QxNetSDK/Structures/Layout.h"

#include <stdint.h>

#define QXNET_NAME_LENGTH 64 /* of a device or channel, UTF-8 with the zero */

/* Kinds of device. */
enum {
    QXNET_DEVICE_ENCODER = 1,
    QXNET_DEVICE_RECORDER = 2,
    QXNET_DEVICE_STORAGE_SERVER = 128,
};

/* Answer of a login, and of command 20001 for channel 0. */
typedef struct QxNetDeviceInfo
{
    uint32_t size;
    uint32_t typeCode; /* one of the kinds above, or another maker's number */
    uint32_t subType;
    uint32_t channels;    /* cameras, 0 to 512, numbered from 1 */
    uint32_t alarmInputs; /* 0 to 512, numbered from 1; the same for those below */
    uint32_t alarmOutputs;
    uint32_t voiceChannels; /* 0 to 16 */
    uint32_t disks;         /* 0 to 64 */
    char name[QXNET_NAME_LENGTH];
    char serial[48];
    char model[48];
    char firmware[32];
    uint8_t reserved[32];
} QxNetDeviceInfo;
QXNET_SIZE(QxNetDeviceInfo, 256);

enum { QXNET_GET_DEVICE_INFO = 20001 };

/* States of a channel. */
enum {
    QXNET_CHANNEL_OFFLINE = 0,
    QXNET_CHANNEL_ONLINE = 1,
    QXNET_CHANNEL_RECORDING = 2,     /* online, and recorded at the device */
    QXNET_CHANNEL_NOT_SUPPORTED = 4, /* a camera that the device cannot talk to */
};

/* One channel of a page. */
typedef struct QxNetChannelState
{
    uint32_t channel; /* from 1 */
    uint32_t state;   /* one of the states above */
    char name[QXNET_NAME_LENGTH];
    uint8_t reserved[8];
} QxNetChannelState;
QXNET_SIZE(QxNetChannelState, 80);

#define QXNET_CHANNELS_PER_PAGE 64

/* Names and states of up to 64 channels, those from the channel asked for on. Reading the first page is what
 * tells that a device is alive. */
typedef struct QxNetChannelPage
{
    uint32_t size;
    uint32_t total;   /* channels of the device, 0 to 512 */
    uint32_t count;   /* of this page, 0 to 64 */
    uint32_t changes; /* counts up whenever a name, a state or the total changes */
    QxNetChannelState channels[QXNET_CHANNELS_PER_PAGE];
    uint8_t reserved[16];
} QxNetChannelPage;
QXNET_SIZE(QxNetChannelPage, 5152);

enum { QXNET_GET_CHANNEL_PAGE = 20002 };

/* Encodings of voice. */
enum {
    QXNET_AUDIO_G711_MU = 0,
    QXNET_AUDIO_G711_A = 1,
    QXNET_AUDIO_G722 = 2,
    QXNET_AUDIO_PCM = 3,
    QXNET_AUDIO_MP2 = 4,
    QXNET_AUDIO_MP3 = 5,
    QXNET_AUDIO_G726 = 6,
    QXNET_AUDIO_OPUS = 7,
    QXNET_AUDIO_AAC = 8,
    QXNET_AUDIO_ADPCM_IMA = 9,
};

/* In which encoding the device takes voice. The first byte says it. */
typedef struct QxNetAudioCompress
{
    uint8_t encoding;   /* one of the encodings above */
    uint8_t sampleRate; /* thousands a second: 8, 16, 32 or 48 */
    uint8_t bitRate;    /* thousands of bits a second: 16 to 192 */
    uint8_t reserved[5];
} QxNetAudioCompress;
QXNET_SIZE(QxNetAudioCompress, 8);

enum { QXNET_GET_AUDIO_COMPRESS = 20003 };
