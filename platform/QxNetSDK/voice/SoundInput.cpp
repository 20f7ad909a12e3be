#include "QxNetSDK/voice/SoundInput.h"

#include <algorithm>

namespace sdk {

namespace {

/// Samples that came between a look and the wait for more are not waited for longer than this.
constexpr std::chrono::milliseconds kLookEvery{20};

} // namespace

std::unique_ptr<CSoundInput> CSoundInput::Open(PaError& error)
{
    SilenceSoundLibraries();
    auto input = std::make_unique<CSoundInput>();
    error = input->Start();
    return error == paNoError ? std::move(input) : nullptr;
}

PaError CSoundInput::Start()
{
    if (const PaError error = Pa_Initialize(); error != paNoError)
        return error;
    m_isInitialised = true;
    PaStreamParameters parameters{};
    parameters.device = Pa_GetDefaultInputDevice();
    if (parameters.device == paNoDevice)
        return paDeviceUnavailable;
    parameters.channelCount = 1;
    parameters.sampleFormat = paInt16;
    parameters.suggestedLatency = Pa_GetDeviceInfo(parameters.device)->defaultLowInputLatency;
    const PaError error = Pa_OpenStream(&m_stream, &parameters, nullptr, kVoiceRate,
                                        std::tuple_size_v<VoiceBlock>, paNoFlag, OnSamples, this);
    return error == paNoError ? Pa_StartStream(m_stream) : error;
}

CSoundInput::~CSoundInput()
{
    if (m_stream) {
        (void)Pa_AbortStream(m_stream);
        (void)Pa_CloseStream(m_stream);
    }
    if (m_isInitialised)
        (void)Pa_Terminate();
}

bool CSoundInput::Read(VoiceBlock& block, std::chrono::milliseconds wait)
{
    const auto deadline = std::chrono::steady_clock::now() + wait;
    std::unique_lock lock(m_mutex);
    while (m_samples.read_available() < block.size()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        m_came.wait_for(lock, kLookEvery);
    }
    return m_samples.pop(block.data(), block.size()) == block.size();
}

int CSoundInput::OnSamples(const void* input, void*, unsigned long count, const PaStreamCallbackTimeInfo*,
                           PaStreamCallbackFlags, void* self)
{
    auto& sound = *static_cast<CSoundInput*>(self);
    if (input)
        sound.m_samples.push(static_cast<const std::int16_t*>(input), count);
    sound.m_came.notify_one();
    return paContinue;
}

} // namespace sdk
