#pragma once

#include "Protocol/JSONStruct/HTTP/AlarmJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/BroadCastJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/DeviceJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/LocalFileJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/SystemJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/ToolJSONStruct.h"
#include "Protocol/JSONStruct/LPC/ComponentJSONStruct.h"
#include "Protocol/JSONStruct/LPC/UserJSONStruct.h"
#include "Protocol/JSONStruct/LPC/WndJSONStruct.h"
#include "Protocol/JSONStruct/WebSocket/WebSocketCommonJSONStruct.h"

namespace protocol {

template<typename... Messages>
struct MessageList
{};

/// Every message that has a list of fields; the tests of the whole family run over it.
using AllMessages =
    MessageList<AlarmInputInfoData, AlarmOutputControlData, AlarmOutputInfoData, AlarmRegisterData,
                AppTabRemovedData, BroadCastNotify, BroadCastNotifyResult, CommonResponseData,
                ComponentListData, ComponentRegisterInfo, ComponentStateData, DateTimeFormatData,
                DefaultFilePathData, DeviceChannelListData, DeviceList, DeviceResponseData,
                DeviceResponseListData, FileNotifyResult, FrameResizeData, FrameworkMoveData,
                GetAuxiliaryScreenAppRequestData, GetAuxiliaryScreenAppResponseData, GetWndHandleRequestData,
                GetWndHandleResponseData, GroupListData, LoadComponentsRequestData,
                LoadComponentsResponseData, LocalFile, LocalFileNotify, LocalFileQuery, LocalFileQueryResult,
                LocalFileResult, MainViewState, ModifyGroupCondition, ShowWndRequestData,
                SwitchUserStopWorkingData, SwitchUserUpdateFrameData, SystemConfigsData, TabSwitchData,
                TimeSyncResultListData, WebSocketNotifyData, WiperControlData, WiperControlResultListData>;

} // namespace protocol
