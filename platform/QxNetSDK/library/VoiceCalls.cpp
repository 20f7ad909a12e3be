#include "QxNetSDK/library/LastError.h"
#include "QxNetSDK/library/session/Library.h"
#include "QxNetSDK/library/voice/VoiceRequests.h"

using sdk::CLibrary;
using sdk::Failure;

namespace {

Failure ReadCompress(std::int32_t login, QxNetAudioCompress* compress)
{
    if (!compress)
        return {QXNET_ERROR_ARGUMENT};
    std::shared_ptr<sdk::CSession> session;
    if (const Failure failure = CLibrary::Instance().Find(login, session))
        return failure;
    return sdk::ReadAudioCompress(*session, *compress);
}

Failure AddDevice(std::int32_t login, std::uint32_t channel, std::int32_t& handle)
{
    if (channel == 0)
        return {QXNET_ERROR_ARGUMENT};
    std::shared_ptr<sdk::CSession> session;
    if (const Failure failure = CLibrary::Instance().Find(login, session))
        return failure;
    return CLibrary::Instance().Voice().Add(login, std::move(session), channel, handle);
}

/// Work of voice that needs no session.
template<typename Work>
int VoiceOutcome(Work&& work)
{
    return sdk::Outcome([&]() -> Failure {
        if (!CLibrary::Instance().IsInitialised())
            return {QXNET_ERROR_NOT_INITIALISED};
        return work(CLibrary::Instance().Voice());
    });
}

} // namespace

extern "C" {

int NET_DVR_GetCurrentAudioCompress(int32_t login, QxNetAudioCompress* compress)
{
    return sdk::Outcome([=] { return ReadCompress(login, compress); });
}

int QxNet_SetAudioSource(QxNetAudioSource source, void* user)
{
    return VoiceOutcome([=](sdk::CVoice& voice) {
        voice.SetSource({source, user});
        return Failure{};
    });
}

int NET_DVR_ClientAudioStart_V30(QxNetAudioCallback callback, void* user)
{
    return VoiceOutcome([=](sdk::CVoice& voice) { return voice.Start(callback, user); });
}

int NET_DVR_ClientAudioStop(void)
{
    return VoiceOutcome([](sdk::CVoice& voice) {
        voice.Stop();
        return Failure{};
    });
}

int32_t NET_DVR_AddDVR_V30(int32_t login, uint32_t voiceChannel)
{
    std::int32_t handle = -1;
    (void)sdk::Outcome([&] { return AddDevice(login, voiceChannel, handle); });
    return handle;
}

int NET_DVR_DelDVR_V30(int32_t handle)
{
    return VoiceOutcome([=](sdk::CVoice& voice) { return voice.Remove(handle); });
}

} // extern "C"
