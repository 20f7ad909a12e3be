#pragma once

#include "simulator/device/DevicePlan.h"
#include "simulator/device/Refused.h"

#include <functional>
#include <mutex>
#include <set>

namespace simulator {

/// The voice channels of a device. What is said through one is kept as
/// "<folder>/voice-<device>-<channel>.wav", the last one only. Any thread.
class CVoiceChannels
{
public:
    /// folder: that of the device, ending in "/"; the files stand in the one above. Empty: they are not kept.
    CVoiceChannels(const DevicePlan& plan, const std::string& folder);

    /// Takes the channel until the upload is gone; onVoice is called whenever something was said.
    std::variant<HttpAnswer, std::unique_ptr<IUpload>> Begin(unsigned channel,
                                                             std::optional<unsigned> encoding,
                                                             std::optional<unsigned> rate,
                                                             std::function<void()> onVoice);

private:
    /// Shared with uploads, which may outlive the object.
    struct Busy
    {
        std::mutex mutex;
        std::set<unsigned> channels;
    };
    class CUpload;

    const DevicePlan& m_plan;
    const std::string m_folder;
    std::shared_ptr<Busy> m_busy = std::make_shared<Busy>();
};

} // namespace simulator
