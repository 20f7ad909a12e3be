#include "DeviceSessions/DeviceCalls.h"

#include "DeviceSessions/DeviceTexts.h"

#include <algorithm>
#include <cstring>

namespace devices {

namespace {

constexpr std::uint32_t kMostChannels = 512; // the limits of Structures/Device.h
constexpr std::uint32_t kMostVoices = 16;
constexpr std::uint32_t kMostDisks = 64;
constexpr int kLooksUntilAll = 20; ///< a device that was restarted may have come back to the same count

CallError LastError()
{
    CallError last{NET_DVR_GetLastError(), 0};
    last.module = NET_DVR_GetLastErrorModelCode(nullptr);
    if (!last)
        last.error = QXNET_ERROR_DEVICE;
    return last;
}

template<std::size_t capacity>
bool Copy(const std::string& text, char (&to)[capacity])
{
    if (text.size() >= capacity || text.find('\0') != std::string::npos)
        return false;
    std::memcpy(to, text.c_str(), text.size() + 1);
    return true;
}

template<std::size_t capacity>
void Clean(char (&text)[capacity])
{
    const std::string clean = CleanText(text, capacity);
    std::memset(text, 0, capacity);
    std::memcpy(text, clean.data(), clean.size());
}

bool TakeInfo(QxNetDeviceInfo info, QxNetDeviceInfo& taken)
{
    const bool fits = info.size == sizeof info && info.channels <= kMostChannels &&
                      info.alarmInputs <= kMostChannels && info.alarmOutputs <= kMostChannels &&
                      info.voiceChannels <= kMostVoices && info.disks <= kMostDisks &&
                      info.typeCode <= INT32_MAX && info.subType <= INT32_MAX;
    if (!fits)
        return false;
    Clean(info.name);
    Clean(info.serial);
    Clean(info.model);
    Clean(info.firmware);
    taken = info;
    return true;
}

bool IsState(std::uint32_t state)
{
    return state <= QXNET_CHANNEL_RECORDING || state == QXNET_CHANNEL_NOT_SUPPORTED;
}

/// The page begins with that channel and holds as many as there are, up to its limit.
bool IsPage(const QxNetChannelPage& page, std::uint32_t from)
{
    if (page.size != sizeof page || page.total > kMostChannels)
        return false;
    const std::uint32_t left = page.total < from ? 0 : page.total - from + 1;
    if (page.count != std::min<std::uint32_t>(left, QXNET_CHANNELS_PER_PAGE))
        return false;
    for (std::uint32_t index = 0; index < page.count; ++index)
        if (page.channels[index].channel != from + index || !IsState(page.channels[index].state))
            return false;
    return true;
}

CallError ReadPage(std::int32_t login, std::uint32_t from, QxNetChannelPage& page)
{
    if (!NET_DVR_GetDVRConfig(login, QXNET_GET_CHANNEL_PAGE, static_cast<std::int32_t>(from), &page,
                              sizeof page))
        return LastError();
    return IsPage(page, from) ? CallError{} : CallError{QXNET_ERROR_UNREADABLE, 0};
}

void Take(const QxNetChannelPage& page, std::vector<ChannelState>& channels)
{
    for (std::uint32_t index = 0; index < page.count; ++index) {
        const QxNetChannelState& from = page.channels[index];
        ChannelState& channel = channels[from.channel - 1];
        channel.number = static_cast<int>(from.channel);
        channel.state = static_cast<int>(from.state);
        channel.name = CleanText(from.name, sizeof from.name);
    }
}

/// The pages behind the first one. One that was changed meanwhile is left out: the next look reads all again.
CallError ReadRest(std::int32_t login, const QxNetChannelPage& first, std::vector<ChannelState>& channels)
{
    QxNetChannelPage page{};
    for (std::uint32_t from = 1 + QXNET_CHANNELS_PER_PAGE; from <= first.total;
         from += QXNET_CHANNELS_PER_PAGE) {
        if (const CallError error = ReadPage(login, from, page))
            return error;
        if (page.total == first.total)
            Take(page, channels);
    }
    return {};
}

CallError ReadInfo(std::int32_t login, QxNetDeviceInfo& info)
{
    QxNetDeviceInfo read{};
    if (NET_DVR_GetDVRConfig(login, QXNET_GET_DEVICE_INFO, 0, &read, sizeof read))
        return TakeInfo(read, info) ? CallError{} : CallError{QXNET_ERROR_UNREADABLE, 0};
    const CallError error = LastError();
    return IsRefusalOfADevice(error.error) ? CallError{} : error;
}

void NumberAll(std::vector<ChannelState>& channels, std::uint32_t count)
{
    channels.resize(count);
    for (std::uint32_t index = 0; index < count; ++index)
        channels[index].number = static_cast<int>(index) + 1;
}

bool SameChannels(const std::vector<ChannelState>& some, const std::vector<ChannelState>& others)
{
    return std::equal(some.begin(), some.end(), others.begin(), others.end(),
                      [](const ChannelState& one, const ChannelState& other) {
                          return one.number == other.number && one.state == other.state &&
                                 one.name == other.name;
                      });
}

} // namespace

bool Heard::operator==(const Heard& other) const
{
    return std::memcmp(&info, &other.info, sizeof info) == 0 && SameChannels(channels, other.channels);
}

bool IsRefusalOfADevice(std::uint32_t error)
{
    return error >= QXNET_ERROR_NOT_SUPPORTED && error <= QXNET_ERROR_STORAGE;
}

bool IsRefusalOfTheUser(std::uint32_t error)
{
    return error >= QXNET_ERROR_PASSWORD && error <= QXNET_ERROR_PERMISSION;
}

std::int32_t LogIn(const DeviceAddress& address, std::chrono::milliseconds answer, QxNetDeviceInfo& info,
                   CallError& error)
{
    QxNetLogin login{};
    login.size = sizeof login;
    login.port = address.port;
    login.useTls = address.useTls ? 1 : 0;
    login.connectTimeoutMs = login.exchangeTimeoutMs = static_cast<std::uint32_t>(answer.count());
    error = {QXNET_ERROR_ARGUMENT, 0};
    if (!Copy(address.host, login.address) || !Copy(address.user, login.user) ||
        !Copy(address.password, login.password))
        return -1;
    QxNetDeviceInfo answered{};
    const std::int32_t handle = QxNet_Login(&login, &answered);
    if (handle < 0) {
        error = LastError();
        return -1;
    }
    error = {};
    if (TakeInfo(answered, info))
        return handle;
    error = {QXNET_ERROR_UNREADABLE, 0};
    LogOut(handle);
    return -1;
}

CallError Look(std::int32_t login, Heard& heard)
{
    QxNetChannelPage page{};
    CallError error = ReadPage(login, 1, page);
    if (error.error == QXNET_ERROR_CHANNEL) { // a device without any
        page = {};
        page.changes = heard.changes;
        error = {};
    }
    if (error)
        return error;
    Heard now = heard;
    const bool isSame = heard.looks >= 0 && heard.looks < kLooksUntilAll && page.changes == heard.changes &&
                        page.total == heard.channels.size();
    now.looks = isSame ? heard.looks + 1 : 0;
    now.changes = page.changes;
    NumberAll(now.channels, page.total);
    Take(page, now.channels);
    if (!isSame)
        error = ReadRest(login, page, now.channels);
    if (!isSame && !error)
        error = ReadInfo(login, now.info);
    if (!error)
        heard = std::move(now);
    return error;
}

void LogOut(std::int32_t login)
{
    (void)QxNet_Logout(login);
}

} // namespace devices
