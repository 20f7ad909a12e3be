#include "DeviceStructures/layouts/Shared.h"

namespace devices {

// Addresses of a fresh device are of the range that RFC 5737 keeps for documents.
QXNET_LAYOUT(QxNetNetwork, "Network of the device; a change counts for sessions that begin after it",
    QXNET_FIELD(size),
    QXNET_FIELD(dhcp).Flag().Note("addresses, gateways and name servers come from the network"),
    QXNET_FIELD(prefixLength).Range(0, 32).Default(24).In("bit").Note("of address"),
    QXNET_FIELD(prefixLength6).Range(0, 128).Default(64).In("bit").Note("of address6"),
    QXNET_FIELD(reserved1),
    QXNET_FIELD(mtu).Range(576, 9000).Default(1500).In("bytes"),
    QXNET_FIELD(port).Range(1, 65535).Default(8600).Note("of the device protocol"),
    QXNET_FIELD(streamPort).Range(1, 65535).Default(8554).Note("of live pictures"),
    QXNET_FIELD(reserved2),
    QXNET_FIELD(hardwareAddress).Default("02:00:00:00:00:01").Note("read only"),
    QXNET_FIELD(hostName).Default("device"),
    QXNET_FIELD(address).Default("192.0.2.10").Note("IPv4"),
    QXNET_FIELD(gateway).Default("192.0.2.1"),
    QXNET_FIELD(address6).Note("IPv6; empty: none"),
    QXNET_FIELD(gateway6),
    QXNET_FIELD(nameServer1).Default("192.0.2.1"),
    QXNET_FIELD(nameServer2),
    QXNET_FIELD(reserved3))

QXNET_LAYOUT(QxNetUser, "A user; an administrator has all rights",
    QXNET_FIELD(name).Note("empty in a free entry"),
    QXNET_FIELD(level).Named("viewer|operator|administrator"),
    QXNET_FIELD(enabled).Flag().Note("no: may not log in"),
    QXNET_FIELD(live).Flag(),
    QXNET_FIELD(playback).Flag(),
    QXNET_FIELD(movement).Flag().Note("pan, tilt, zoom"),
    QXNET_FIELD(voice).Flag(),
    QXNET_FIELD(alarmOutputs).Flag(),
    QXNET_FIELD(configuration).Flag(),
    QXNET_FIELD(maintenance).Flag().Note("restart, reset, formatting"),
    QXNET_FIELD(reserved),
    QXNET_FIELD(channels).Numbers().Note("cameras the user may see; none: all"))

QXNET_LAYOUT(QxNetUserList, "The users. Who is new can log in when a password was set; the last administrator stays",
    QXNET_FIELD(size),
    QXNET_FIELD(users),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetUserPassword, "The new password of a user; it can't be read",
    QXNET_FIELD(size),
    QXNET_FIELD(name),
    QXNET_FIELD(password).Secret().Note("at least 8 bytes"),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetClock, "The clock of the device, in the time of its zone",
    QXNET_FIELD(size),
    QXNET_FIELD(year).Range(2000, 2099),
    QXNET_FIELD(month).Range(1, 12),
    QXNET_FIELD(day).Range(1, 31),
    QXNET_FIELD(hour).Range(0, 23),
    QXNET_FIELD(minute).Range(0, 59),
    QXNET_FIELD(second).Range(0, 59),
    QXNET_FIELD(timeServer).Flag().Note("the clock is set by NTP"),
    QXNET_FIELD(zone).Range(-720, 840).In("min").Note("east of UTC, with summer time"),
    QXNET_FIELD(serverPort).Range(1, 65535).Default(123),
    QXNET_FIELD(serverInterval).Range(1, 10080).Default(60).In("min").Note("between two settings"),
    QXNET_FIELD(serverAddress).Note("host name or IP address"),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetReboot, "Restarts the device; it answers first, then its sessions end",
    QXNET_FIELD(size),
    QXNET_FIELD(delay).Range(0, 60).In("s"),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetReset, "Back to the values of a fresh device; recordings stay",
    QXNET_FIELD(size),
    QXNET_FIELD(scope).Named("settings|everything").Note("settings: network and users stay"),
    QXNET_FIELD(reserved))

std::vector<ConfigCommand> NetworkCommands()
{
    return {
        Parameter<QxNetNetwork>("network", Scope::Device, QXNET_GET_NETWORK, QXNET_SET_NETWORK),
        Parameter<QxNetUserList>("users", Scope::Device, QXNET_GET_USERS, QXNET_SET_USERS),
        Parameter<QxNetUserPassword>("user-password", Scope::Device, 0, QXNET_SET_USER_PASSWORD),
        Parameter<QxNetClock>("clock", Scope::Device, QXNET_GET_CLOCK, QXNET_SET_CLOCK),
        Parameter<QxNetReboot>("reboot", Scope::Device, 0, QXNET_REBOOT),
        Parameter<QxNetReset>("reset", Scope::Device, 0, QXNET_RESET),
    };
}

} // namespace devices
