#include "MultimediaComm/MultimediaComm.h"

#include "Base/Log.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/hwcontext.h>
#include <libavutil/log.h>
}

#include <algorithm>
#include <mutex>
#include <optional>

namespace multimediacomm {

namespace {

struct Probed
{
    std::mutex mutex;
    std::optional<std::vector<HardwareDecoder>> decoders;
};

/// Never destroyed: the worker that probes may outlive main.
Probed& State()
{
    static Probed* const state = new Probed();
    return *state;
}

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

std::vector<HardwareDecoder> Probe()
{
    const QuietLibrary quiet;
    std::vector<HardwareDecoder> decoders;
    for (const AVHWDeviceType type : DecodingDeviceTypes())
        decoders.push_back({av_hwdevice_get_type_name(type), CanOpen(type)});
    return decoders;
}

std::string Summary(const std::vector<HardwareDecoder>& decoders)
{
    std::string usable;
    std::string missing;
    for (const HardwareDecoder& decoder : decoders) {
        std::string& list = decoder.usable ? usable : missing;
        list += (list.empty() ? "" : ", ") + decoder.name;
    }
    return "usable: " + (usable.empty() ? "none" : usable) +
           "; no device: " + (missing.empty() ? "none" : missing);
}

} // namespace

bool Init()
{
    std::lock_guard<std::mutex> lock(State().mutex);
    if (!State().decoders) {
        State().decoders = Probe();
        BASE_INFO("Hardware decoding, %s.", Summary(*State().decoders).c_str());
    }
    return !State().decoders->empty();
}

void UnInit()
{
    std::lock_guard<std::mutex> lock(State().mutex);
    State().decoders.reset();
}

std::vector<HardwareDecoder> HardwareDecoders()
{
    std::lock_guard<std::mutex> lock(State().mutex);
    return State().decoders.value_or(std::vector<HardwareDecoder>());
}

} // namespace multimediacomm
