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
/// more. For any thread. It must live as long as the process: a sound server that does not answer may hold
/// the thread longer than anybody waits for it.
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
    Failure Begin(const VoiceSource& source, Take take);
    void Run(const VoiceSource& source, const Take& take);
    bool Report(bool isOpened);
    std::unique_ptr<IVoiceInput> Open(const VoiceSource& source);
    void Repeat(std::unique_ptr<IVoiceInput> input, const VoiceSource& source, const Take& take);
    void Listen(IVoiceInput& input, const Take& take);
    void Deliver(const VoiceBlock& block, const Take& take);
    void Pause(std::chrono::milliseconds time);

    std::mutex m_startOrStop;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isRunning = false; ///< the thread
    bool m_isOpened = false;  ///< or failed to be
    bool m_isTaking = false;
    Failure m_failure;
    std::int32_t m_error = 0; ///< the thread's
    std::atomic<bool> m_isStopping = false;
    std::atomic<std::thread::id> m_id;
};

} // namespace sdk
