#pragma once

#include "simulator/device/Channels.h"
#include "simulator/device/Commands.h"
#include "simulator/device/Parameters.h"
#include "simulator/device/Refused.h"

namespace simulator {

/// What the commands of one device get and set. Any thread.
class CConfiguration
{
public:
    CConfiguration(const DevicePlan& plan, CChannels& channels, CParameters& parameters);

    Outcome Get(unsigned command, unsigned channel) const;
    /// None: it is done and kept.
    std::optional<Refused> Set(unsigned command, unsigned channel, const std::string& octets);

    QxNetDeviceInfo Info() const;

private:
    std::optional<Refused> CheckChannel(const CommandRow& row, unsigned channel) const;

    const DevicePlan& m_plan;
    CChannels& m_channels;
    CParameters& m_parameters;
};

} // namespace simulator
