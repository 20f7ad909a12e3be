#pragma once

#include <QMetaType>
#include <QString>

#include <cstdint>
#include <vector>

/// What the resource tree shows: devices, channels, storage servers and groups as plain values.
namespace UiDataController {

/// The identifier of an element, as the framework issues it.
using QID = QString;

/// The numbers of channels and storage servers are known to others; the rest are this library's.
enum class ElementType : int {
    Channel = 1,
    Device = 2, ///< an encoder or a recorder
    Group = 3,
    StorageServer = 128,
};

/// The numbers are those of the device SDK's channel states.
enum class ElementState : int {
    Offline = 0,
    Online = 1,
    Recording = 2,
    NotSupported = 4,
    Connecting = 100, ///< nobody knows yet
};

struct ElementInfo
{
    QID id;
    ElementType type = ElementType::Channel;
    QID deviceId; ///< of a channel
    QID groupId;  ///< of a channel: its group; of a group: the one above it, empty at the top
    QString name;
    ElementState state = ElementState::Connecting;
    QString problem;  ///< why it is offline, for the user; may be empty
    int typeCode = 0; ///< of a device or storage server, and of a channel's device
    int subType = 0;
    int number = 0; ///< of a channel, at its device, from 1; of others it grows with their addition

    bool operator==(const ElementInfo& other) const;
    bool operator!=(const ElementInfo& other) const { return !(*this == other); }
};

struct ElementChange
{
    enum class Kind {
        Add,    ///< at the end of its like; a channel at the place of its number
        Change, ///< anything but id and type
        Remove, ///< what stands below a removed device or group is removed by changes of its own, before it;
                ///< but the channels of a group stay, without a group
        Reset,  ///< everything may be different: take a new snapshot; element is empty
    };
    Kind kind = Kind::Change;
    ElementInfo element; ///< as it is now; of a removed one as it was
};
using ElementChanges = std::vector<ElementChange>;

/// All elements at one moment. Devices, storage servers and groups in the order of their addition (groups
/// above before those below), channels behind, by device and number.
struct ElementSnapshot
{
    std::uint64_t version = 0;
    std::vector<ElementInfo> elements;
};

class IElementObserver
{
public:
    virtual ~IElementObserver() = default;

    /// Changes in order, each set made at one moment; version is that of the model after them, and is
    /// greater by one than that of the set before. Called on the source's notification loop.
    virtual void OnElements(std::uint64_t version, const ElementChanges& changes) = 0;
};

/// Where elements come from: the component's logic model, or the framework's list of devices. Any thread.
class IElementSource
{
public:
    virtual ~IElementSource() = default;

    virtual ElementSnapshot Snapshot() const = 0;

    /// Not owned. After RemoveObserver returned no call is under way, unless it was made from within one.
    virtual void AddObserver(IElementObserver& observer) = 0;
    virtual void RemoveObserver(IElementObserver& observer) = 0;
};

} // namespace UiDataController

Q_DECLARE_METATYPE(UiDataController::ElementChanges)
