#include "QxNetSDK/library/voice/VoiceRequests.h"

#include <cstring>

namespace sdk {

namespace {

bool IsRate(unsigned thousands)
{
    return thousands == 8 || thousands == 16 || thousands == 32 || thousands == 48;
}

bool HasBitRate(unsigned encoding)
{
    return encoding == QXNET_AUDIO_MP2 || encoding == QXNET_AUDIO_MP3 || encoding == QXNET_AUDIO_OPUS ||
           encoding == QXNET_AUDIO_AAC;
}

bool IsBitRate(unsigned thousands)
{
    return thousands >= 16 && thousands <= 192;
}

} // namespace

Failure ReadAudioCompress(CSession& session, QxNetAudioCompress& compress)
{
    constexpr std::uint32_t kSize = sizeof compress;
    const std::string target = kRoot + ("config/" + std::to_string(QXNET_GET_AUDIO_COMPRESS)) + "?channel=0";
    Answer answer;
    if (const Failure failure = session.Call({"GET", target, {}, {200, kSize, kSize}, true}, answer))
        return failure;
    std::memcpy(&compress, answer.body.data(), kSize);
    return {};
}

Failure ReadFormat(const QxNetAudioCompress& compress, VoiceFormat& format)
{
    const bool hasBitRate = HasBitRate(compress.encoding);
    if (compress.encoding > QXNET_AUDIO_ADPCM_IMA || !IsRate(compress.sampleRate) ||
        (hasBitRate && !IsBitRate(compress.bitRate)))
        return {QXNET_ERROR_AUDIO_ENCODING, compress.encoding};
    format = {compress.encoding, compress.sampleRate * 1000u, hasBitRate ? compress.bitRate * 1000u : 0};
    return {};
}

Failure BeginVoice(std::shared_ptr<CSession> session, std::uint32_t channel, const VoiceFormat& format,
                   std::unique_ptr<CSession::CUpload>& upload)
{
    const std::string target = kRoot + ("voice/" + std::to_string(channel)) +
                               "?encoding=" + std::to_string(format.encoding) +
                               "&rate=" + std::to_string(format.rate);
    Failure failure = CSession::CUpload::Begin(std::move(session), target, upload);
    if (failure.code == QXNET_ERROR_BUSY)
        failure.code = QXNET_ERROR_AUDIO_BUSY;
    if (failure.code == QXNET_ERROR_VALUE)
        failure = {QXNET_ERROR_AUDIO_ENCODING, format.encoding, failure.own};
    return failure;
}

} // namespace sdk
