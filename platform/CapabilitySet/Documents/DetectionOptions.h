#pragma once

#include "CapabilitySet/Documents/RecordOptions.h"

namespace CapabilitySet {

/// Limits of one kind of smart detection. What is missing cannot be set for it.
struct Detection
{
    std::optional<Range> sensitivity;
    std::optional<Range> durationSeconds; ///< before it counts
    std::uint32_t regions = 0;            ///< or lines, that can be drawn
    std::uint32_t pointsPerRegion = 0;
    Options directions;
    Options targets; ///< what is looked for
    bool targetSize = false;
    Options linkages; ///< what the device does then
    std::uint32_t segmentsPerDay = kMostSegmentsPerDay;

    static constexpr auto Fields()
    {
        return std::make_tuple(
            Element("sensitivity", &Detection::sensitivity),
            Element("durationSeconds", &Detection::durationSeconds),
            Element("regions", &Detection::regions, 64),
            Element("pointsPerRegion", &Detection::pointsPerRegion, 64),
            Element("directions", &Detection::directions, 255), Element("targets", &Detection::targets, 255),
            Element("targetSize", &Detection::targetSize), Element("linkages", &Detection::linkages, 255),
            Element("segmentsPerDay", &Detection::segmentsPerDay, kMostSegmentsPerDay));
    }
};

/// The smart detections of a channel; one that is missing is not offered.
struct DetectionOptions
{
    static constexpr std::uint32_t kKind = QXNET_ABILITY_VCA;
    static constexpr const char* kRoot = "detectionAbility";

    std::optional<Detection> motion;
    std::optional<Detection> faceDetection;
    std::optional<Detection> sceneChange;
    std::optional<Detection> lineCrossing;
    std::optional<Detection> regionEntry;
    std::optional<Detection> defocus;
    std::optional<Detection> audioException;

    static constexpr auto Fields()
    {
        return std::make_tuple(Element("motion", &DetectionOptions::motion),
                               Element("faceDetection", &DetectionOptions::faceDetection),
                               Element("sceneChange", &DetectionOptions::sceneChange),
                               Element("lineCrossing", &DetectionOptions::lineCrossing),
                               Element("regionEntry", &DetectionOptions::regionEntry),
                               Element("defocus", &DetectionOptions::defocus),
                               Element("audioException", &DetectionOptions::audioException));
    }
};

} // namespace CapabilitySet
