#include "ui/Public/RemoteConfigBusiness/DeviceCfgBusiness.h"

#include "ui/Public/RemoteConfigBusiness/SdkCall.h"

namespace video {

#define SDK_CLASS CDeviceCfgBusiness
#define SDK_TABLE "ui/Public/RemoteConfigBusiness/DeviceCfgTable.inc"
#include "ui/Public/RemoteConfigBusiness/DefineOperations.inc"

int CDeviceCfgBusiness::GetAudioCompress(int lUserID, QxNetAudioCompress* compress)
{
    if (lUserID < 0 || compress == nullptr)
        return -1;
    if (!NET_DVR_GetCurrentAudioCompress(lUserID, compress))
        return sdk_call::Failed("NET_DVR_GetCurrentAudioCompress", SDK_CALL_HERE);
    return 0;
}

} // namespace video
