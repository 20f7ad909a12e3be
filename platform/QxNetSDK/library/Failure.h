#pragma once

#include "QxNetSDK/Errors.h"

#include <cstdint>

/// What lies behind the C interface of the device SDK. Nothing here logs: callers do, with the error pair.
namespace sdk {

/// Why a call failed: the numbers of QxNetSDK/Errors.h. A code of 0 is success, so that
/// `if (const Failure failure = Step()) return failure;` reads as it should.
struct [[nodiscard]] Failure
{
    std::uint32_t code = QXNET_ERROR_NONE;
    std::uint32_t module = 0;
    std::uint32_t own = 0;

    explicit operator bool() const { return code != QXNET_ERROR_NONE; }
};

} // namespace sdk
