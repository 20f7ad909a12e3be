#include "UiDataController/Model/ElementTable.h"

#include <algorithm>

namespace UiDataController {

namespace {

using Kind = ElementChange::Kind;

ElementType TypeOf(const DeviceResource& device)
{
    return device.typeCode == static_cast<int>(ElementType::StorageServer) ? ElementType::StorageServer
                                                                           : ElementType::Device;
}

std::size_t PlacesOf(ElementType type)
{
    return type == ElementType::Device ? 0 : type == ElementType::StorageServer ? 1 : 2;
}

bool IsBefore(const ChannelHeard& left, const ChannelHeard& right)
{
    return left.number < right.number;
}

/// Null when the device does not tell of the number.
const ChannelHeard* HeardOf(const DeviceHeard& heard, int number)
{
    ChannelHeard wanted;
    wanted.number = number;
    const auto found = std::lower_bound(heard.channels.begin(), heard.channels.end(), wanted, IsBefore);
    return found != heard.channels.end() && found->number == number ? &*found : nullptr;
}

ElementState StateOf(const DeviceHeard& device, const ChannelHeard* channel)
{
    if (device.state != ElementState::Online)
        return device.state;
    return channel ? channel->state : ElementState::Offline;
}

bool IsOnline(const ElementInfo& element)
{
    return element.state == ElementState::Online || element.state == ElementState::Recording;
}

} // namespace

ElementChanges CElementTable::Apply(const ModelEdits& edits)
{
    for (const ModelEdit& edit : edits)
        std::visit([this](const auto& each) { Take(each); }, edit);
    return std::exchange(m_changes, {});
}

const ElementInfo* CElementTable::Find(const QID& id) const
{
    if (const auto channel = m_channels.find(id); channel != m_channels.end())
        return &channel->second.shown;
    if (const auto device = m_devices.find(id); device != m_devices.end())
        return &device->second.shown;
    const auto group = m_groups.find(id);
    return group != m_groups.end() ? &group->second.shown : nullptr;
}

QString CElementTable::AddressOf(const QID& deviceId) const
{
    const auto device = m_devices.find(deviceId);
    return device != m_devices.end() ? device->second.told.address : QString();
}

ModelCounts CElementTable::Counts() const
{
    ModelCounts counts{m_devices.size(), 0, m_channels.size(), 0, m_groups.size()};
    for (const auto& [id, device] : m_devices)
        counts.devicesOnline += IsOnline(device.shown);
    for (const auto& [id, channel] : m_channels)
        counts.channelsOnline += IsOnline(channel.shown);
    return counts;
}

// ---- edits ----

void CElementTable::Take(const DeviceResource& device)
{
    DeviceHeard heard;
    if (const auto former = m_devices.find(device.id); former != m_devices.end())
        heard = former->second.heard;
    if (!MakesRoomFor(device.id, TypeOf(device)))
        return;
    Device& known = m_devices[device.id];
    known.told = device;
    known.heard = std::move(heard); // also of a device that turns out to be a storage server
    ShowDevice(known);
}

void CElementTable::Take(const ChannelResource& channel)
{
    if (!MakesRoomFor(channel.id, ElementType::Channel))
        return;
    const auto device = m_devices.find(channel.deviceId);
    if (device == m_devices.end())
        return RemoveChannel(channel.id);
    Channel& known = m_channels[channel.id];
    if (const auto former = m_devices.find(known.told.deviceId); former != m_devices.end())
        Unlink(known, former->second);
    known.told = channel;
    device->second.channels.emplace(channel.number, channel.id);
    m_wanting[channel.groupId].channels.insert(channel.id);
    ShowChannel(known, device->second);
}

void CElementTable::Take(const GroupResource& group)
{
    if (!MakesRoomFor(group.id, ElementType::Group))
        return;
    Group& known = m_groups[group.id];
    Unwant(&Wanting::groups, known.told.parentId, group.id);
    known.told = group;
    m_wanting[group.parentId].groups.insert(group.id);
    ShowGroup(known);
    ShowThoseWanting(group.id);
    for (const QID& id : std::set<QID>(m_inCircles))
        ShowGroup(m_groups.at(id));
}

void CElementTable::Take(const GroupMembers& members)
{
    const std::unordered_set<QID> wanted(members.channelIds.begin(), members.channelIds.end());
    const auto wanting = m_wanting.find(members.groupId);
    const auto present = wanting != m_wanting.end() ? wanting->second.channels : std::unordered_set<QID>();
    for (const QID& id : present)
        if (!wanted.count(id))
            SetGroupOf(m_channels.at(id), {});
    for (const QID& id : members.channelIds)
        if (const auto channel = m_channels.find(id); channel != m_channels.end())
            SetGroupOf(channel->second, members.groupId);
}

void CElementTable::Take(const Removal& removal)
{
    RemoveDevice(removal.id);
    RemoveChannel(removal.id);
    RemoveGroup(removal.id);
}

void CElementTable::Take(const KeepOnly& keep)
{
    std::vector<QID> gone;
    const auto collect = [&](const QID& id) {
        if (!keep.ids.count(id))
            gone.push_back(id);
    };
    if (keep.deviceId.isEmpty()) {
        for (const auto& each : m_channels)
            collect(each.first);
        for (const auto& each : m_groups)
            collect(each.first);
        for (const auto& each : m_devices)
            collect(each.first);
    } else if (const auto device = m_devices.find(keep.deviceId); device != m_devices.end()) {
        for (const auto& each : device->second.channels)
            collect(each.second);
    }
    for (const QID& id : gone)
        Take(Removal{id});
}

void CElementTable::Take(const DeviceHeard& heard)
{
    const auto device = m_devices.find(heard.deviceId);
    if (device == m_devices.end())
        return;
    device->second.heard = heard;
    std::vector<ChannelHeard>& channels = device->second.heard.channels;
    std::sort(channels.begin(), channels.end(), IsBefore);
    ShowDevice(device->second);
}

/// What is there under the same identifier, but of another type, goes. False without an identifier.
bool CElementTable::MakesRoomFor(const QID& id, ElementType type)
{
    const ElementInfo* const known = Find(id);
    if (known && known->type != type)
        Take(Removal{id});
    return !id.isEmpty();
}

// ---- what elements show ----

void CElementTable::Show(ElementInfo& shown, ElementInfo now)
{
    const bool isNew = shown.id.isEmpty();
    if (!isNew && shown == now)
        return;
    shown = std::move(now);
    m_changes.push_back({isNew ? Kind::Add : Kind::Change, shown});
}

void CElementTable::ShowDevice(Device& device)
{
    const bool isHeard = device.heard.typeCode != 0;
    ElementInfo now;
    now.id = device.told.id;
    now.type = TypeOf(device.told);
    now.name = device.told.name.isEmpty() ? device.told.address : device.told.name;
    now.state = device.heard.state;
    now.problem = device.heard.problem;
    now.typeCode = isHeard ? device.heard.typeCode : device.told.typeCode;
    now.subType = isHeard ? device.heard.subType : device.told.subType;
    now.number = device.shown.number ? device.shown.number : ++m_places[PlacesOf(now.type)];
    Show(device.shown, std::move(now));
    for (const auto& [number, id] : device.channels)
        ShowChannel(m_channels.at(id), device);
}

void CElementTable::ShowChannel(Channel& channel, const Device& device)
{
    const ChannelHeard* const heard = HeardOf(device.heard, channel.told.number);
    ElementInfo now;
    now.id = channel.told.id;
    now.type = ElementType::Channel;
    now.deviceId = device.shown.id;
    now.groupId = IsGroup(channel.told.groupId) ? channel.told.groupId : QID();
    now.name = heard && !heard->name.isEmpty() ? heard->name : channel.told.name;
    if (now.name.isEmpty())
        now.name = QStringLiteral("%1 %2").arg(device.shown.name).arg(channel.told.number);
    now.state = StateOf(device.heard, heard);
    now.problem = device.shown.problem;
    now.typeCode = device.shown.typeCode;
    now.subType = device.shown.subType;
    now.number = channel.told.number;
    Show(channel.shown, std::move(now));
}

void CElementTable::ShowGroup(Group& group)
{
    ElementInfo now;
    now.id = group.told.id;
    now.type = ElementType::Group;
    now.groupId = ShownParent(group);
    if (now.groupId.isEmpty() && IsGroup(group.told.parentId))
        m_inCircles.insert(now.id);
    else
        m_inCircles.erase(now.id);
    now.name = group.told.name;
    now.state = ElementState::Online;
    now.number = group.shown.number ? group.shown.number : ++m_places[PlacesOf(now.type)];
    Show(group.shown, std::move(now));
}

/// A group that came, went or moved decides where those stand that want it.
void CElementTable::ShowThoseWanting(const QID& groupId)
{
    const auto wanting = m_wanting.find(groupId);
    if (groupId.isEmpty() || wanting == m_wanting.end())
        return;
    for (const QID& id : wanting->second.groups)
        ShowGroup(m_groups.at(id));
    for (const QID& id : wanting->second.channels)
        ShowChannel(m_channels.at(id), m_devices.at(m_channels.at(id).told.deviceId));
}

/// Empty where the wanted one is not there, or stands below the group itself.
QID CElementTable::ShownParent(const Group& group) const
{
    if (!IsGroup(group.told.parentId))
        return {};
    for (QID above = group.told.parentId; !above.isEmpty(); above = m_groups.at(above).shown.groupId)
        if (above == group.told.id)
            return {};
    return group.told.parentId;
}

// ---- links and removal ----

void CElementTable::SetGroupOf(Channel& channel, const QID& groupId)
{
    Unwant(&Wanting::channels, channel.told.groupId, channel.told.id);
    m_wanting[groupId].channels.insert(channel.told.id);
    channel.told.groupId = groupId;
    ShowChannel(channel, m_devices.at(channel.told.deviceId));
}

void CElementTable::Unlink(Channel& channel, Device& device)
{
    device.channels.erase({channel.told.number, channel.told.id});
    Unwant(&Wanting::channels, channel.told.groupId, channel.told.id);
}

void CElementTable::Unwant(std::unordered_set<QID> Wanting::*who, const QID& groupId, const QID& id)
{
    const auto wanted = m_wanting.find(groupId);
    if (wanted == m_wanting.end())
        return;
    (wanted->second.*who).erase(id);
    if (wanted->second.channels.empty() && wanted->second.groups.empty())
        m_wanting.erase(wanted);
}

void CElementTable::NoteRemoval(const ElementInfo& shown)
{
    m_changes.push_back({Kind::Remove, shown});
}

void CElementTable::RemoveDevice(const QID& id)
{
    const auto device = m_devices.find(id);
    if (device == m_devices.end())
        return;
    while (!device->second.channels.empty())
        RemoveChannel(QID(device->second.channels.begin()->second));
    NoteRemoval(device->second.shown);
    m_devices.erase(device);
}

void CElementTable::RemoveChannel(const QID& id)
{
    const auto channel = m_channels.find(id);
    if (channel == m_channels.end())
        return;
    Unlink(channel->second, m_devices.at(channel->second.told.deviceId));
    NoteRemoval(channel->second.shown);
    m_channels.erase(channel);
}

void CElementTable::RemoveGroup(const QID& id)
{
    if (!IsGroup(id))
        return;
    std::vector<QID> branch{id};
    for (std::size_t i = 0; i < branch.size(); ++i) {
        const QID above = branch[i];
        if (const auto wanting = m_wanting.find(above); wanting != m_wanting.end())
            for (const QID& below : wanting->second.groups)
                if (m_groups.at(below).shown.groupId == above)
                    branch.push_back(below);
    }
    for (auto group = branch.rbegin(); group != branch.rend(); ++group)
        RemoveOneGroup(*group);
}

void CElementTable::RemoveOneGroup(const QID& id)
{
    const Group group = std::move(m_groups.at(id));
    m_groups.erase(id);
    m_inCircles.erase(id);
    Unwant(&Wanting::groups, group.told.parentId, id);
    ShowThoseWanting(id);
    NoteRemoval(group.shown);
}

// ---- all of them ----

template<typename Map>
std::vector<const ElementInfo*> CElementTable::InOrderOfAddition(const Map& map)
{
    std::vector<const ElementInfo*> all;
    for (const auto& each : map)
        all.push_back(&each.second.shown);
    std::sort(all.begin(), all.end(), [](const ElementInfo* left, const ElementInfo* right) {
        return std::make_pair(left->type, left->number) < std::make_pair(right->type, right->number);
    });
    return all;
}

std::vector<ElementInfo> CElementTable::All() const
{
    const std::vector<const ElementInfo*> devices = InOrderOfAddition(m_devices);
    std::vector<ElementInfo> all;
    all.reserve(m_devices.size() + m_groups.size() + m_channels.size());
    for (const ElementInfo* device : devices)
        all.push_back(*device);
    AppendGroups(all);
    for (const ElementInfo* device : devices)
        AppendChannels(*device, all);
    return all;
}

/// Level by level, so that every group stands behind the one above it.
void CElementTable::AppendGroups(std::vector<ElementInfo>& all) const
{
    std::unordered_map<QID, std::vector<const ElementInfo*>> below;
    for (const ElementInfo* group : InOrderOfAddition(m_groups))
        below[group->groupId].push_back(group);
    std::vector<QID> open{QID()};
    for (std::size_t i = 0; i < open.size(); ++i) {
        const QID above = open[i];
        for (const ElementInfo* group : below[above]) {
            all.push_back(*group);
            open.push_back(group->id);
        }
    }
}

void CElementTable::AppendChannels(const ElementInfo& device, std::vector<ElementInfo>& all) const
{
    for (const auto& [number, id] : m_devices.at(device.id).channels)
        all.push_back(m_channels.at(id).shown);
}

} // namespace UiDataController
