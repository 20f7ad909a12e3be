#include "simulator/device/Configuration.h"

namespace simulator {

namespace {

template<std::size_t Size>
void PutText(char (&field)[Size], const std::string& text)
{
    std::memcpy(field, text.data(), std::min(text.size(), Size - 1));
}

Octets DefaultOf(const CommandRow& row)
{
    std::string octets(row.size, '\0');
    const auto size = static_cast<std::uint32_t>(row.size);
    std::memcpy(octets.data(), &size, sizeof size);
    return std::make_shared<const std::string>(std::move(octets));
}

} // namespace

CConfiguration::CConfiguration(const DevicePlan& plan, CChannels& channels, CParameters& parameters)
    : m_plan(plan), m_channels(channels), m_parameters(parameters)
{}

std::optional<Refused> CConfiguration::CheckChannel(const CommandRow& row, unsigned channel) const
{
    const bool isThere =
        row.scope == CommandScope::Device ? channel == 0 : channel >= 1 && channel <= m_channels.Count();
    return isThere ? std::nullopt : std::optional<Refused>(kUnknownChannel);
}

Outcome CConfiguration::Get(unsigned command, unsigned channel) const
{
    if (command == QXNET_GET_CHANNEL_PAGE)
        return channel == 0 ? Outcome(kUnknownChannel) : OctetsOf(m_channels.Page(channel));
    const CommandRow* row = FindGet(command);
    if (!row)
        return kUnknownCommand;
    if (const auto refused = CheckChannel(*row, channel))
        return *refused;
    if (command == QXNET_GET_DEVICE_INFO)
        return OctetsOf(Info());
    const Octets kept = m_parameters.Find({command, channel});
    return kept ? kept : DefaultOf(*row);
}

std::optional<Refused> CConfiguration::Set(unsigned command, unsigned channel, const std::string& octets)
{
    const CommandRow* row = FindSet(command);
    if (!row)
        return kUnknownCommand;
    if (const auto refused = CheckChannel(*row, channel))
        return refused;
    if (octets.size() != row->size || StructureOf<std::uint32_t>(octets) != row->size)
        return kBadRequest;
    if (!m_parameters.Set({row->get, channel}, std::make_shared<const std::string>(octets)))
        return kCannotKeep;
    return std::nullopt;
}

QxNetDeviceInfo CConfiguration::Info() const
{
    QxNetDeviceInfo info{};
    info.size = sizeof info;
    info.typeCode = m_plan.typeCode;
    info.subType = m_plan.subType;
    info.channels = m_channels.Count();
    info.alarmInputs = m_plan.alarmInputs;
    info.alarmOutputs = m_plan.alarmOutputs;
    info.voiceChannels = m_plan.voiceChannels;
    info.disks = m_plan.disks;
    PutText(info.name, m_plan.name);
    PutText(info.serial, m_plan.serial);
    PutText(info.model, std::string("Vantor simulated ") + KindName(m_plan.kind));
    PutText(info.firmware, "1.0.0");
    return info;
}

} // namespace simulator
