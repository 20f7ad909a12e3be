#pragma once

#include "CapabilitySet/Documents/RecordOptions.h"

namespace CapabilitySet {

/// Limits of one kind of smart detection. What is missing cannot be set for it.
struct Detection
{
    Options kinds; ///< of a rule, as the SDK's QXNET_RULE_...
    std::optional<Range> sensitivity;
    std::optional<Range> durationSeconds; ///< before it counts
    std::uint32_t regions = 0;            ///< or lines, that can be drawn
    std::uint32_t pointsPerRegion = 0;
    Options directions;      ///< as the SDK's QXNET_CROSS_...
    bool targetSize = false; ///< least and greatest size of what counts
    Options linkages;        ///< what the device does then
    std::uint32_t segmentsPerDay = kMostSegmentsPerDay;

    static constexpr auto Fields()
    {
        return std::make_tuple(
            Element("kinds", &Detection::kinds, 255), Element("sensitivity", &Detection::sensitivity),
            Element("durationSeconds", &Detection::durationSeconds),
            Element("regions", &Detection::regions, 40),
            Element("pointsPerRegion", &Detection::pointsPerRegion, 10),
            Element("directions", &Detection::directions, 255), Element("targetSize", &Detection::targetSize),
            Element("linkages", &Detection::linkages, 255),
            Element("segmentsPerDay", &Detection::segmentsPerDay, kMostSegmentsPerDay));
    }
};

/// The smart detections of a channel; one that is missing is not offered.
struct DetectionOptions
{
    static constexpr std::uint32_t kKind = QXNET_ABILITY_VCA;
    static constexpr const char* kRoot = "detectionAbility";

    std::optional<Detection> rules; ///< those of one configuration, regions being how many there may be
    std::optional<Detection> motion;
    std::optional<Detection> faceDetection;
    std::optional<Detection> sceneChange;
    std::optional<Detection> lineCrossing;
    std::optional<Detection> regionEntry;
    std::optional<Detection> defocus;
    std::optional<Detection> audioException;

    static constexpr auto Fields()
    {
        return std::make_tuple(Element("rules", &DetectionOptions::rules),
                               Element("motion", &DetectionOptions::motion),
                               Element("faceDetection", &DetectionOptions::faceDetection),
                               Element("sceneChange", &DetectionOptions::sceneChange),
                               Element("lineCrossing", &DetectionOptions::lineCrossing),
                               Element("regionEntry", &DetectionOptions::regionEntry),
                               Element("defocus", &DetectionOptions::defocus),
                               Element("audioException", &DetectionOptions::audioException));
    }
};

} // namespace CapabilitySet
