#include "framework/core/Resources.h"

#include "Base/GuidUtil.h"
#include "Base/Log.h"
#include "framework/core/DeviceEntry.h"
#include "framework/core/ResourceFile.h"
#include "framework/core/Stored.h"

#include <algorithm>

namespace framework {

namespace {

using protocol::DeviceResponseData;

constexpr std::size_t kMostDevices = 256;

template<typename T>
std::vector<T> Of(const std::vector<T>& all, const std::string& deviceGuid)
{
    std::vector<T> found;
    for (const T& thing : all)
        if (deviceGuid.empty() || thing.deviceGuid == deviceGuid)
            found.push_back(thing);
    return found;
}

std::string Quoted(const std::string& name)
{
    return "\"" + name + "\"";
}

bool HasAddress(const ResourceFile& file, const DeviceEntry& entry, const std::string& exceptGuid)
{
    return std::any_of(file.devices.begin(), file.devices.end(), [&](const DeviceResponseData& device) {
        return device.guid != exceptGuid && device.address == entry.address && device.port == entry.port;
    });
}

} // namespace

struct CResources::State
{
    Base::Encrypt::AESParams seal;
    OnChange onChange;
    TStored<ResourceFile> stored;

    /// As TStored::Change for work that notes its changes, which are told then.
    template<typename Work>
    bool Change(Work work)
    {
        ResourceChanges changes;
        const auto tell = [&] {
            for (const ResourceChange& change : changes)
                onChange(change);
        };
        return stored.Change([&](ResourceFile& file) { return work(file, changes); }, tell);
    }

    /// The same for what a person entered: one line says what is wrong.
    template<typename Work>
    bool Change(std::string& error, Work work)
    {
        error.clear();
        const bool done = Change(std::move(work));
        if (!done && error.empty())
            error = "The devices cannot be saved.";
        return done;
    }

    std::string Opened(const std::string& sealed) const
    {
        if (sealed.empty())
            return {};
        const auto plain = Base::Encrypt::Open(seal, sealed);
        if (!plain)
            BASE_ERROR("The credentials of a device do not open under the present data-encryption setup.");
        return plain.value_or(std::string());
    }

    std::string Sealed(const std::string& plain) const
    {
        return plain.empty() ? plain : Base::Encrypt::Seal(seal, plain);
    }

