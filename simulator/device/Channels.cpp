#include "simulator/device/Channels.h"

#include "Base/StringUtil.h"

#include <algorithm>
#include <cstring>

namespace simulator {

QxNetChannelPage CChannels::Page(unsigned first) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    QxNetChannelPage page{};
    page.size = sizeof page;
    page.total = Count();
    page.changes = m_changes;
    const unsigned start = std::min(first - 1, page.total);
    page.count = std::min<unsigned>(QXNET_CHANNELS_PER_PAGE, page.total - start);
    for (unsigned i = 0; i < page.count; ++i) {
        const ChannelPlan& channel = m_channels[start + i];
        page.channels[i].channel = start + i + 1;
        page.channels[i].state = channel.state;
        std::memcpy(page.channels[i].name, channel.name.data(), channel.name.size());
    }
    return page;
}

void CChannels::Set(unsigned channel, const std::optional<std::string>& name,
                    std::optional<std::uint32_t> state)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (channel == 0 || channel > m_channels.size())
        return;
    ChannelPlan& plan = m_channels[channel - 1];
    const ChannelPlan before = plan;
    if (name)
        plan.name = Base::StringUtil::CutUtf8(*name, QXNET_NAME_LENGTH - 1);
    if (state)
        plan.state = *state;
    if (plan.name != before.name || plan.state != before.state)
        ++m_changes;
}

} // namespace simulator
