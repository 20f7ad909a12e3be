#include "simulator/device/Configuration.h"

#include "DeviceStructures/Values.h"
#include "simulator/device/Disks.h"

#include <algorithm>

namespace simulator {

namespace {

Octets FreshOctets(const devices::Layout& layout)
{
    const devices::Octets bytes = devices::Defaults(layout);
    return std::make_shared<const std::string>(bytes.begin(), bytes.end());
}

/// Items of a batch are kept by channel and group in one number.
ParameterKey KeyOf(const devices::ConfigCommand& command, unsigned channel, unsigned group)
{
    return {command.get, channel + (group << 16)};
}

} // namespace

/// A command whose answer is made at the time it is asked for.
struct CConfiguration::Reader
{
    unsigned command;
    Octets (*read)(const CConfiguration& device, unsigned channel);
};

/// A command whose set does more than to be kept, or is kept otherwise.
struct CConfiguration::Action
{
    unsigned command;
    std::optional<Refused> (*act)(CConfiguration& device, unsigned channel, const std::string& octets);
};

const CConfiguration::Reader CConfiguration::kReaders[] = {
    {QXNET_GET_DEVICE_INFO, [](const CConfiguration& device, unsigned) { return OctetsOf(device.Info()); }},
    {QXNET_GET_CHANNEL_PAGE, [](const CConfiguration& device,
                                unsigned channel) { return OctetsOf(device.m_channels.Page(channel)); }},
    {QXNET_GET_AUDIO_COMPRESS,
     [](const CConfiguration& device, unsigned) { return OctetsOf(device.Audio()); }},
    {QXNET_GET_DISK_QUOTA,
     [](const CConfiguration& device, unsigned) {
         return OctetsOf(QuotaOf(device.Disks(), device.m_channels.Count()));
     }},
    {QXNET_GET_DISKS, [](const CConfiguration& device, unsigned) { return OctetsOf(device.Disks()); }},
    {QXNET_GET_USERS, [](const CConfiguration& device, unsigned) { return OctetsOf(device.m_users.List()); }},
    {QXNET_GET_CLOCK, [](const CConfiguration& device, unsigned) { return OctetsOf(device.Clock()); }},
    {QXNET_GET_ALARM_STATES,
     [](const CConfiguration& device, unsigned) { return OctetsOf(device.AlarmStates()); }},
};

const CConfiguration::Action CConfiguration::kActions[] = {
    {QXNET_SET_CLOCK,
     [](CConfiguration& device, unsigned, const std::string& octets) {
         return device.SetClock(StructureOf<QxNetClock>(octets));
     }},
    {QXNET_SET_USERS,
     [](CConfiguration& device, unsigned, const std::string& octets) {
         return device.SetUsers(StructureOf<QxNetUserList>(octets));
     }},
    {QXNET_SET_USER_PASSWORD,
     [](CConfiguration& device, unsigned, const std::string& octets) {
         return device.SetPassword(StructureOf<QxNetUserPassword>(octets));
     }},
    {QXNET_SET_WIPER,
     [](CConfiguration& device, unsigned channel, const std::string& octets) {
         return device.MoveWiper(channel, StructureOf<QxNetWiper>(octets));
     }},
    {QXNET_FORMAT_DISK,
     [](CConfiguration& device, unsigned, const std::string& octets) {
         return device.FormatDisks(StructureOf<QxNetDiskFormat>(octets));
     }},
    {QXNET_SWITCH_ALARM_OUTPUT,
     [](CConfiguration& device, unsigned channel, const std::string& octets) {
         return device.Keep({QXNET_SWITCH_ALARM_OUTPUT, channel},
                            std::make_shared<const std::string>(octets));
     }},
    {QXNET_REBOOT,
     [](CConfiguration& device, unsigned, const std::string& octets) {
         device.m_restart(std::chrono::seconds(StructureOf<QxNetReboot>(octets).delay));
         return std::optional<Refused>();
     }},
    {QXNET_RESET, [](CConfiguration& device, unsigned,
                     const std::string& octets) { return device.Reset(StructureOf<QxNetReset>(octets)); }},
};

CConfiguration::CConfiguration(const DevicePlan& plan, CChannels& channels, CUsers& users,
                               CParameters& parameters, Restart restart)
    : m_plan(plan), m_channels(channels), m_users(users), m_parameters(parameters),
      m_restart(std::move(restart))
{
    MakeDefaults();
}

void CConfiguration::MakeDefaults()
{
    for (const devices::ConfigCommand& command : devices::ConfigCommands())
        if (command.get != 0)
            m_defaults[command.get] = FreshOctets(command.layout());
}

bool CConfiguration::HasChannel(devices::Scope scope, unsigned channel) const
{
    switch (scope) {
    case devices::Scope::Device:
        return channel == 0;
    case devices::Scope::AlarmInput:
        return channel >= 1 && channel <= m_plan.alarmInputs;
    case devices::Scope::AlarmOutput:
        return channel >= 1 && channel <= m_plan.alarmOutputs;
    default:
        return channel >= 1 && channel <= m_channels.Count();
    }
}

Outcome CConfiguration::Get(const devices::ConfigCommand& command, unsigned channel, unsigned group) const
{
    // A page behind the last channel is an empty one, so that a device without cameras has one too.
    const bool isPage = command.get == QXNET_GET_CHANNEL_PAGE && channel >= 1;
    if (!isPage && !HasChannel(command.scope, channel))
        return kUnknownChannel;
    for (const Reader& reader : kReaders)
        if (reader.command == command.get)
            return reader.read(*this, channel);
    const Octets kept = m_parameters.Find(KeyOf(command, channel, group));
    return kept && kept->size() == command.layout().size ? kept : m_defaults.at(command.get);
}

std::optional<Refused> CConfiguration::Set(const devices::ConfigCommand& command, unsigned channel,
                                           const std::string& octets, unsigned group)
{
    if (!HasChannel(command.scope, channel))
        return kUnknownChannel;
    if (devices::Check(command.layout(), octets.data(), octets.size()))
        return kBadRequest;
    for (const Action& action : kActions)
        if (action.command == command.set)
            return action.act(*this, channel, octets);
    return Keep(KeyOf(command, channel, group), std::make_shared<const std::string>(octets));
}

std::optional<Refused> CConfiguration::Keep(const ParameterKey& key, Octets octets)
{
    return m_parameters.Set(key, std::move(octets)) ? std::nullopt : std::optional<Refused>(kCannotKeep);
}

} // namespace simulator
