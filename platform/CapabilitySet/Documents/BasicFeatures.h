#pragma once

#include "CapabilitySet/Documents/Fields.h"
#include "QxNetSDK/QxNetSDK.h"

namespace CapabilitySet {

/// What there is at all.
struct BasicFeatures
{
    static constexpr std::uint32_t kKind = QXNET_ABILITY_BASIC;
    static constexpr const char* kRoot = "basicAbility";

    bool extendedRecord = false; ///< record parameters as NET_DVR_RECORD_V40, else as NET_DVR_RECORD_V30
    bool scheduledCapture = false;
    bool cabac = false;
    bool storageServer = false; ///< the channel can be recorded on a storage server
    bool diskQuota = false;
    bool panTiltZoomLock = false;
    bool pirAlarm = false;
    bool callHelpAlarm = false;
    std::uint32_t wirelessAlarms = 0;
    std::uint32_t holidays = 0; ///< how many can be set up; 0: the device knows none
    std::uint32_t alarmInputs = 0;
    std::uint32_t alarmOutputs = 0;
    std::uint32_t voiceChannels = 0;
    std::uint32_t disks = 0;
    std::uint32_t users = 0; ///< accounts that can be set up

    static constexpr auto Fields()
    {
        return std::make_tuple(
            Element("extendedRecord", &BasicFeatures::extendedRecord),
            Element("scheduledCapture", &BasicFeatures::scheduledCapture),
            Element("cabac", &BasicFeatures::cabac), Element("storageServer", &BasicFeatures::storageServer),
            Element("diskQuota", &BasicFeatures::diskQuota),
            Element("panTiltZoomLock", &BasicFeatures::panTiltZoomLock),
            Element("pirAlarm", &BasicFeatures::pirAlarm),
            Element("callHelpAlarm", &BasicFeatures::callHelpAlarm),
            Element("wirelessAlarms", &BasicFeatures::wirelessAlarms, 64),
            Element("holidays", &BasicFeatures::holidays, 32),
            Element("alarmInputs", &BasicFeatures::alarmInputs, 512),
            Element("alarmOutputs", &BasicFeatures::alarmOutputs, 512),
            Element("voiceChannels", &BasicFeatures::voiceChannels, 16),
            Element("disks", &BasicFeatures::disks, 64), Element("users", &BasicFeatures::users, 1024));
    }
};

} // namespace CapabilitySet
