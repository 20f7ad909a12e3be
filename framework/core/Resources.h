#pragma once

#include "Base/Encrypt.h"
#include "Base/Noncopyable.h"
#include "DeviceSessions/DeviceSessions.h"
#include "Protocol/JSONStruct/HTTP/AlarmJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/DeviceJSONStruct.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace framework {

/// The kinds of device, as "typeCode" has them. A device may also say another maker's number.
enum DeviceType : int { UnknownDevice = 0, Encoder = 1, Recorder = 2, StorageServer = 128 };

/// A device as the user enters it. What else it is, the device itself tells.
struct DeviceEntry
{
    std::string name;    ///< 1 to 64 characters
    std::string address; ///< host name or IP address
    int port = 8000;     ///< 1 to 65535
    std::string userName;
    std::string password;
    bool useTls = false;
};

/// One change, as components are told it.
struct ResourceChange
{
    std::string type; ///< of the notification, for example "deviceAdd"
    std::string guid;
    std::string data;     ///< the thing as JSON, without credentials; empty when it is gone
    std::string text;     ///< for the operation log; empty for what merely follows from another change
    bool isOfUser = true; ///< somebody asked for it; false: the device told
};

/// Devices with their channels, alarm inputs and outputs, and the groups of channels. Kept on disk, passwords
/// sealed, but for who is online, which nobody is at first. Any thread.
class CResources : Base::CNoncopyable
{
public:
    /// Called for each change, in order.
    using OnChange = std::function<void(const ResourceChange& change)>;

    /// path: of the file; its folder exists. seal: for the passwords.
    CResources(std::string path, const Base::Encrypt::AESParams& seal, OnChange onChange);
    ~CResources();

    /// Why the file of an earlier start was set aside, in one sentence; empty when it was not.
    const std::string& LoadProblem() const;

    /// Devices with their credentials in clear text, for use in this process only.
    std::vector<protocol::DeviceResponseData> Devices() const;
    /// Channels of all devices when deviceGuid is empty.
    std::vector<protocol::DeviceChannelInfo> Channels(const std::string& deviceGuid) const;
    std::vector<protocol::AlarmInputInfo> AlarmInputs(const std::string& deviceGuid) const;
    /// Of all devices when deviceGuid is empty.
    std::vector<protocol::AlarmOutputInfo> AlarmOutputs(const std::string& deviceGuid) const;

    std::vector<protocol::GroupInfo> Groups() const;

    /// Whether the device is known, and whether it is online.
    [[nodiscard]] bool Find(const std::string& deviceGuid, bool& online) const;

    /// The new device's guid, or "" with the reason in error (an English sentence naming the field). It is
    /// offline and has no channels until it is heard of.
    [[nodiscard]] std::string Add(const DeviceEntry& entry, std::string& error);
    /// Changes what was entered.
    [[nodiscard]] bool Edit(const std::string& guid, const DeviceEntry& entry, std::string& error);
    [[nodiscard]] bool Remove(const std::string& guid);
    /// The entry of a device, for editing it.
    [[nodiscard]] bool EntryOf(const std::string& guid, DeviceEntry& entry) const;

    /// Takes what the device tells: whether it is online, its kind, names and states of its channels, its
    /// inputs and outputs. A group of its name holds the channels. Nothing for a device that is not known.
    void Hear(const devices::DeviceStatus& status);
    [[nodiscard]] bool SwitchOutput(const std::string& deviceGuid, const std::string& outputGuid,
                                    bool active);
    /// Applies the condition to all groups; the groups that it changed. isSaved, when given, tells whether
    /// there was nothing to change or the change could be written.
    std::vector<protocol::GroupInfo> ModifyGroups(const protocol::ModifyGroupCondition& condition,
                                                  bool* isSaved = nullptr);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace framework
