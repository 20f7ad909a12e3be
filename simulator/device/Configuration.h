#pragma once

#include "DeviceStructures/Commands.h"
#include "simulator/device/Channels.h"
#include "simulator/device/Parameters.h"
#include "simulator/device/Refused.h"
#include "simulator/device/Users.h"

namespace simulator {

/// What the commands of one device get and set. Most are structures that are kept as they come, if they are
/// within their ranges; the others are alive: clock, disks, outputs, restart and so on. Any thread.
class CConfiguration
{
public:
    /// Asked for by a set of the command to restart: after so many seconds.
    using Restart = std::function<void(std::chrono::seconds delay)>;

    CConfiguration(const DevicePlan& plan, CChannels& channels, CUsers& users, CParameters& parameters,
                   Restart restart);

    /// group: of a batch's item, else 0.
    Outcome Get(const devices::ConfigCommand& command, unsigned channel, unsigned group = 0) const;
    /// None: it is done and kept.
    std::optional<Refused> Set(const devices::ConfigCommand& command, unsigned channel,
                               const std::string& octets, unsigned group = 0);

    QxNetDeviceInfo Info() const;
    /// How often the wiper of a channel moved once.
    std::uint32_t WiperMoves(unsigned channel) const;

private:
    struct Reader;
    struct Action;
    static const Reader kReaders[];
    static const Action kActions[];

    bool HasChannel(devices::Scope scope, unsigned channel) const;
    void MakeDefaults();
    std::optional<Refused> Keep(const ParameterKey& key, Octets octets);

    QxNetClock Clock() const;
    QxNetDiskList Disks() const;
    QxNetAlarmStates AlarmStates() const;
    QxNetAudioCompress Audio() const;

    std::optional<Refused> SetClock(const QxNetClock& clock);
    std::optional<Refused> SetUsers(const QxNetUserList& users);
    std::optional<Refused> SetPassword(const QxNetUserPassword& password);
    std::optional<Refused> MoveWiper(unsigned channel, QxNetWiper wiper);
    std::optional<Refused> FormatDisks(const QxNetDiskFormat& format);
    std::optional<Refused> Reset(const QxNetReset& reset);

    const DevicePlan& m_plan;
    CChannels& m_channels;
    CUsers& m_users;
    CParameters& m_parameters;
    const Restart m_restart;
    std::unordered_map<unsigned, Octets> m_defaults; ///< by command
};

} // namespace simulator
