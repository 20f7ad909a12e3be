#include "CapabilitySet/CapabilitySet.h"

#include "CapabilitySet/SdkQuestion.h"

namespace CapabilitySet {

namespace {

thread_local AbilityError lastError;

CAbilityCache& Cache()
{
    static CAbilityCache cache(AskSdk);
    return cache;
}

} // namespace

bool ChannelInputAbility::GetChannelInputAbility(std::int32_t login, std::int32_t channel,
                                                 ChannelInput& result)
{
    return Cache().Get(login, channel, result, lastError);
}

bool BasicCapability::GetBasicCapability(std::int32_t login, std::int32_t channel, BasicFeatures& result)
{
    return Cache().Get(login, channel, result, lastError);
}

bool RecordAbility::GetRecordAbility(std::int32_t login, std::int32_t channel, RecordOptions& result)
{
    return Cache().Get(login, channel, result, lastError);
}

bool JpegCaptureAbility::GetJpegCaptureAbility(std::int32_t login, std::int32_t channel,
                                               CaptureOptions& result)
{
    return Cache().Get(login, channel, result, lastError);
}

bool VcaAbility::GetVcaAbility(std::int32_t login, std::int32_t channel, DetectionOptions& result)
{
    return Cache().Get(login, channel, result, lastError);
}

AbilityError LastError()
{
    return lastError;
}

void Forget(std::int32_t login)
{
    Cache().Forget(login);
}

} // namespace CapabilitySet
