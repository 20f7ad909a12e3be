#pragma once

#include "QxNetSDK/voice/VoiceModule.h"

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/audio_fifo.h>
#include <libswresample/swresample.h>
}

namespace sdk {

/// An encoder of the multimedia library, with the change of rate and sample format before it.
class CEncoder : public IVoiceEncoder
{
public:
    /// Null when the format cannot be encoded here.
    static std::unique_ptr<CEncoder> Make(const VoiceFormat& format);

    void Encode(const VoiceBlock& block, std::vector<std::string>& packets) override;

private:
    struct Freer
    {
        void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
        void operator()(SwrContext* context) const { swr_free(&context); }
        void operator()(AVAudioFifo* fifo) const { av_audio_fifo_free(fifo); }
        void operator()(AVFrame* frame) const { av_frame_free(&frame); }
        void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    };
    template<typename Object>
    using Owned = std::unique_ptr<Object, Freer>;

    bool OpenCodec(const AVCodec& codec, const VoiceFormat& format);
    bool OpenConversion();
    Owned<AVFrame> MakeFrame(int samples) const;
    void EncodeFrame(std::vector<std::string>& packets);

    Owned<AVCodecContext> m_codec;
    Owned<SwrContext> m_conversion;
    Owned<AVAudioFifo> m_waiting; ///< converted, less than a frame
    Owned<AVFrame> m_converted;
    Owned<AVFrame> m_frame;
    Owned<AVPacket> m_packet;
    int m_frameSamples = 0;
    std::int64_t m_samples = 0; ///< encoded so far
};

} // namespace sdk
