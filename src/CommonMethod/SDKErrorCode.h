#pragma once

namespace comm_method {

/// The calling thread's error pair of the device SDK: error is one of QxNetSDK/Errors.h, moduleError what
/// lies behind it. Call it on the thread of the failed call, before its next call of the SDK. With log on,
/// two lines at info level tell the pair and the device's own number, which the pair has no place for.
void getLastSDKError(int& error, int& moduleError, bool log);

} // namespace comm_method
