#pragma once

#include "CommunicationLayer/TypedRequest.h"
#include "Protocol/JSONStruct/HTTP/SystemJSONStruct.h"
#include "Protocol/JSONStruct/LPC/ComponentJSONStruct.h"

#include <string>
#include <vector>

/// Requests about the framework itself.
namespace commlayer {

using CGetComponents = CQuery<protocol::route::kComponents, protocol::ComponentListData>;
using CGetDateTimeFormat = CQuery<protocol::route::kDateTimeFormat, protocol::DateTimeFormatData>;
using CGetDefaultFilePath = CQuery<protocol::route::kFilePath, protocol::DefaultFilePathData>;
using CFrameResize = CCommand<kPut, protocol::route::kFrameResize, protocol::FrameResizeData>;

/// Registers the routes that this component serves.
struct CRegisterComponent
{
    static bool request(const std::vector<std::string>& supportUrlList,
                        ITransport& transport = CurrentTransport());
};

/// Registers this component for all alarms.
struct CRegisterAlarm
{
    [[nodiscard]] static bool request(ITransport& transport = CurrentTransport());
};

} // namespace commlayer
