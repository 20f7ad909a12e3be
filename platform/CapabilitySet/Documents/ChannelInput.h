#pragma once

#include "CapabilitySet/Documents/Fields.h"
#include "QxNetSDK/QxNetSDK.h"

namespace CapabilitySet {

/// One of the streams that a channel's camera is encoded to.
struct StreamInput
{
    static constexpr const char* kElement = "stream";

    std::uint32_t number = 0; ///< 0: main, 1: sub, 2 and above: further ones
    Options encodings;
    Options resolutions;
    Options frameRates;                ///< a second; a fraction such as "1/4" below 1
    std::optional<Range> bitRateKbits; ///< thousands of bits a second

    static constexpr auto Fields()
    {
        return std::make_tuple(Element("number", &StreamInput::number, 15),
                               Element("encodings", &StreamInput::encodings, 255),
                               Element("resolutions", &StreamInput::resolutions, 255),
                               Element("frameRates", &StreamInput::frameRates, 255),
                               Element("bitRateKbits", &StreamInput::bitRateKbits));
    }
};

/// What a channel takes in.
struct ChannelInput
{
    static constexpr std::uint32_t kKind = QXNET_ABILITY_CHANNEL_INPUT;
    static constexpr const char* kRoot = "channelInputAbility";

    std::vector<StreamInput> streams;
    bool virtualStream = false; ///< one that the device makes when somebody watches
    bool audio = false;
    bool panTiltZoom = false;
    bool wiper = false;
    std::uint32_t privacyMasks = 0;

    static constexpr auto Fields()
    {
        return std::make_tuple(
            Element("streams", &ChannelInput::streams, 16),
            Element("virtualStream", &ChannelInput::virtualStream), Element("audio", &ChannelInput::audio),
            Element("panTiltZoom", &ChannelInput::panTiltZoom), Element("wiper", &ChannelInput::wiper),
            Element("privacyMasks", &ChannelInput::privacyMasks, 64));
    }
};

} // namespace CapabilitySet
