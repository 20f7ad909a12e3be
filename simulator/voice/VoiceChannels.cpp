#include "simulator/voice/VoiceChannels.h"

#include "QxNetSDK/Structures.h"
#include "simulator/device/Exchanges.h"
#include "simulator/voice/G711.h"
#include "simulator/voice/WavFile.h"

#include <algorithm>
#include <array>

namespace simulator {

namespace {

constexpr unsigned kAdpcmBlockBytes = 256;
constexpr std::array<unsigned, 4> kRates = {8000, 16000, 32000, 48000};

/// How an encoding stands in a file. Numbers of formats: the registry of RIFF (RFC 2361).
struct VoiceFormat
{
    unsigned encoding;
    std::uint16_t tag;
    std::uint16_t bits;           ///< of a sample; 0 where frames have no fixed number
    unsigned bytesPer1000Samples; ///< 0: unknown
    std::string (*decode)(std::string_view);
};

constexpr std::array<VoiceFormat, 9> kFormats = {{
    {QXNET_AUDIO_G711_MU, 1, 16, 2000, DecodeMuLaw},
    {QXNET_AUDIO_G711_A, 1, 16, 2000, DecodeALaw},
    {QXNET_AUDIO_G722, 0x0065, 4, 500, nullptr},
    {QXNET_AUDIO_PCM, 1, 16, 2000, nullptr},
    {QXNET_AUDIO_MP2, 0x0050, 0, 0, nullptr},
    {QXNET_AUDIO_MP3, 0x0055, 0, 0, nullptr},
    {QXNET_AUDIO_G726, 0x0045, 4, 500, nullptr},
    {QXNET_AUDIO_AAC, 0x1600, 0, 0, nullptr},
    {QXNET_AUDIO_ADPCM_IMA, 0x0011, 4, 500, nullptr},
}};

/// A format that the list does not have is kept under the number of those in development.
VoiceFormat FormatOf(unsigned encoding)
{
    const auto format = std::find_if(kFormats.begin(), kFormats.end(),
                                     [&](const VoiceFormat& known) { return known.encoding == encoding; });
    return format == kFormats.end() ? VoiceFormat{encoding, 0xffff, 0, 0, nullptr} : *format;
}

WavFormat WavOf(const VoiceFormat& voice, unsigned rate)
{
    WavFormat wav;
    wav.tag = voice.tag;
    wav.bitsPerSample = voice.bits;
    wav.rate = rate;
    wav.bytesPerSecond = voice.bytesPer1000Samples * (rate / 1000);
    const bool isAdpcm = voice.encoding == QXNET_AUDIO_ADPCM_IMA;
    wav.blockAlign = static_cast<std::uint16_t>(isAdpcm ? kAdpcmBlockBytes : std::max(1, voice.bits / 8));
    return wav;
}

} // namespace

/// Writes what comes until it is gone, and holds the channel so long.
class CVoiceChannels::CUpload : public IUpload
{
public:
    CUpload(std::shared_ptr<Busy> busy, unsigned channel, const VoiceFormat& format,
            std::unique_ptr<CWavFile> file, std::function<void()> onVoice)
        : m_busy(std::move(busy)), m_channel(channel), m_format(format), m_file(std::move(file)),
          m_onVoice(std::move(onVoice))
    {}

    ~CUpload() override
    {
        std::lock_guard<std::mutex> lock(m_busy->mutex);
        m_busy->channels.erase(m_channel);
    }

    bool Write(std::string_view octets) override
    {
        m_onVoice();
        if (!m_file || octets.empty())
            return true;
        return m_format.decode ? m_file->Write(m_format.decode(octets)) : m_file->Write(octets);
    }

    HttpAnswer Finish() override { return AnswerOf(std::optional<Refused>()); }

private:
    const std::shared_ptr<Busy> m_busy;
    const unsigned m_channel;
    const VoiceFormat m_format;
    const std::unique_ptr<CWavFile> m_file;
    const std::function<void()> m_onVoice;
};

CVoiceChannels::CVoiceChannels(const DevicePlan& plan, const std::string& folder)
    : m_plan(plan), m_folder(folder.empty() ? folder : folder + "../")
{}

std::variant<HttpAnswer, std::unique_ptr<IUpload>> CVoiceChannels::Begin(unsigned channel,
                                                                         std::optional<unsigned> encoding,
                                                                         std::optional<unsigned> rate,
                                                                         std::function<void()> onVoice)
{
    if (channel == 0 || channel > m_plan.voiceChannels)
        return AnswerOf(kUnknownChannel);
    if (!encoding || *encoding > QXNET_AUDIO_ADPCM_IMA || !rate ||
        std::find(kRates.begin(), kRates.end(), *rate) == kRates.end())
        return AnswerOf(kBadRequest);
    {
        std::lock_guard<std::mutex> lock(m_busy->mutex);
        if (!m_busy->channels.insert(channel).second)
            return AnswerOf(kBusy);
    }
    const VoiceFormat format = FormatOf(*encoding);
    std::unique_ptr<CWavFile> file;
    if (!m_folder.empty())
        file = CWavFile::Create(m_folder + "voice-" + std::to_string(m_plan.index) + '-' +
                                    std::to_string(channel) + ".wav",
                                WavOf(format, *rate));
    const bool failed = !m_folder.empty() && !file;
    auto upload = std::make_unique<CUpload>(m_busy, channel, format, std::move(file), std::move(onVoice));
    if (failed)
        return AnswerOf(kCannotKeep);
    return upload;
}

} // namespace simulator
