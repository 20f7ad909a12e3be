#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <cstdint>
#include <optional>
#include <string>

/// Messages about the voice broadcast.
namespace protocol {

enum class BroadCastOperation { Close, State };

constexpr std::array<EnumText<BroadCastOperation>, 2> JSONEnum(BroadCastOperation)
{
    return {{{BroadCastOperation::Close, "closeBroadCast"}, {BroadCastOperation::State, "broadCastState"}}};
}

/// Asks to end a device's broadcast, or for its state.
struct BroadCastNotify : CMessage<BroadCastNotify, IInboundData>
{
    static constexpr const char* kKey = "broadCastNotify";
    BroadCastOperation operation = BroadCastOperation::Close;
    std::string guid; ///< of the device

    static constexpr auto Fields()
    {
        return std::make_tuple(Must("operation", &BroadCastNotify::operation),
                               Must("guid", &BroadCastNotify::guid));
    }
};

struct BroadCastNotifyResult : CMessage<BroadCastNotifyResult, IInboundData>
{
    static constexpr const char* kKey = "broadCastNotifyResult";
    std::int32_t result = 0;           ///< 0: done
    std::optional<std::int32_t> state; ///< the device's state, where it was asked for

    static constexpr auto Fields()
    {
        using T = BroadCastNotifyResult;
        return std::make_tuple(Must("result", &T::result), May("state", &T::state));
    }
};

} // namespace protocol
