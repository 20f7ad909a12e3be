#include "QxNetSDK/voice/Encoder.h"

#include "QxNetSDK/Structures/Device.h"

#include <algorithm>
#include <iterator>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/log.h>
#include <libavutil/opt.h>
}

namespace sdk {

namespace {

constexpr int kAdpcmBlockBytes = 256; // as docs/device-protocol.md has it
constexpr int kG726BitsPerSample = 4;

/// The multimedia library's name of an encoding. onlyRate: 0 where the encoding itself says nothing of it.
struct Codec
{
    unsigned encoding;
    const char* name;
    unsigned onlyRate;
    bool hasBitRate;
};

constexpr Codec kCodecs[] = {
    {QXNET_AUDIO_G711_MU, "pcm_mulaw", 0, false},
    {QXNET_AUDIO_G711_A, "pcm_alaw", 0, false},
    {QXNET_AUDIO_G722, "g722", 16000, false},
    {QXNET_AUDIO_PCM, "pcm_s16le", 0, false},
    {QXNET_AUDIO_MP2, "mp2", 0, true},
    {QXNET_AUDIO_MP3, "libmp3lame", 0, true},
    {QXNET_AUDIO_G726, "g726", 8000, false},
    {QXNET_AUDIO_OPUS, "libopus", 0, true},
    {QXNET_AUDIO_AAC, "aac", 0, true},
    {QXNET_AUDIO_ADPCM_IMA, "adpcm_ima_wav", 0, false},
};

const Codec* CodecOf(const VoiceFormat& format)
{
    const auto* codec = std::find_if(std::begin(kCodecs), std::end(kCodecs),
                                     [&](const Codec& known) { return known.encoding == format.encoding; });
    const bool fits = codec != std::end(kCodecs) && (codec->onlyRate == 0 || codec->onlyRate == format.rate);
    return fits ? codec : nullptr;
}

std::int64_t BitRate(const VoiceFormat& format)
{
    if (format.encoding == QXNET_AUDIO_G726)
        return std::int64_t{format.rate} * kG726BitsPerSample;
    return CodecOf(format)->hasBitRate ? format.bitRate : 0;
}

/// The head of an ADTS frame (ISO/IEC 14496-3, 1.A.2) of one channel, AAC low complexity, without checksum.
std::string AdtsHead(int rate, std::size_t payload)
{
    constexpr int kRates[] = {96000, 88200, 64000, 48000, 44100, 32000,
                              24000, 22050, 16000, 12000, 11025, 8000};
    constexpr std::size_t kLength = 7;
    const auto index =
        static_cast<std::size_t>(std::find(std::begin(kRates), std::end(kRates), rate) - kRates);
    const std::size_t length = payload + kLength;
    const unsigned char head[kLength] = {
        0xFF,
        0xF1,
        static_cast<unsigned char>(0x40 | index << 2),
        static_cast<unsigned char>(0x40 | length >> 11),
        static_cast<unsigned char>(length >> 3),
        static_cast<unsigned char>(length << 5 | 0x1F),
        0xFC,
    };
    return std::string(head, head + kLength);
}

} // namespace

std::unique_ptr<CEncoder> CEncoder::Make(const VoiceFormat& format)
{
    av_log_set_level(AV_LOG_QUIET); // it would write to the program's error output
    const Codec* known = CodecOf(format);
    const AVCodec* codec = known ? avcodec_find_encoder_by_name(known->name) : nullptr;
    auto encoder = std::make_unique<CEncoder>();
    const bool isReady = codec && encoder->OpenCodec(*codec, format) && encoder->OpenConversion();
    return isReady ? std::move(encoder) : nullptr;
}

bool CEncoder::OpenCodec(const AVCodec& codec, const VoiceFormat& format)
{
    m_codec.reset(avcodec_alloc_context3(&codec));
    if (!m_codec)
        return false;
    m_codec->sample_rate = static_cast<int>(format.rate);
    m_codec->bit_rate = BitRate(format);
    m_codec->sample_fmt = codec.sample_fmts ? codec.sample_fmts[0] : AV_SAMPLE_FMT_S16;
    m_codec->thread_count = 1;
    m_codec->time_base = {1, m_codec->sample_rate};
    av_channel_layout_default(&m_codec->ch_layout, 1);
    if (format.encoding == QXNET_AUDIO_ADPCM_IMA)
        (void)av_opt_set_int(m_codec->priv_data, "block_size", kAdpcmBlockBytes, 0);
    if (format.encoding == QXNET_AUDIO_OPUS)
        (void)av_opt_set(m_codec->priv_data, "vbr", "off", 0); // devices are told a bit rate
    if (avcodec_open2(m_codec.get(), &codec, nullptr) < 0)
        return false;
    m_frameSamples = m_codec->frame_size > 0 ? m_codec->frame_size : m_codec->sample_rate / 50;
    return true;
}

bool CEncoder::OpenConversion()
{
    SwrContext* conversion = nullptr;
    AVChannelLayout mono;
    av_channel_layout_default(&mono, 1);
    const int result = swr_alloc_set_opts2(&conversion, &mono, m_codec->sample_fmt, m_codec->sample_rate,
                                           &mono, AV_SAMPLE_FMT_S16, kVoiceRate, 0, nullptr);
    m_conversion.reset(conversion);
    if (result < 0 || swr_init(conversion) < 0)
        return false;
    m_waiting.reset(av_audio_fifo_alloc(m_codec->sample_fmt, 1, m_frameSamples));
    // Twice a block, as the filter gives now less and now more.
    const std::size_t most = std::tuple_size_v<VoiceBlock> * 2 * m_codec->sample_rate / kVoiceRate + 256;
    m_converted = MakeFrame(static_cast<int>(most));
    m_frame = MakeFrame(m_frameSamples);
    m_packet.reset(av_packet_alloc());
    return m_waiting && m_converted && m_frame && m_packet;
}

CEncoder::Owned<AVFrame> CEncoder::MakeFrame(int samples) const
{
    Owned<AVFrame> frame(av_frame_alloc());
    if (!frame)
        return nullptr;
    frame->format = m_codec->sample_fmt;
    frame->sample_rate = m_codec->sample_rate;
    frame->nb_samples = samples;
    av_channel_layout_default(&frame->ch_layout, 1);
    return av_frame_get_buffer(frame.get(), 0) < 0 ? nullptr : std::move(frame);
}

void CEncoder::Encode(const VoiceBlock& block, std::vector<std::string>& packets)
{
    const auto* input = reinterpret_cast<const std::uint8_t*>(block.data());
    const int count = swr_convert(m_conversion.get(), m_converted->data, m_converted->nb_samples, &input,
                                  static_cast<int>(block.size()));
    if (count > 0)
        (void)av_audio_fifo_write(m_waiting.get(), reinterpret_cast<void**>(m_converted->data), count);
    while (av_audio_fifo_size(m_waiting.get()) >= m_frameSamples)
        EncodeFrame(packets);
}

void CEncoder::EncodeFrame(std::vector<std::string>& packets)
{
    // The codec may still hold the frame that it got last.
    if (av_frame_make_writable(m_frame.get()) < 0)
        return (void)av_audio_fifo_drain(m_waiting.get(), m_frameSamples);
    (void)av_audio_fifo_read(m_waiting.get(), reinterpret_cast<void**>(m_frame->data), m_frameSamples);
    m_frame->pts = m_samples;
    m_samples += m_frameSamples;
    if (avcodec_send_frame(m_codec.get(), m_frame.get()) < 0)
        return;
    while (avcodec_receive_packet(m_codec.get(), m_packet.get()) == 0) {
        const auto size = static_cast<std::size_t>(m_packet->size);
        std::string packet =
            m_codec->codec_id == AV_CODEC_ID_AAC ? AdtsHead(m_codec->sample_rate, size) : std::string();
        packets.push_back(packet.append(reinterpret_cast<const char*>(m_packet->data), size));
        av_packet_unref(m_packet.get());
    }
}

} // namespace sdk
