#pragma once

#include "QxNetSDK/voice/VoiceModule.h"

#include <boost/lockfree/spsc_queue.hpp>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <portaudio.h>

namespace sdk {

/// The computer's default sound input. The sound library knows one at a time.
class CSoundInput : public IVoiceInput
{
public:
    /// Null, and the library's number of the failure.
    static std::unique_ptr<CSoundInput> Open(PaError& error);
    ~CSoundInput() override;

    bool Read(VoiceBlock& block, std::chrono::milliseconds wait) override;

private:
    PaError Start();
    static int OnSamples(const void* input, void* output, unsigned long count,
                         const PaStreamCallbackTimeInfo* time, PaStreamCallbackFlags flags, void* self);

    PaStream* m_stream = nullptr;
    bool m_isInitialised = false;
    /// A second of sound, from the sound library's thread, which must not wait. What does not fit is lost.
    boost::lockfree::spsc_queue<std::int16_t, boost::lockfree::capacity<kVoiceRate>> m_samples;
    std::mutex m_mutex;
    std::condition_variable m_came;
};

/// Keeps the sound libraries from writing on the program's error output.
void SilenceSoundLibraries();

} // namespace sdk
