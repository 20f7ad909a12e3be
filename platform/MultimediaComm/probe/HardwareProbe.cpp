#include "MultimediaComm/HardwareProbe.h"

#include <boost/config.hpp>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/hwcontext.h>
#include <libavutil/log.h>
}

#include <algorithm>
#include <vector>

namespace {

/// Keeps the multimedia library from printing what a failed probe means to it.
class QuietLibrary
{
public:
    QuietLibrary() : m_level(av_log_get_level()) { av_log_set_level(AV_LOG_QUIET); }
    ~QuietLibrary() { av_log_set_level(m_level); }
    QuietLibrary(const QuietLibrary&) = delete;
    QuietLibrary& operator=(const QuietLibrary&) = delete;

private:
    int m_level;
};

std::vector<AVHWDeviceType> DecodingDeviceTypes()
{
    std::vector<AVHWDeviceType> types;
    for (const AVCodecID codec : {AV_CODEC_ID_H264, AV_CODEC_ID_HEVC}) {
        const AVCodec* decoder = avcodec_find_decoder(codec);
        for (int i = 0; const AVCodecHWConfig* config = decoder ? avcodec_get_hw_config(decoder, i) : nullptr;
             ++i)
            if (std::find(types.begin(), types.end(), config->device_type) == types.end())
                types.push_back(config->device_type);
    }
    return types;
}

bool CanOpen(AVHWDeviceType type)
{
    AVBufferRef* device = nullptr;
    const bool opened = av_hwdevice_ctx_create(&device, type, nullptr, nullptr, 0) >= 0;
    av_buffer_unref(&device);
    return opened;
}

} // namespace

extern "C" BOOST_SYMBOL_EXPORT void VantorProbeHardware(multimediacomm::HardwareTold told, void* context)
{
    const QuietLibrary quiet;
    for (const AVHWDeviceType type : DecodingDeviceTypes())
        told(context, av_hwdevice_get_type_name(type), CanOpen(type));
}
