#pragma once

#include "QxNetSDK/QxNetSDK.h"

namespace video {

/// Parameters of a device as a whole, read and written with the device SDK; DeviceCfgTable.inc lists the
/// operations. Arguments, results, lines and threads are those of CStreamCfgBusiness. Where an operation has
/// lChannel, it is the number of a camera, an alarm input or an alarm output, from 1; GetChannelPage gives
/// the page that begins there.
class CDeviceCfgBusiness
{
public:
#define SDK_TABLE "ui/Public/RemoteConfigBusiness/DeviceCfgTable.inc"
#include "ui/Public/RemoteConfigBusiness/DeclareOperations.inc"

    /// The encoding in which the device takes voice.
    static int GetAudioCompress(int lUserID, QxNetAudioCompress* compress);
};

} // namespace video
