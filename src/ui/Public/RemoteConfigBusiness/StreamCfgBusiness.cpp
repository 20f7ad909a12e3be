#include "ui/Public/RemoteConfigBusiness/StreamCfgBusiness.h"

#include "ui/Public/RemoteConfigBusiness/SdkCall.h"

#include <cstddef>

namespace video {

#define SDK_CLASS CStreamCfgBusiness
#define SDK_TABLE "ui/Public/RemoteConfigBusiness/StreamCfgTable.inc"
#include "ui/Public/RemoteConfigBusiness/DefineOperations.inc"

int CStreamCfgBusiness::SetMotionParameters(int lUserID, int lChannel, const NET_DVR_MOTION_V40* config)
{
    if (config == nullptr)
        return -1;
    return sdk_call::ChangeConfig<NET_DVR_MOTION_V40>(
        {SDK_CALL_HERE, lUserID, lChannel}, QXNET_GET_MOTION, QXNET_SET_MOTION,
        [&](NET_DVR_MOTION_V40& current) {
            std::memcpy(&current, config, offsetof(NET_DVR_MOTION_V40, reserved2));
        });
}

int CStreamCfgBusiness::GetCameraHolidayParameters(int lUserID, int lChannel, int command,
                                                   tagNET_DVR_HOLIDAY_HANDLE* config)
{
    return sdk_call::ReadConfig({SDK_CALL_HERE, lUserID, lChannel}, static_cast<uint32_t>(command), config);
}

int CStreamCfgBusiness::SetCameraHolidayParameters(int lUserID, int lChannel, int command,
                                                   tagNET_DVR_HOLIDAY_HANDLE* config)
{
    return sdk_call::WriteConfig({SDK_CALL_HERE, lUserID, lChannel}, static_cast<uint32_t>(command), config);
}

int CStreamCfgBusiness::GetDeviceConfig(int lUserID, unsigned long command,
                                        struct tagNET_DVR_STD_CONFIG* config)
{
    if (lUserID < 0 || config == nullptr)
        return -1;
    if (!NET_DVR_GetSTDConfig(lUserID, static_cast<uint32_t>(command), config))
        return sdk_call::Failed("NET_DVR_GetSTDConfig", SDK_CALL_HERE);
    return 0;
}

int CStreamCfgBusiness::SetDeviceConfig(int lUserID, unsigned long command,
                                        struct tagNET_DVR_STD_CONFIG* config)
{
    if (lUserID < 0 || config == nullptr)
        return -1;
    if (!NET_DVR_SetSTDConfig(lUserID, static_cast<uint32_t>(command), config))
        return sdk_call::Failed("NET_DVR_SetSTDConfig", SDK_CALL_HERE);
    return 0;
}

} // namespace video
