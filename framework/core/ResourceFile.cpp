#include "framework/core/ResourceFile.h"

#include "Base/GuidUtil.h"
#include "Base/StringUtil.h"

#include <algorithm>

namespace framework {

namespace {

using protocol::AlarmInputInfo;
using protocol::AlarmOutputInfo;
using protocol::DeviceChannelInfo;
using protocol::DeviceResponseData;

constexpr const char* kAdd = "Add";
constexpr const char* kRemove = "Remove";
constexpr const char* kChange = "Change";
constexpr int kInputsAndOutputs = 2;

template<typename T>
ResourceChange Noted(const std::string& kind, const char* what, const T& thing, std::string text = {})
{
    const bool isGone = what == std::string(kRemove);
    return {kind + what, thing.guid,
            isGone ? std::string() : protocol::json::PrintText(protocol::json::Kind<T>::Write(thing).get()),
            std::move(text)};
}

/// Removes the device's last things of a list, or adds what make gives for the next numbers.
template<typename T, typename Make>
void Resize(std::vector<T>& all, const std::string& deviceGuid, int wanted, Make make,
            ResourceChanges& changes)
{
    int has = 0;
    const auto isTooMuch = [&](const T& thing) {
        if (thing.deviceGuid != deviceGuid || ++has <= wanted)
            return false;
        changes.push_back(ChangeOf(kRemove, thing));
        return true;
    };
    all.erase(std::remove_if(all.begin(), all.end(), isTooMuch), all.end());
    for (int number = has + 1; number <= wanted; ++number) {
        all.push_back(make(number));
        changes.push_back(ChangeOf(kAdd, all.back()));
    }
}

std::string GroupOf(const ResourceFile& file, const std::string& deviceGuid)
{
    for (const DeviceChannelInfo& channel : file.channels)
        if (channel.deviceGuid == deviceGuid)
            return channel.groupGuid;
    return {};
}

std::vector<std::string> ChannelsOf(const ResourceFile& file, const std::string& groupGuid)
{
    std::vector<std::string> guids;
    for (const DeviceChannelInfo& channel : file.channels)
        if (channel.groupGuid == groupGuid)
            guids.push_back(channel.guid);
    return guids;
}

/// Brings name and list of channels up to date; an empty group goes.
void FitGroup(ResourceFile& file, const std::string& guid, const std::string& name, ResourceChanges& changes)
{
    const auto group = std::find_if(file.groups.begin(), file.groups.end(),
                                    [&](const StoredGroup& candidate) { return candidate.guid == guid; });
    if (group == file.groups.end())
        return;
    const StoredGroup before = *group;
    group->name = name;
    group->channelGuids = ChannelsOf(file, guid);
    if (group->channelGuids.empty()) {
        changes.push_back(ChangeOf(kRemove, *group));
        file.groups.erase(group);
    } else if (before.channelGuids.empty()) {
        changes.push_back(ChangeOf(kAdd, *group));
    } else if (before != *group) {
        changes.push_back(ChangeOf(kChange, *group));
    }
}

} // namespace

DeviceResponseData* FindDevice(ResourceFile& file, const std::string& guid)
{
    for (DeviceResponseData& device : file.devices)
        if (device.guid == guid)
            return &device;
    return nullptr;
}

const DeviceResponseData* FindDevice(const ResourceFile& file, const std::string& guid)
{
    return FindDevice(const_cast<ResourceFile&>(file), guid);
}

ResourceChange ChangeOf(const char* what, const DeviceResponseData& device, std::string text)
{
    DeviceResponseData open = device;
    open.userName.clear();
    open.password.clear();
    return Noted("device", what, open, std::move(text));
}

ResourceChange ChangeOf(const char* what, const DeviceChannelInfo& channel)
{
    return Noted("channel", what, channel);
}

ResourceChange ChangeOf(const char* what, const AlarmInputInfo& input)
{
    return Noted("alarmInput", what, input);
}

ResourceChange ChangeOf(const char* what, const AlarmOutputInfo& output, std::string text)
{
    return Noted("alarmOutput", what, output, std::move(text));
}

ResourceChange ChangeOf(const char* what, const StoredGroup& group)
{
    return Noted<protocol::GroupInfo>("group", what, group);
}

int ChannelCount(const ResourceFile& file, const std::string& deviceGuid)
{
    return static_cast<int>(
        std::count_if(file.channels.begin(), file.channels.end(),
                      [&](const DeviceChannelInfo& channel) { return channel.deviceGuid == deviceGuid; }));
}

void FitParts(ResourceFile& file, const DeviceResponseData& device, int channels, ResourceChanges& changes)
{
    std::string group = GroupOf(file, device.guid);
    if (group.empty() && channels > 0) {
        group = Base::GuidUtil::CreateGuid();
        file.groups.emplace_back().guid = group;
    }
    const auto makeChannel = [&](int number) {
        return DeviceChannelInfo{Base::GuidUtil::CreateGuid(),
                                 device.guid,
                                 group,
                                 Base::StringUtil::Format("Camera %02d", number),
                                 number,
                                 device.online};
    };
    const auto makeInput = [&](int number) {
        return AlarmInputInfo{Base::GuidUtil::CreateGuid(), device.guid,
                              Base::StringUtil::Format("Input %d", number), number};
    };
    const auto makeOutput = [&](int number) {
        return AlarmOutputInfo{Base::GuidUtil::CreateGuid(), device.guid,
                               Base::StringUtil::Format("Output %d", number), number, false};
    };
    Resize(file.channels, device.guid, channels, makeChannel, changes);
    FitGroup(file, group, device.name, changes);
    const int contacts = channels > 0 ? kInputsAndOutputs : 0;
    Resize(file.inputs, device.guid, contacts, makeInput, changes);
    Resize(file.outputs, device.guid, contacts, makeOutput, changes);
}

} // namespace framework
