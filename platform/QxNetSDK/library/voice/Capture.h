#pragma once

#include "QxNetSDK/QxNetSDK.h"
#include "QxNetSDK/library/Failure.h"
#include "QxNetSDK/voice/VoiceModule.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace sdk {

/// The program's own source of sound; function null: the sound input.
struct VoiceSource
{
    QxNetAudioSource function = nullptr;
    void* user = nullptr;
};

/// Takes blocks of sound on a thread of its own, and opens the input again when nothing comes from it any
/// more. For any thread.
class CCapture
{
public:
    /// Called for every block on the capture's thread.
    using Take = std::function<void(const VoiceBlock& block)>;

    /// AUDIO_STARTED, or NO_AUDIO_INPUT with the sound library's number.
    Failure Start(const VoiceSource& source, Take take);
    /// After that nothing is taken any more, except for the rest of a call of take that is the caller itself.
    void Stop();

private:
    void Run(const VoiceSource& source, const Take& take);
    std::unique_ptr<IVoiceInput> Open(const VoiceSource& source);
    void Listen(IVoiceInput& input, const Take& take);
    void Report(const Failure& failure);
    void Pause(std::chrono::milliseconds time);

    std::mutex m_startOrStop;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOpened = false; ///< or failed to be
    Failure m_failure;
    std::int32_t m_error = 0;
    std::atomic<bool> m_isStopping = true;
    std::atomic<std::thread::id> m_id;
    std::thread m_thread;
};

} // namespace sdk
