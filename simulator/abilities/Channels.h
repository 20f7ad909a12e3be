#pragma once

#include "CapabilitySet/Documents/Abilities.h"

/// What the channels of simulated devices can do.
namespace simulator::abilities {

/// The kinds of channel that there are.
enum class Source {
    Encoder, ///< a simple camera
    Analog,  ///< an analog camera at a recorder
    Network, ///< a network camera at a recorder
};

CapabilitySet::ChannelInput InputOf(Source source);
CapabilitySet::RecordOptions RecordingOf(Source source);
CapabilitySet::CaptureOptions CapturesOf(Source source);
CapabilitySet::DetectionOptions DetectionsOf(Source source);

} // namespace simulator::abilities
