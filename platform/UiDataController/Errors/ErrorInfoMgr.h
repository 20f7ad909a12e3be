#pragma once

#include <QString>

#include <cstdint>

namespace UiDataController {

/// What to tell the user about an error. Any thread, after the translations are loaded.
class CErrorInfoMgr
{
public:
    /// A sentence in the user's language for the device SDK's error pair (QxNetSDK/Errors.h), or for the pair
    /// of an operation that was decided here: (4, 0) it succeeded, (4, 5) the device's audio encoding does
    /// not do for a broadcast. Numbers that nobody knows are shown as they are.
    static QString GetErrorInfoByCode(std::int32_t error1, std::int32_t error2);
};

} // namespace UiDataController
