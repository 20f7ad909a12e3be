#pragma once

/*
 * The device network SDK: sessions with cameras, recorders and storage servers over the network, their
 * configuration, abilities and voice. One shared library with this C interface; docs/device-protocol.md tells
 * what travels.
 *
 * Threads: every function may be called from any thread, also for one session from several at once. Calls
 * wait for the device, no longer than the session's timeouts, and never hold a lock meanwhile that another
 * session would need.
 *
 * Results: where nothing else is said 1 for success and 0 for failure. After a failure the calling thread's
 * error pair tells why: NET_DVR_GetLastError and NET_DVR_GetLastErrorModelCode. A success leaves the pair as
 * it is. What the caller passes for an answer is written only after the whole answer was checked.
 *
 * Texts are UTF-8 and end with a zero byte; reserved bytes are zero.
 */

#include "QxNetSDK/Errors.h"
#include "QxNetSDK/Structures.h"

#include <stdint.h>

#if defined(_MSC_VER) || defined(__MINGW32__)
#ifdef QXNETSDK_BUILD
#define QXNET_API __declspec(dllexport)
#else
#define QXNET_API __declspec(dllimport)
#endif
#else
#define QXNET_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- the library ---- */

/* Must come before everything else. Calls are counted: as many clean-ups end it. */
QXNET_API int QxNet_Init(void);
/* Ends all sessions when it is the last one: calls under way end with QXNET_ERROR_CLOSED. */
QXNET_API int QxNet_Cleanup(void);

/* The file of the certificates that devices showed at their first TLS session, in the platform's file name
 * encoding; it is made when missing. Null: they are kept for the process's life only. Before the first login.
 * After a failure logins by TLS fail with the same error, until a file or null is taken: nobody is trusted
 * anew for want of a file. */
QXNET_API int QxNet_SetTrustFile(const char* path);

/* ---- sessions ---- */

#define QXNET_ADDRESS_LENGTH 256 /* host name (at most 253 bytes) or IP address, with the zero */
#define QXNET_USER_LENGTH 128
#define QXNET_PASSWORD_LENGTH 128

typedef struct QxNetLogin
{
    uint32_t size;  /* of this record */
    uint16_t port;  /* 1 to 65535 */
    uint8_t useTls; /* 1: TLS, with the certificate pinned at first use */
    uint8_t reserved1;
    uint32_t connectTimeoutMs;  /* 100 to 60000; 0: 3000 */
    uint32_t exchangeTimeoutMs; /* from the first byte sent to the last one received, 100 to 600000;
                                   0: 5000 */
    char address[QXNET_ADDRESS_LENGTH];
    char user[QXNET_USER_LENGTH];
    char password[QXNET_PASSWORD_LENGTH];
    uint8_t reserved2[64];
} QxNetLogin;

/* Logs in with the digest of the password and fills info, which may be null. The session's handle, 0 or more
 * and never used twice in a process; -1 on failure. A device that was restarted meanwhile is logged in to
 * again by itself, at the next call. When it refuses the password then, calls of the session fail with
 * QXNET_ERROR_PASSWORD and it is not tried again: devices lock users out. */
QXNET_API int32_t QxNet_Login(const QxNetLogin* login, QxNetDeviceInfo* info);

/* Ends the session. Calls of it that are under way on other threads end with QXNET_ERROR_CLOSED before this
 * one returns; the device is told, if it can be reached within a second. */
QXNET_API int QxNet_Logout(int32_t login);

/* ---- configuration ----
 * command: see Structures.h. channel: from 1; 0 is the device itself. The size must be the structure's, and
 * the device's answer must have exactly that size: otherwise QXNET_ERROR_WRONG_SIZE with the size that came.
 */

QXNET_API int NET_DVR_GetDVRConfig(int32_t login, uint32_t command, int32_t channel, void* structure,
                                   uint32_t size);
QXNET_API int NET_DVR_SetDVRConfig(int32_t login, uint32_t command, int32_t channel, const void* structure,
                                   uint32_t size);

/* The same for count items (1 to 256) in one exchange. condition: one record an item, such as
 * tagNET_DVR_CHANNEL_GROUP, conditionSize bytes in all; status: a word an item, 0 or the item's error;
 * structures: count structures, size bytes in all. It fails as a whole only when there is no good answer. An
 * item that failed leaves its structure zero. */
QXNET_API int NET_DVR_GetDeviceConfig(int32_t login, uint32_t command, uint32_t count, const void* condition,
                                      uint32_t conditionSize, uint32_t* status, void* structures,
                                      uint32_t size);
