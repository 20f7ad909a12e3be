#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <cstdint>
#include <string>

/// Structures that many routes share.
namespace protocol {

/// The result of an action at a device or in the framework, as the device SDK's pair of error numbers.
struct ResultCode
{
    std::int32_t errorCode = 0;       ///< 0: done
    std::int32_t errorModuleCode = 0; ///< the module's own number for errorCode

    static constexpr auto Fields()
    {
        using T = ResultCode;
        return std::make_tuple(Must("errorCode", &T::errorCode), May("errorModuleCode", &T::errorModuleCode));
    }
};

/// The answer of a route that has nothing to tell but whether it worked.
struct CommonResponseData : CMessage<CommonResponseData, IInboundData>
{
    static constexpr const char* kKey = "response";
    ResultCode result;
    std::string message; ///< for people; empty when there is none

    static constexpr auto Fields()
    {
        using T = CommonResponseData;
        return std::make_tuple(Must("result", &T::result), May("message", &T::message));
    }
};

} // namespace protocol
