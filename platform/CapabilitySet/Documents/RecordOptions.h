#pragma once

#include "CapabilitySet/Documents/Fields.h"
#include "QxNetSDK/QxNetSDK.h"

namespace CapabilitySet {

/// Segments that a day of a device's schedule has room for.
constexpr std::uint32_t kMostSegmentsPerDay = 8;

/// How a channel can be recorded at its device.
struct RecordOptions
{
    static constexpr std::uint32_t kKind = QXNET_ABILITY_RECORD;
    static constexpr const char* kRoot = "recordAbility";

    Options recordTypes;             ///< what starts recording, as the SDK's QXNET_ON_...
    Options preRecordTime;           ///< "0-disable", "1-5s", ..., "7-0xffffffff": as much as there is
    Options postRecordTime;          ///< "0-5s", ..., "3-1min", ...
    Options streamType;              ///< "0-mainstream", "1-substream", "2-main_and_sub", ...
    std::optional<Range> expiryDays; ///< 0 among them: kept until the disk is full
    bool redundantRecord = false;
    bool recordAudio = false;
    bool holidayRecord = false;
    std::uint32_t segmentsPerDay = kMostSegmentsPerDay;

    static constexpr auto Fields()
    {
        return std::make_tuple(
            Element("recordTypes", &RecordOptions::recordTypes, 255),
            Element("preRecordTime", &RecordOptions::preRecordTime),
            Element("postRecordTime", &RecordOptions::postRecordTime),
            Element("streamType", &RecordOptions::streamType, 255),
            Element("expiryDays", &RecordOptions::expiryDays),
            Element("redundantRecord", &RecordOptions::redundantRecord),
            Element("recordAudio", &RecordOptions::recordAudio),
            Element("holidayRecord", &RecordOptions::holidayRecord),
            Element("segmentsPerDay", &RecordOptions::segmentsPerDay, kMostSegmentsPerDay));
    }
};

} // namespace CapabilitySet
