#pragma once

/* The SDK's error numbers. Behind each: what the module error code is. They are part of the interface and of
 * the device protocol: a device answers a refused request with one of 5xx, and never with another. */
enum {
    QXNET_ERROR_NONE = 0,

    /* The call itself. Module: 0. */
    QXNET_ERROR_NOT_INITIALISED = 100,
    QXNET_ERROR_ARGUMENT = 101,
    QXNET_ERROR_HANDLE = 102, /* no such session, or it was ended */
    QXNET_ERROR_MEMORY = 103,
    QXNET_ERROR_TOO_MANY_SESSIONS = 104, /* 4096 in a process; 64 devices that hear voice */
    QXNET_ERROR_CLOSED = 105,            /* the session was ended while the call was under way */
    QXNET_ERROR_BUFFER_TOO_SMALL = 106,  /* module: the bytes needed */
    QXNET_ERROR_TRUST_FILE = 107,        /* the file cannot be read or written; module: the system's number */

    /* The network. Module: the system's number for the failure, 0 where there is none. */
    QXNET_ERROR_RESOLVE = 200,
    QXNET_ERROR_UNREACHABLE = 201, /* refused, or no way to the host */
    QXNET_ERROR_CONNECT_TIMEOUT = 202,
    QXNET_ERROR_ANSWER_TIMEOUT = 203,
    QXNET_ERROR_CONNECTION_LOST = 204,     /* or the device ended the session again right after a login */
    QXNET_ERROR_TLS = 210,                 /* no TLS could be agreed on */
    QXNET_ERROR_CERTIFICATE_CHANGED = 211, /* not the one that was pinned */

    /* What came back. */
    QXNET_ERROR_NOT_A_DEVICE = 300, /* not this protocol; module: the HTTP status, 0 when it is no HTTP */
    QXNET_ERROR_VERSION = 301,      /* module: the device's protocol version */
    QXNET_ERROR_TOO_LONG = 302,     /* headers or body over the limit */
    QXNET_ERROR_WRONG_SIZE = 303,   /* module: the size that came */
    QXNET_ERROR_UNREADABLE = 304,   /* values out of range, bad UTF-8, bad XML */

    /* The user. Module: the HTTP status. */
    QXNET_ERROR_PASSWORD = 400, /* user name or password wrong */
    QXNET_ERROR_LOCKED = 401,   /* too many wrong passwords; the device refuses for a while */
    QXNET_ERROR_PERMISSION = 402,
    QXNET_ERROR_DEVICE_FULL = 403, /* the device has no session left */

    /* What the device refused. Module: the device's module, as it says; own: its own number. */
    QXNET_ERROR_NOT_SUPPORTED = 500,
    QXNET_ERROR_CHANNEL = 501, /* no such channel */
    QXNET_ERROR_VALUE = 502,   /* a value it does not take */
    QXNET_ERROR_BUSY = 503,
    QXNET_ERROR_DEVICE = 504,  /* the device failed */
    QXNET_ERROR_STORAGE = 505, /* it cannot keep the change */

    /* Voice. */
    QXNET_ERROR_NO_AUDIO_INPUT = 600, /* module: the sound library's number */
    QXNET_ERROR_AUDIO_STARTED = 601,
    QXNET_ERROR_AUDIO_ENCODING = 602, /* module: the encoding's number */
    QXNET_ERROR_AUDIO_BUSY = 603      /* somebody else speaks through that channel */
};
