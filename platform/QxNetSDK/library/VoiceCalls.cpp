#include "QxNetSDK/library/LastError.h"
#include "QxNetSDK/library/session/Library.h"
#include "QxNetSDK/library/voice/VoiceRequests.h"

using sdk::Failure;

extern "C" {

int NET_DVR_GetCurrentAudioCompress(int32_t login, QxNetAudioCompress* compress)
{
    return sdk::Outcome([=]() -> Failure {
        if (!compress)
            return {QXNET_ERROR_ARGUMENT};
        std::shared_ptr<sdk::CSession> session;
        if (const Failure failure = sdk::CLibrary::Instance().Find(login, session))
            return failure;
        return sdk::ReadAudioCompress(*session, *compress);
    });
}

} // extern "C"
