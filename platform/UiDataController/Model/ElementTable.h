#pragma once

#include "UiDataController/Model/Resources.h"

#include <array>
#include <set>
#include <unordered_map>
#include <utility>

namespace UiDataController {

/// All elements with their indexes: what was told of each, and what it shows as from that. Every device and
/// group that a shown element names is there, and no group stands below itself, whatever was told. One thread
/// at a time.
class CElementTable
{
public:
    /// Makes the edits in their order. What changed by them, as IElementObserver has it.
    ElementChanges Apply(const ModelEdits& edits);

    /// In the order of ElementSnapshot.
    std::vector<ElementInfo> All() const;
    ModelCounts Counts() const;

    /// Null when there is none. Until the next edit.
    const ElementInfo* Find(const QID& id) const;
    /// Empty when there is no such device.
    QString AddressOf(const QID& deviceId) const;

private:
    struct Device
    {
        DeviceResource told;
        DeviceHeard heard; ///< its channels by their numbers
        ElementInfo shown;
        std::set<std::pair<int, QID>> channels; ///< by number
    };
    struct Channel
    {
        ChannelResource told;
        ElementInfo shown;
    };
    struct Group
    {
        GroupResource told;
        ElementInfo shown;
    };
    /// Who wants to be in a group, whether or not it is there.
    struct Wanting
    {
        std::unordered_set<QID> channels;
        std::unordered_set<QID> groups;
    };

    void Take(const DeviceResource& device);
    void Take(const ChannelResource& channel);
    void Take(const GroupResource& group);
    void Take(const GroupMembers& members);
    void Take(const Removal& removal);
    void Take(const KeepOnly& keep);
    void Take(const DeviceHeard& heard);

    bool MakesRoomFor(const QID& id, ElementType type);
    void Show(ElementInfo& shown, ElementInfo now);
    void ShowDevice(Device& device);
    void ShowChannel(Channel& channel, const Device& device);
    void ShowGroup(Group& group);
    void ShowThoseWanting(const QID& groupId);
    QID ShownParent(const Group& group) const;
    bool IsGroup(const QID& id) const { return m_groups.count(id) > 0; }

    void SetGroupOf(Channel& channel, const QID& groupId);
    void Unlink(Channel& channel, Device& device);
    void Unwant(std::unordered_set<QID> Wanting::*who, const QID& groupId, const QID& id);
    void RemoveDevice(const QID& id);
    void RemoveChannel(const QID& id);
    void RemoveGroup(const QID& id);
    void RemoveOneGroup(const QID& id);
    void NoteRemoval(const ElementInfo& shown);

    template<typename Map>
    static std::vector<const ElementInfo*> InOrderOfAddition(const Map& map);
    void AppendGroups(std::vector<ElementInfo>& all) const;
    void AppendChannels(const ElementInfo& device, std::vector<ElementInfo>& all) const;

    std::unordered_map<QID, Device> m_devices;
    std::unordered_map<QID, Channel> m_channels;
    std::unordered_map<QID, Group> m_groups;
    std::unordered_map<QID, Wanting> m_wanting; ///< by the group that they want
    std::set<QID> m_inCircles;                  ///< groups that want one which stands below them
    std::array<int, 3> m_places{};              ///< the last ones given to devices, servers and groups
    ElementChanges m_changes;
};

} // namespace UiDataController
