#pragma once

#include "CapabilitySet/Documents/RecordOptions.h"

namespace CapabilitySet {

/// Options of the pictures that are taken by time, or of those that an event causes.
struct PictureOptions
{
    Options resolutions;                  ///< such as "0-CIF", "2-4CIF"
    Options imageQualities;               ///< the best one first
    std::optional<Range> intervalSeconds; ///< between two pictures
    std::optional<Range> count;           ///< pictures an event causes

    static constexpr auto Fields()
    {
        return std::make_tuple(Element("resolutions", &PictureOptions::resolutions, 255),
                               Element("imageQualities", &PictureOptions::imageQualities, 255),
                               Element("intervalSeconds", &PictureOptions::intervalSeconds),
                               Element("count", &PictureOptions::count));
    }
};

/// How a channel's device takes pictures by a schedule.
struct CaptureOptions
{
    static constexpr std::uint32_t kKind = QXNET_ABILITY_JPEG_CAPTURE;
    static constexpr const char* kRoot = "jpegCaptureAbility";

    Options captureTypes;                     ///< what causes a picture, as the SDK's QXNET_ON_...
    std::optional<PictureOptions> continuous; ///< none: it takes no pictures by time
    std::optional<PictureOptions> event;      ///< none: it takes no pictures at events
    bool holidayCapture = false;
    std::uint32_t segmentsPerDay = kMostSegmentsPerDay;

    static constexpr auto Fields()
    {
        return std::make_tuple(
            Element("captureTypes", &CaptureOptions::captureTypes, 255),
            Element("continuous", &CaptureOptions::continuous), Element("event", &CaptureOptions::event),
            Element("holidayCapture", &CaptureOptions::holidayCapture),
            Element("segmentsPerDay", &CaptureOptions::segmentsPerDay, kMostSegmentsPerDay));
    }
};

} // namespace CapabilitySet
