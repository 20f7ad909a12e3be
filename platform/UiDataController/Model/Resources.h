#pragma once

#include "UiDataController/Model/Element.h"

#include <unordered_set>
#include <variant>
#include <vector>

/// What the logic model is told, by the framework about resources and by sessions about devices.
namespace UiDataController {

/// A device or storage server to be added or changed. What stands below it and what was heard of it stays.
struct DeviceResource
{
    QID id;
    QString name;
    QString address;
    int typeCode = 0; ///< 128: a storage server
    int subType = 0;
};

/// A channel to be added or changed. One of a device that is not there is left out.
struct ChannelResource
{
    QID id;
    QID deviceId;
    QID groupId; ///< of a group that may be added later; empty: none
    QString name;
    int number = 0; ///< at the device, from 1
};

/// A group to be added or changed.
struct GroupResource
{
    QID id;
    QID parentId; ///< of a group that may be added later; empty: at the top
    QString name;
};

/// Exactly these channels are in the group. Unknown ones are ignored.
struct GroupMembers
{
    QID groupId;
    std::vector<QID> channelIds;
};

/// An element that goes, with what stands below it. The channels of a group stay, without a group.
struct Removal
{
    QID id;
};

/// Everything else goes; with a device given, all its other channels.
struct KeepOnly
{
    QID deviceId;
    std::unordered_set<QID> ids;
};

/// A channel as its device tells of it.
struct ChannelHeard
{
    int number = 0;
    ElementState state = ElementState::Offline;
    QString name; ///< takes the place of the framework's, if there is one
};

/// How a device stands. Channels of a device that is not online share its state.
struct DeviceHeard
{
    QID deviceId;
    ElementState state = ElementState::Connecting;
    QString problem;  ///< why it is offline, for the user
    int typeCode = 0; ///< as the device says; 0: it says nothing, and the framework's numbers hold
    int subType = 0;
    std::vector<ChannelHeard> channels; ///< one that is missing is offline
};

using ModelEdit = std::variant<DeviceResource, ChannelResource, GroupResource, GroupMembers, Removal,
                               KeepOnly, DeviceHeard>;
using ModelEdits = std::vector<ModelEdit>;

/// How much there is.
struct ModelCounts
{
    std::size_t devices = 0; ///< storage servers included
    std::size_t devicesOnline = 0;
    std::size_t channels = 0;
    std::size_t channelsOnline = 0; ///< recording ones included
    std::size_t groups = 0;
};

} // namespace UiDataController
