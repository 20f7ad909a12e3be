#include "simulator/device/Clock.h"
#include "simulator/device/Configuration.h"
#include "simulator/device/Disks.h"

#include <algorithm>
#include <ctime>

/// The commands of a device that are alive.
namespace simulator {

namespace {

constexpr std::size_t kShortestPassword = 8;
constexpr ParameterKey kClockKey{QXNET_GET_CLOCK, 0};

template<std::size_t Size>
void PutText(char (&field)[Size], const std::string& text)
{
    std::memcpy(field, text.data(), std::min(text.size(), Size - 1));
}

std::int64_t Now()
{
    return static_cast<std::int64_t>(std::time(nullptr));
}

template<class Value>
Value ValueOf(const Octets& kept, Value otherwise)
{
    return kept && kept->size() == sizeof(Value) ? StructureOf<Value>(*kept) : otherwise;
}

bool IsOfNetworkOrUsers(unsigned command)
{
    return command == QXNET_GET_NETWORK || command == QXNET_GET_USERS || command == QXNET_SET_USER_PASSWORD;
}

} // namespace

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
    PutText(info.model, std::string("Simulated ") + KindName(m_plan.kind));
    PutText(info.firmware, "1.0.0");
    return info;
}

QxNetAudioCompress CConfiguration::Audio() const
{
    QxNetAudioCompress audio{};
    audio.encoding = static_cast<std::uint8_t>(m_plan.voice.encoding);
    audio.sampleRate = static_cast<std::uint8_t>(m_plan.voice.rate);
    audio.bitRate = 64;
    return audio;
}

QxNetClock CConfiguration::Clock() const
{
    ClockSetting setting{StructureOf<QxNetClock>(*m_defaults.at(QXNET_GET_CLOCK)), 0};
    setting.asSet.timeServer = 0;
    return ClockAt(ValueOf(m_parameters.Find(kClockKey), setting), Now());
}

std::optional<Refused> CConfiguration::SetClock(const QxNetClock& clock)
{
    const auto setting = SettingOf(clock, Now());
    return setting ? Keep(kClockKey, OctetsOf(*setting)) : std::optional<Refused>(kBadRequest);
}

QxNetDiskList CConfiguration::Disks() const
{
    const auto formatted = [this](unsigned disk) {
        return ValueOf<std::int64_t>(m_parameters.Find({QXNET_FORMAT_DISK, disk}), 0);
    };
    return DisksAt(m_plan.disks, formatted, Now());
}

std::optional<Refused> CConfiguration::FormatDisks(const QxNetDiskFormat& format)
{
    if (format.disk > m_plan.disks)
        return kBadRequest;
    const unsigned first = format.disk == 0 ? 1 : format.disk;
    const unsigned last = format.disk == 0 ? m_plan.disks : format.disk;
    for (unsigned disk = first; disk <= last; ++disk)
        if (const auto refused = Keep({QXNET_FORMAT_DISK, disk}, OctetsOf(Now())))
            return refused;
    return std::nullopt;
}

QxNetAlarmStates CConfiguration::AlarmStates() const
{
    QxNetAlarmStates states{};
    states.size = sizeof states;
    states.inputCount = static_cast<std::uint16_t>(m_plan.alarmInputs);
    states.outputCount = static_cast<std::uint16_t>(m_plan.alarmOutputs);
    for (unsigned output = 1; output <= m_plan.alarmOutputs; ++output)
        if (ValueOf(m_parameters.Find({QXNET_SWITCH_ALARM_OUTPUT, output}), QxNetOutputSwitch{}).on)
            states.outputs[(output - 1) / 8] |= static_cast<std::uint8_t>(1U << ((output - 1) % 8));
    return states;
}

std::optional<Refused> CConfiguration::SetUsers(const QxNetUserList& users)
{
    if (!m_users.Takes(users))
        return kBadRequest;
    return m_users.Set(users) ? std::nullopt : std::optional<Refused>(kCannotKeep);
}

std::optional<Refused> CConfiguration::SetPassword(const QxNetUserPassword& password)
{
    if (std::strlen(password.password) < kShortestPassword || !m_users.Knows(password.name))
        return kBadRequest;
    return m_users.SetPassword(password.name, password.password) ? std::nullopt
                                                                 : std::optional<Refused>(kCannotKeep);
}

std::uint32_t CConfiguration::WiperMoves(unsigned channel) const
{
    return ValueOf<std::uint32_t>(m_parameters.Find({QXNET_SET_WIPER, channel}), 0);
}

std::optional<Refused> CConfiguration::MoveWiper(unsigned channel, QxNetWiper wiper)
{
    if (wiper.mode == QXNET_WIPER_ONCE) {
        wiper.mode = QXNET_WIPER_OFF;
        if (const auto refused = Keep({QXNET_SET_WIPER, channel}, OctetsOf(WiperMoves(channel) + 1)))
            return refused;
    }
    return Keep({QXNET_GET_WIPER, channel}, OctetsOf(wiper));
}

std::optional<Refused> CConfiguration::Reset(const QxNetReset& reset)
{
    const bool everything = reset.scope == QXNET_RESET_EVERYTHING;
    const bool isDone = m_parameters.Forget(
        [everything](const ParameterKey& key) { return everything || !IsOfNetworkOrUsers(key.command); });
    return isDone ? std::nullopt : std::optional<Refused>(kCannotKeep);
}

} // namespace simulator