    void Take(const DeviceEntry& entry, DeviceResponseData& device) const
    {
        device.name = entry.name;
        device.address = entry.address;
        device.port = static_cast<std::uint16_t>(entry.port);
        device.userName = Sealed(entry.userName);
        device.password = Sealed(entry.password);
        device.useTls = entry.useTls;
    }
};

CResources::CResources(std::string path, const Base::Encrypt::AESParams& seal, OnChange onChange)
    : m_state(new State{seal, std::move(onChange), {std::move(path), [] { return ResourceFile(); }, {}}})
{
    (void)m_state->stored.Change([](ResourceFile& file) { return SetAllOffline(file); });
}

CResources::~CResources() = default;

const std::string& CResources::LoadProblem() const
{
    return m_state->stored.LoadProblem();
}

std::vector<DeviceResponseData> CResources::Devices() const
{
    auto devices = m_state->stored.With([](const ResourceFile& file) { return file.devices; });
    for (DeviceResponseData& device : devices) {
        device.userName = m_state->Opened(device.userName);
        device.password = m_state->Opened(device.password);
    }
    return devices;
}

std::vector<protocol::DeviceChannelInfo> CResources::Channels(const std::string& deviceGuid) const
{
    return m_state->stored.With([&](const ResourceFile& file) { return Of(file.channels, deviceGuid); });
}

std::vector<protocol::AlarmInputInfo> CResources::AlarmInputs(const std::string& deviceGuid) const
{
    return m_state->stored.With([&](const ResourceFile& file) { return Of(file.inputs, deviceGuid); });
}

std::vector<protocol::AlarmOutputInfo> CResources::AlarmOutputs(const std::string& deviceGuid) const
{
    return m_state->stored.With([&](const ResourceFile& file) { return Of(file.outputs, deviceGuid); });
}

std::vector<protocol::GroupInfo> CResources::Groups() const
{
    return m_state->stored.With([](const ResourceFile& file) {
        return std::vector<protocol::GroupInfo>(file.groups.begin(), file.groups.end());
    });
}

bool CResources::Find(const std::string& deviceGuid, bool& online) const
{
    return m_state->stored.With([&](const ResourceFile& file) {
        const DeviceResponseData* device = FindDevice(file, deviceGuid);
        online = device && device->online;
        return device != nullptr;
    });
}

std::string CResources::Add(const DeviceEntry& entry, std::string& error)
{
    error = ProblemOf(entry);
    if (!error.empty())
        return {};
    DeviceResponseData device;
    device.guid = Base::GuidUtil::CreateGuid();
    m_state->Take(entry, device);
    const auto add = [&](ResourceFile& file, ResourceChanges& changes) {
        if (file.devices.size() >= kMostDevices)
            error = "There are too many devices.";
        else if (HasAddress(file, entry, {}))
            error = "The address and port belong to another device.";
        if (!error.empty())
            return false;
        file.devices.push_back(device);
        changes.push_back(ChangeOf("Add", device, "Device " + Quoted(device.name) + " was added."));
        return true;
    };
    return m_state->Change(error, add) ? device.guid : std::string();
}

bool CResources::Edit(const std::string& guid, const DeviceEntry& entry, std::string& error)
{
    error = ProblemOf(entry);
    if (!error.empty())
        return false;
    const auto edit = [&](ResourceFile& file, ResourceChanges& changes) {
        DeviceResponseData* device = FindDevice(file, guid);
        if (!device)
            error = "There is no such device.";
        else if (HasAddress(file, entry, guid))
            error = "The address and port belong to another device.";
        if (!error.empty())
            return false;
        m_state->Take(entry, *device);
        changes.push_back(ChangeOf("Change", *device, "Device " + Quoted(device->name) + " was changed."));
        NameGroup(file, *device, changes);
        return true;
    };
    return m_state->Change(error, edit);
}

bool CResources::Remove(const std::string& guid)
{
    return m_state->Change([&](ResourceFile& file, ResourceChanges& changes) {
        const DeviceResponseData* found = FindDevice(file, guid);
        if (!found)
            return false;
        const DeviceResponseData device = *found;
        FitParts(file, device, {}, changes);
        changes.push_back(ChangeOf("Remove", device, "Device " + Quoted(device.name) + " was removed."));
        file.devices.erase(file.devices.begin() + (found - file.devices.data()));
        return true;
    });
}

bool CResources::EntryOf(const std::string& guid, DeviceEntry& entry) const
{
    return m_state->stored.With([&](const ResourceFile& file) {
        const DeviceResponseData* device = FindDevice(file, guid);
        if (!device)
            return false;
        entry = {device->name,
                 device->address,
                 device->port,
                 m_state->Opened(device->userName),
                 m_state->Opened(device->password),
                 device->useTls};
        return true;
    });
}

void CResources::Hear(const devices::DeviceStatus& status)
{
    (void)m_state->Change([&](ResourceFile& file, ResourceChanges& changes) {
        DeviceResponseData* device = FindDevice(file, status.id);
        return device ? TakeStatus(file, *device, status, changes) : Changed::Nothing;
    });
}

bool CResources::SwitchOutput(const std::string& deviceGuid, const std::string& outputGuid, bool active)
{
    return m_state->Change([&](ResourceFile& file, ResourceChanges& changes) {
        const DeviceResponseData* device = FindDevice(file, deviceGuid);
        const auto output =
            std::find_if(file.outputs.begin(), file.outputs.end(), [&](const auto& candidate) {
                return candidate.deviceGuid == deviceGuid && candidate.guid == outputGuid;
            });
        if (!device || output == file.outputs.end())
            return false;
        output->active = active;
        changes.push_back(ChangeOf("Change", *output,
                                   "Alarm output " + Quoted(output->name) + " of " + Quoted(device->name) +
                                       " was switched " + (active ? "on." : "off.")));
        return true;
    });
}

std::vector<protocol::GroupInfo> CResources::ModifyGroups(const protocol::ModifyGroupCondition& condition,
                                                          bool* isSaved)
{
    std::vector<protocol::GroupInfo> modified;
    const auto modify = [&](ResourceFile& file, ResourceChanges& changes) {
        for (StoredGroup& group : file.groups) {
            if (condition.allSmartRule < 0 || group.smartRule == (condition.allSmartRule != 0))
                continue;
            group.smartRule = condition.allSmartRule != 0;
            changes.push_back(ChangeOf("Change", group));
            modified.push_back(group);
        }
        return !modified.empty();
    };
    const bool isChanged = m_state->Change(modify);
    if (isSaved)
        *isSaved = isChanged || modified.empty();
    if (!isChanged)
        modified.clear();
    return modified;
}

} // namespace framework
