#pragma once

#include "QxNetSDK/Structures.h"
#include "simulator/device/DevicePlan.h"

#include <mutex>

namespace simulator {

/// Names and states of a device's channels. Any thread.
class CChannels
{
public:
    explicit CChannels(std::vector<ChannelPlan> channels) : m_channels(std::move(channels)) {}

    unsigned Count() const { return static_cast<unsigned>(m_channels.size()); }

    /// The page that starts with the channel, from 1.
    QxNetChannelPage Page(unsigned first) const;

    /// Changes what is given; a channel that there is not is left out.
    void Set(unsigned channel, const std::optional<std::string>& name, std::optional<std::uint32_t> state);

private:
    mutable std::mutex m_mutex;
    std::vector<ChannelPlan> m_channels;
    std::uint32_t m_changes = 1;
};

} // namespace simulator