QXNET_API int NET_DVR_SetDeviceConfig(int32_t login, uint32_t command, uint32_t count, const void* condition,
                                      uint32_t conditionSize, uint32_t* status, const void* structures,
                                      uint32_t size);

/* Standard configuration: any structure or text, under a condition. Get fills config->output, whose whole
 * answer must fit, and config->outputLength; Set sends config->input. */
QXNET_API int NET_DVR_GetSTDConfig(int32_t login, uint32_t command, struct tagNET_DVR_STD_CONFIG* config);
QXNET_API int NET_DVR_SetSTDConfig(int32_t login, uint32_t command, struct tagNET_DVR_STD_CONFIG* config);

/* ---- abilities ---- */

enum {
    QXNET_ABILITY_CHANNEL_INPUT = 1, /* what a channel takes in: camera, resolutions, streams */
    QXNET_ABILITY_BASIC = 2,         /* what there is at all: holidays, CABAC, storage server, counts */
    QXNET_ABILITY_RECORD = 3,        /* options of recording */
    QXNET_ABILITY_JPEG_CAPTURE = 4,  /* options of scheduled pictures */
    QXNET_ABILITY_VCA = 5,           /* smart detections and their limits */
};

/* The document of a channel (0: of the device) as XML in UTF-8, of at most 1 MiB, which was read with all
 * limits of docs/device-abilities.md. text gets it with a zero byte; length its length without. A buffer too
 * small: QXNET_ERROR_BUFFER_TOO_SMALL with the length in length. */
QXNET_API int QxNet_GetAbility(int32_t login, uint32_t kind, int32_t channel, char* text, uint32_t capacity,
                               uint32_t* length);

/* ---- voice ---- */

/* The encoding in which the device takes voice. */
QXNET_API int NET_DVR_GetCurrentAudioCompress(int32_t login, QxNetAudioCompress* compress);

/* PCM of this computer, 16 bit, one channel, 16000 a second, before it is encoded. On a thread of the
 * library; must return soon. */
typedef void (*QxNetAudioCallback)(const int16_t* samples, uint32_t count, void* user);

/* Fills count samples of the same kind, 20 ms of them every 20 ms; 0: silence. */
typedef int (*QxNetAudioSource)(int16_t* samples, uint32_t count, void* user);

/* What is captured from the next start on, instead of this computer's sound input: announcements, or
 * computers without an input. Called on a thread of the library; must return soon. Null: the sound input. */
QXNET_API int QxNet_SetAudioSource(QxNetAudioSource source, void* user);

/* Starts capturing for all devices that are added. callback may be null. QXNET_ERROR_AUDIO_STARTED when it
 * runs already, QXNET_ERROR_NO_AUDIO_INPUT without a device. When the input fails later, it is opened again
 * as soon as it can be; the devices hear nothing meanwhile. */
QXNET_API int NET_DVR_ClientAudioStart_V30(QxNetAudioCallback callback, void* user);
/* Ends capturing; added devices stay added and hear nothing. Neither callback nor source is called any more
 * when it returns, unless it was called by one of them. A success also when nothing is captured. */
QXNET_API int NET_DVR_ClientAudioStop(void);

/* Adds a device's voice channel (from 1) to those that hear what is captured. The handle, 0 or more and never
 * used twice; -1 on failure: QXNET_ERROR_AUDIO_BUSY, QXNET_ERROR_AUDIO_ENCODING,
 * QXNET_ERROR_TOO_MANY_SESSIONS, or as any call. A device that stops taking voice is removed by itself, as is
 * that of a session that ends. */
QXNET_API int32_t NET_DVR_AddDVR_V30(int32_t login, uint32_t voiceChannel);
/* Lets the device hear what was captured before, a second at most, and no more. QXNET_ERROR_HANDLE when it
 * was removed already. */
QXNET_API int NET_DVR_DelDVR_V30(int32_t handle);

/* ---- errors ---- */

/* The calling thread's last error, one of Errors.h; 0 when there was none yet. */
QXNET_API uint32_t NET_DVR_GetLastError(void);
/* What lies behind it: the number of the module that failed (see Errors.h for whose number it is). own, which
 * may be null, gets the device's own number for the failure; 0 when it gave none. */
QXNET_API uint32_t NET_DVR_GetLastErrorModelCode(uint32_t* own);

#ifdef __cplusplus
}
#endif
