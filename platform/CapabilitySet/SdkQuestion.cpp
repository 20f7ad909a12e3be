#include "CapabilitySet/SdkQuestion.h"

#include "Base/Log.h"
#include "CapabilitySet/Documents/Document.h"

#include <algorithm>

namespace CapabilitySet {

namespace {

/// More than any document of the usual kind, so that a second exchange is rare.
constexpr std::uint32_t kUsualBytes = 32 * 1024;
/// The document may have grown between two exchanges.
constexpr int kTries = 3;

bool Fill(std::int32_t login, std::uint32_t kind, std::int32_t channel, std::string& document,
          std::uint32_t& length)
{
    if (!QxNet_GetAbility(login, kind, channel, document.data(), static_cast<std::uint32_t>(document.size()),
                          &length))
        return false;
    document.resize(std::min<std::size_t>(length, document.size()));
    return true;
}

} // namespace

bool AskSdk(std::int32_t login, std::uint32_t kind, std::int32_t channel, std::string& document,
            AbilityError& error)
{
    std::uint32_t length = kUsualBytes - 1;
    for (int attempt = 0; attempt < kTries && length <= kMostDocumentBytes; ++attempt) {
        document.assign(length + 1, '\0');
        if (Fill(login, kind, channel, document, length))
            return true;
        error = {NET_DVR_GetLastError(), NET_DVR_GetLastErrorModelCode(nullptr)};
        if (error.error != QXNET_ERROR_BUFFER_TOO_SMALL)
            break;
    }
    document.clear();
    BASE_ERROR("QxNet_GetAbility failed, [%d]-[%d].", static_cast<int>(error.error),
               static_cast<int>(error.moduleError));
    return false;
}

} // namespace CapabilitySet
