#pragma once

#include "QxNetSDK/QxNetSDK.h"

namespace video {

/// All wireless alarms of a camera, as its structure has them.
using WirelessAlarms = QxNetWirelessAlarm[QXNET_WIRELESS_ALARMS];

/// Parameters of a device's channels, read and written with the device SDK. Each operation is one request, or
/// one read followed by one write where only a part is set; StreamCfgTable.inc lists them.
///
/// lUserID is the login handle, lChannel counts from 1. The structures are the caller's; their size fields
/// are set here. 0, or -1 after one error line with the SDK's error pair, which comm_method::getLastSDKError
/// gives to the caller too. A negative handle or channel, an index outside its array, a count that is not
/// positive or a null pointer give -1 with no request and no line. A batch (1 to 256 items) also gives 0 when
/// single items failed: each has an error line, and after a read its structure is zero.
///
/// Holds nothing. Waits for the device, so not for the GUI thread; any other, and several at once.
class CStreamCfgBusiness
{
public:
#define SDK_TABLE "ui/Public/RemoteConfigBusiness/StreamCfgTable.inc"
#include "ui/Public/RemoteConfigBusiness/DeclareOperations.inc"

    /// Everything that config names. What a newer device keeps in reserved bytes stays.
    static int SetMotionParameters(int lUserID, int lChannel, const NET_DVR_MOTION_V40* config);

    /// What alarms do on holidays; the command says which alarms: QXNET_GET_MOTION_HOLIDAY and those below
    /// it.
    static int GetCameraHolidayParameters(int lUserID, int lChannel, int command,
                                          tagNET_DVR_HOLIDAY_HANDLE* config);
    static int SetCameraHolidayParameters(int lUserID, int lChannel, int command,
                                          tagNET_DVR_HOLIDAY_HANDLE* config);

    /// Any command of standard configuration.
    static int GetDeviceConfig(int lUserID, unsigned long command, struct tagNET_DVR_STD_CONFIG* config);
    static int SetDeviceConfig(int lUserID, unsigned long command, struct tagNET_DVR_STD_CONFIG* config);
};

} // namespace video
