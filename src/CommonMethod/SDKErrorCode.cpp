#include "CommonMethod/SDKErrorCode.h"

#include "Base/Log.h"
#include "QxNetSDK/QxNetSDK.h"

namespace comm_method {

void getLastSDKError(int& error, int& moduleError, bool log)
{
    uint32_t own = 0;
    error = static_cast<int>(NET_DVR_GetLastError());
    moduleError = static_cast<int>(NET_DVR_GetLastErrorModelCode(&own));
    if (!log)
        return;
    BASE_INFO("NET_DVR_GetLastError: [%d]", error);
    BASE_INFO("NET_DVR_GetLastErrorModelCode, ErrModelCode:[0x%x], MErrDevSelfEx:[0x%x].",
              static_cast<unsigned>(moduleError), own);
}

} // namespace comm_method
