#pragma once

/* Network, users and clock of the device. */

#include "QxNetSDK/Structures/Schedule.h"

/* A change counts for sessions that begin after it. */
typedef struct QxNetNetwork
{
    uint32_t size;
    uint8_t dhcp;          /* 1: addresses, gateways and name servers come from the network */
    uint8_t prefixLength;  /* of address, 0 to 32 */
    uint8_t prefixLength6; /* of address6, 0 to 128 */
    uint8_t reserved1;
    uint16_t mtu;        /* bytes, 576 to 9000 */
    uint16_t port;       /* of the device protocol, 1 to 65535 */
    uint16_t streamPort; /* of live pictures, 1 to 65535 */
    uint8_t reserved2[2];
    char hardwareAddress[24]; /* six hexadecimal pairs with colons; read only */
    char hostName[QXNET_LABEL_LENGTH];
    char address[QXNET_ADDRESS_TEXT]; /* IPv4 */
    char gateway[QXNET_ADDRESS_TEXT];
    char address6[QXNET_ADDRESS_TEXT]; /* IPv6; empty: none */
    char gateway6[QXNET_ADDRESS_TEXT];
    char nameServer1[QXNET_ADDRESS_TEXT]; /* IPv4 or IPv6; empty: none */
    char nameServer2[QXNET_ADDRESS_TEXT];
    uint8_t reserved3[120];
} QxNetNetwork;
QXNET_SIZE(QxNetNetwork, 512);

enum { QXNET_USER_VIEWER = 0, QXNET_USER_OPERATOR = 1, QXNET_USER_ADMINISTRATOR = 2 };

/* Rights are 0 or 1; an administrator has them all. */
typedef struct QxNetUser
{
    char name[QXNET_LABEL_LENGTH]; /* empty: the entry is free */
    uint8_t level;                 /* QXNET_USER_... */
    uint8_t enabled;               /* 0: may not log in */
    uint8_t live;
    uint8_t playback;
    uint8_t movement; /* pan, tilt, zoom */
    uint8_t voice;
    uint8_t alarmOutputs;
    uint8_t configuration;
    uint8_t maintenance; /* restart, reset, formatting */
    uint8_t reserved[7];
    uint8_t channels[QXNET_NUMBER_SET]; /* cameras the user may see; none: all */
} QxNetUser;
QXNET_SIZE(QxNetUser, 144);

#define QXNET_USERS 32

/* A user who is new in the list can log in only when a password was set. The last administrator stays. */
typedef struct QxNetUserList
{
    uint32_t size;
    QxNetUser users[QXNET_USERS];
    uint8_t reserved[28];
} QxNetUserList;
QXNET_SIZE(QxNetUserList, 4640);

/* Sets the password of a user of the list. It can't be read. */
typedef struct QxNetUserPassword
{
    uint32_t size;
    char name[QXNET_LABEL_LENGTH];
    char password[128]; /* at least 8 bytes */
    uint8_t reserved[4];
} QxNetUserPassword;
QXNET_SIZE(QxNetUserPassword, 200);

/* The clock shows the zone's time. */
typedef struct QxNetClock
{
    uint32_t size;
    uint16_t year;           /* 2000 to 2099 */
    uint8_t month;           /* 1 to 12 */
    uint8_t day;             /* 1 to 31 */
    uint8_t hour;            /* 0 to 23 */
    uint8_t minute;          /* 0 to 59 */
    uint8_t second;          /* 0 to 59 */
    uint8_t timeServer;      /* 1: the clock is set by NTP */
    int32_t zone;            /* minutes east of UTC, -720 to 840, with summer time */
    uint16_t serverPort;     /* of NTP, 1 to 65535 */
    uint16_t serverInterval; /* minutes between two settings, 1 to 10080 */
    char serverAddress[128]; /* host name or IP address */
    uint8_t reserved[44];
} QxNetClock;
QXNET_SIZE(QxNetClock, 192);
