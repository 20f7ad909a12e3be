#include "QxNetSDK/library/voice/Capture.h"

#include "QxNetSDK/library/voice/VoicePlugin.h"

#include <algorithm>
#include <system_error>

namespace sdk {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kReadWait{100};
/// A sound server that has died says nothing.
constexpr milliseconds kMostQuiet{2000};
/// The first sound of one that slept may take 2 seconds.
constexpr milliseconds kMostQuietAtFirst{4000};
constexpr milliseconds kFirstPause{500};
constexpr milliseconds kLongestPause{10000};

/// The program's own source, asked in the time of sound.
class CSourceInput : public IVoiceInput
{
public:
    explicit CSourceInput(const VoiceSource& source) : m_source(source) {}

    bool Read(VoiceBlock& block, milliseconds) override
    {
        // What was missed for long, as when the computer slept, is not made up for.
        m_next = std::max(m_next + kVoiceBlockTime, Clock::now() - kMostQuiet);
        std::this_thread::sleep_until(m_next);
        if (m_source.function(block.data(), static_cast<std::uint32_t>(block.size()), m_source.user) == 0)
            block.fill(0);
        return true;
    }

private:
    const VoiceSource m_source;
    Clock::time_point m_next = Clock::now();
};

} // namespace

Failure CCapture::Start(const VoiceSource& source, Take take)
{
    // From within take: what it is called by still runs.
    if (m_id.load() == std::this_thread::get_id())
        return {QXNET_ERROR_AUDIO_STARTED};
    const std::lock_guard only(m_startOrStop);
    if (!m_isStopping)
        return {QXNET_ERROR_AUDIO_STARTED};
    if (m_thread.joinable())
        m_thread.join();
    m_isStopping = false;
    m_isOpened = false;
    try {
        m_thread = std::thread([this, source, take = std::move(take)] { Run(source, take); });
    } catch (const std::system_error&) {
        m_isStopping = true;
        return {QXNET_ERROR_MEMORY};
    }
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isOpened; });
    m_isStopping = m_isStopping || m_failure;
    return m_failure;
}

void CCapture::Stop()
{
    const auto tell = [this] {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
        m_changed.notify_all();
    };
    if (m_id.load() == std::this_thread::get_id())
        return tell();
    const std::lock_guard only(m_startOrStop);
    tell();
    if (m_thread.joinable())
        m_thread.join();
}

void CCapture::Run(const VoiceSource& source, const Take& take)
{
    m_id = std::this_thread::get_id();
    std::unique_ptr<IVoiceInput> input = Open(source);
    const auto error = static_cast<std::uint32_t>(m_error);
    Report(input ? Failure{} : Failure{QXNET_ERROR_NO_AUDIO_INPUT, error});
    if (!input) {
        m_id = std::thread::id();
        return;
    }
    milliseconds pause = kFirstPause;
    while (!m_isStopping) {
        if (input) {
            Listen(*input, take);
            input.reset();
            pause = kFirstPause;
            continue;
        }
        Pause(pause);
        pause = std::min(pause * 2, kLongestPause);
        if (!m_isStopping)
            input = Open(source);
    }
    m_id = std::thread::id();
}

std::unique_ptr<IVoiceInput> CCapture::Open(const VoiceSource& source)
{
    if (source.function)
        return std::make_unique<CSourceInput>(source);
    try {
        return plugin::OpenInput(m_error);
    } catch (const std::exception&) {
        return nullptr;
    }
}

/// Until it is stopped, or nothing comes any more.
void CCapture::Listen(IVoiceInput& input, const Take& take)
{
    VoiceBlock block;
    auto quietUntil = Clock::now() + kMostQuietAtFirst;
    while (!m_isStopping && Clock::now() < quietUntil) {
        if (!input.Read(block, kReadWait) || m_isStopping)
            continue;
        quietUntil = Clock::now() + kMostQuiet;
        try {
            take(block);
        } catch (const std::exception&) {
            // No memory: these 20 ms are lost.
        }
    }
}

void CCapture::Report(const Failure& failure)
{
    const std::lock_guard lock(m_mutex);
    m_failure = failure;
    m_isOpened = true;
    m_changed.notify_all();
}

void CCapture::Pause(milliseconds time)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, time, [this] { return m_isStopping.load(); });
}

} // namespace sdk
