#include "framework/core/ResourceFile.h"

#include "Base/GuidUtil.h"
#include "Base/StringUtil.h"

#include <algorithm>
#include <map>

namespace framework {

namespace {

using protocol::AlarmInputInfo;
using protocol::AlarmOutputInfo;
using protocol::DeviceChannelInfo;
using protocol::DeviceResponseData;

constexpr const char* kAdd = "Add";
constexpr const char* kRemove = "Remove";
constexpr const char* kChange = "Change";

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
Changed Resize(std::vector<T>& all, const std::string& deviceGuid, int wanted, Make make,
               ResourceChanges& changes)
{
    int has = 0;
    const std::size_t before = all.size();
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
    return all.size() == before ? Changed::Nothing : Changed::OnDisk;
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

bool IsShown(const devices::ChannelState& channel)
{
    return channel.state == QXNET_CHANNEL_ONLINE || channel.state == QXNET_CHANNEL_RECORDING;
}

/// Brings a channel up to date.
Changed Take(const DeviceResponseData& device, const devices::ChannelState& heard, DeviceChannelInfo& channel)
{
    const bool isOnline = device.online && IsShown(heard);
    const std::string name =
        heard.name.empty() ? Base::StringUtil::Format("Camera %02d", heard.number) : heard.name;
    const bool isRenamed = channel.name != name;
    const bool isOther = isRenamed || channel.online != isOnline;
    channel.name = name;
    channel.online = isOnline;
    return isRenamed ? Changed::OnDisk : isOther ? Changed::InMemory : Changed::Nothing;
}

Changed RemoveOtherChannels(ResourceFile& file, const std::string& deviceGuid,
                            const std::vector<devices::ChannelState>& wanted, ResourceChanges& changes)
{
    const std::size_t before = file.channels.size();
    const auto isOther = [&](const DeviceChannelInfo& channel) {
        const auto isIt = [&](const devices::ChannelState& each) { return each.number == channel.channelNo; };
        if (channel.deviceGuid != deviceGuid || std::any_of(wanted.begin(), wanted.end(), isIt))
            return false;
        changes.push_back(ChangeOf(kRemove, channel));
        return true;
    };
    file.channels.erase(std::remove_if(file.channels.begin(), file.channels.end(), isOther),
                        file.channels.end());
    return file.channels.size() == before ? Changed::Nothing : Changed::OnDisk;
}

Changed FitChannels(ResourceFile& file, const DeviceResponseData& device, const std::string& group,
                    const std::vector<devices::ChannelState>& wanted, ResourceChanges& changes)
{
    Changed changed = RemoveOtherChannels(file, device.guid, wanted, changes);
    std::map<int, std::size_t> places;
    for (std::size_t place = 0; place < file.channels.size(); ++place)
        if (file.channels[place].deviceGuid == device.guid)
            places[file.channels[place].channelNo] = place;
    for (const devices::ChannelState& heard : wanted) {
        const auto found = places.find(heard.number);
        const bool isNew = found == places.end();
        if (isNew)
            file.channels.push_back(
                {Base::GuidUtil::CreateGuid(), device.guid, group, {}, heard.number, false});
        DeviceChannelInfo& channel = isNew ? file.channels.back() : file.channels[found->second];
        const Changed taken = Take(device, heard, channel);
        if (taken != Changed::Nothing)
            changes.push_back(ChangeOf(isNew ? kAdd : kChange, channel));
        changed = std::max(changed, taken);
    }
    return changed;
}

Changed SetChannelsOffline(ResourceFile& file, const std::string& deviceGuid, ResourceChanges& changes)
{
    Changed changed = Changed::Nothing;
    for (DeviceChannelInfo& channel : file.channels) {
        if (channel.deviceGuid != deviceGuid || !channel.online)
            continue;
        channel.online = false;
        changes.push_back(ChangeOf(kChange, channel));
        changed = Changed::InMemory;
    }
    return changed;
}

/// What the operation log says; empty where nothing happened to the device.
std::string NewsOf(const DeviceResponseData& device, bool wasOnline, devices::SessionState state)
{
    if (device.online == wasOnline || state == devices::SessionState::Connecting)
        return {};
    return "Device \"" + device.name + (device.online ? "\" is online." : "\" is offline.");
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

Changed FitParts(ResourceFile& file, const DeviceResponseData& device, const DeviceParts& parts,
                 ResourceChanges& changes)
{
    std::string group = GroupOf(file, device.guid);
    if (group.empty() && !parts.channels.empty()) {
        group = Base::GuidUtil::CreateGuid();
        file.groups.emplace_back().guid = group;
    }
    const auto makeInput = [&](int number) {
        return AlarmInputInfo{Base::GuidUtil::CreateGuid(), device.guid,
                              Base::StringUtil::Format("Input %d", number), number};
    };
    const auto makeOutput = [&](int number) {
        return AlarmOutputInfo{Base::GuidUtil::CreateGuid(), device.guid,
                               Base::StringUtil::Format("Output %d", number), number, false};
    };
    Changed changed = FitChannels(file, device, group, parts.channels, changes);
    FitGroup(file, group, device.name, changes);
    changed = std::max(changed, Resize(file.inputs, device.guid, parts.inputs, makeInput, changes));
    return std::max(changed, Resize(file.outputs, device.guid, parts.outputs, makeOutput, changes));
}

void NameGroup(ResourceFile& file, const DeviceResponseData& device, ResourceChanges& changes)
{
    FitGroup(file, GroupOf(file, device.guid), device.name, changes);
}

Changed TakeStatus(ResourceFile& file, DeviceResponseData& device, const devices::DeviceStatus& status,
                   ResourceChanges& changes)
{
    const DeviceResponseData before = device;
    device.online = status.state == devices::SessionState::Online;
    if (device.online) {
        device.typeCode = static_cast<int>(status.info.typeCode);
        device.subType = static_cast<int>(status.info.subType);
    }
    Changed changed = Changed::Nothing;
    if (device != before) {
        const bool isOtherKind = device.typeCode != before.typeCode || device.subType != before.subType;
        changed = isOtherKind ? Changed::OnDisk : Changed::InMemory;
        changes.push_back(ChangeOf(kChange, device, NewsOf(device, before.online, status.state)));
        changes.back().isOfUser = false;
    }
    if (!device.online)
        return std::max(changed, SetChannelsOffline(file, device.guid, changes));
    return std::max(changed, FitParts(file, device,
                                      {status.channels, static_cast<int>(status.info.alarmInputs),
                                       static_cast<int>(status.info.alarmOutputs)},
                                      changes));
}

Changed SetAllOffline(ResourceFile& file)
{
    for (DeviceResponseData& device : file.devices)
        device.online = false;
    for (DeviceChannelInfo& channel : file.channels)
        channel.online = false;
    return Changed::InMemory;
}

} // namespace framework
