#include "QxNetSDK/library/voice/VoiceRequests.h"

#include <cstring>

namespace sdk {

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

} // namespace sdk
