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
// A sound server that hangs may hold for half a minute who opens or closes an input.
constexpr milliseconds kStartPatience{5000};
constexpr milliseconds kStopPatience{1000};

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
    std::unique_lock lock(m_mutex);
    if (m_isRunning && !m_isStopping)
        return {QXNET_ERROR_AUDIO_STARTED};
    if (!m_changed.wait_for(lock, kStopPatience, [this] { return !m_isRunning; }))
        return {QXNET_ERROR_NO_AUDIO_INPUT};
    if (const Failure failure = Begin(source, std::move(take)))
        return failure;
    if (m_changed.wait_for(lock, kStartPatience, [this] { return m_isOpened; }))
        return m_failure;
    m_isStopping = true;
    return {QXNET_ERROR_NO_AUDIO_INPUT};
}

/// Under the lock.
Failure CCapture::Begin(const VoiceSource& source, Take take)
{
    try {
        std::thread([this, source, take = std::move(take)] { Run(source, take); }).detach();
    } catch (const std::system_error&) {
        return {QXNET_ERROR_MEMORY};
    }
    m_isRunning = true;
    m_isOpened = false;
    m_isStopping = false;
    return {};
}

void CCapture::Stop()
{
    const bool isOwn = m_id.load() == std::this_thread::get_id();
    std::unique_lock only(m_startOrStop, std::defer_lock);
    if (!isOwn)
        only.lock();
    std::unique_lock lock(m_mutex);
    m_isStopping = true;
    m_changed.notify_all();
    if (isOwn)
        return;
    (void)m_changed.wait_for(lock, kStopPatience, [this] { return !m_isRunning; });
    m_changed.wait(lock, [this] { return !m_isTaking; });
}

void CCapture::Run(const VoiceSource& source, const Take& take)
{
    m_id = std::this_thread::get_id();
    std::unique_ptr<IVoiceInput> input = Open(source);
    if (Report(input != nullptr))
        Repeat(std::move(input), source, take);
    m_id = std::thread::id();
    const std::lock_guard lock(m_mutex);
    m_isRunning = false;
    m_changed.notify_all();
}

bool CCapture::Report(bool isOpened)
{
    const std::lock_guard lock(m_mutex);
    m_failure =
        isOpened ? Failure{} : Failure{QXNET_ERROR_NO_AUDIO_INPUT, static_cast<std::uint32_t>(m_error)};
    m_isOpened = true;
    m_isStopping = m_isStopping || !isOpened;
    m_changed.notify_all();
    return isOpened;
}

/// Listens to one input after the other.
void CCapture::Repeat(std::unique_ptr<IVoiceInput> input, const VoiceSource& source, const Take& take)
{
    milliseconds pause = kFirstPause;
    while (!m_isStopping) {
        if (input) {
            Listen(*input, take);
            input.reset();
            pause = kFirstPause;
        }
        Pause(pause);
        pause = std::min(pause * 2, kLongestPause);
        if (!m_isStopping)
            input = Open(source);
    }
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
        if (!input.Read(block, kReadWait))
            continue;
        Deliver(block, take);
        quietUntil = Clock::now() + kMostQuiet;
    }
}

void CCapture::Deliver(const VoiceBlock& block, const Take& take)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_isStopping)
            return;
        m_isTaking = true;
    }
    try {
        take(block);
    } catch (const std::exception&) {
        // No memory: these 20 ms are lost.
    }
    const std::lock_guard lock(m_mutex);
    m_isTaking = false;
    m_changed.notify_all();
}

void CCapture::Pause(milliseconds time)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, time, [this] { return m_isStopping.load(); });
}

} // namespace sdk
