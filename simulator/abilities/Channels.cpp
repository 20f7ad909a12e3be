#include "simulator/abilities/Channels.h"

namespace simulator::abilities {

namespace {

using namespace CapabilitySet;

constexpr std::uint32_t kDay = 24 * 60 * 60;

const Options kFrameRates = {{0, "1/4"}, {1, "1/2"}, {2, "1"},   {3, "2"},   {4, "4"},
                             {5, "6"},   {6, "8"},   {7, "10"},  {8, "12"},  {9, "15"},
                             {10, "20"}, {11, "25"}, {12, "30"}, {13, "50"}, {14, "60"}};
const Options kSmallResolutions = {{1, "QCIF"}, {0, "CIF"}, {2, "4CIF"}};
const Options kSegmentTypes = {{0, "continuous"},  {1, "event"},     {2, "motion"},
                               {3, "alarm_input"}, {4, "detection"}, {5, "motion_and_alarm"},
                               {6, "command"}};
const Options kLinkages = {{0, "notify"}, {1, "sound"}, {2, "mail"}, {3, "record"}, {4, "output"}};

Options First(const Options& options, std::size_t count)
{
    return Options(options.begin(), options.begin() + static_cast<std::ptrdiff_t>(count));
}

StreamInput Stream(std::uint32_t number, Options encodings, Options resolutions, Range bitRate,
                   std::size_t frameRates)
{
    return {number, std::move(encodings), std::move(resolutions), First(kFrameRates, frameRates), bitRate};
}

const Options kPlainEncodings = {{0, "H.264"}, {1, "MJPEG"}};
const Options kAllEncodings = {{0, "H.264"}, {2, "H.265"}, {1, "MJPEG"}};

ChannelInput NetworkInput()
{
    ChannelInput input;
    input.streams = {
        Stream(0, kAllEncodings, {{7, "1920x1080"}, {8, "2560x1440"}, {9, "3840x2160"}}, {64, 16384}, 15),
        Stream(1, kAllEncodings, {{0, "CIF"}, {2, "4CIF"}, {6, "1280x720"}}, {32, 8192}, 13),
        Stream(2, kPlainEncodings, {{0, "CIF"}, {6, "1280x720"}, {7, "1920x1080"}}, {32, 8192}, 13),
        Stream(3, kPlainEncodings, {{0, "CIF"}, {2, "4CIF"}}, {32, 4096}, 13),
        Stream(4, kPlainEncodings, {{0, "CIF"}}, {32, 2048}, 12)};
    input.virtualStream = true;
    input.audio = true;
    input.panTiltZoom = true;
    input.wiper = true;
    input.privacyMasks = 8;
    return input;
}

ChannelInput AnalogInput()
{
    ChannelInput input;
    input.streams = {Stream(0, kPlainEncodings, {{2, "4CIF"}, {4, "WD1"}}, {32, 3072}, 12),
                     Stream(1, kPlainEncodings, {{1, "QCIF"}, {0, "CIF"}}, {32, 1024}, 12)};
    input.audio = true;
    input.privacyMasks = 4;
    return input;
}

ChannelInput EncoderInput()
{
    ChannelInput input;
    input.streams = {
        Stream(0, kPlainEncodings, {{2, "4CIF"}, {6, "1280x720"}, {7, "1920x1080"}}, {32, 8192}, 13),
        Stream(1, kPlainEncodings, kSmallResolutions, {32, 2048}, 13)};
    input.audio = true;
    input.panTiltZoom = true;
    input.privacyMasks = 4;
    return input;
}

const Options kPreRecordTimes = {{0, "disable"}, {1, "5s"},  {2, "10s"}, {3, "15s"},
                                 {4, "20s"},     {5, "25s"}, {6, "30s"}, {7, "0xffffffff"}};
const Options kPostRecordTimes = {{0, "5s"},   {1, "10s"},  {2, "30s"},  {3, "1min"},
                                  {4, "2min"}, {5, "5min"}, {6, "10min"}};
const Options kRecordStreams = {{0, "mainstream"}, {1, "substream"}, {2, "main_and_sub"}, {3, "stream3"},
                                {4, "stream4"},    {5, "stream5"},   {6, "virtualstream"}};

PictureOptions Pictures(Options resolutions, Range interval, std::optional<Range> count)
{
    return {std::move(resolutions), {{0, "best"}, {1, "better"}, {2, "normal"}}, interval, count};
}

Detection Simple(Range sensitivity)
{
    Detection detection;
    detection.sensitivity = sensitivity;
    detection.linkages = kLinkages;
    return detection;
}

Detection Drawn(Range sensitivity, std::uint32_t regions, std::uint32_t points)
{
    Detection detection = Simple(sensitivity);
    detection.regions = regions;
    detection.pointsPerRegion = points;
    return detection;
}

const Options kDirections = {{0, "both"}, {1, "to_right"}, {2, "to_left"}};

Detection Rules()
{
    Detection rules = Drawn({1, 100}, 40, 10);
    rules.kinds = {{1, "enter"}, {2, "leave"}, {3, "stay"}, {4, "left"},
                   {5, "taken"}, {6, "crowd"}, {7, "fast"}, {8, "cross"}};
    rules.directions = kDirections;
    rules.durationSeconds = Range{0, 3600};
    rules.targetSize = true;
    return rules;
}

Detection RegionEntry()
{
    Detection entry = Drawn({1, 100}, 8, 10);
    entry.durationSeconds = Range{0, 100};
    return entry;
}

DetectionOptions AllDetections()
{
    DetectionOptions options;
    options.rules = Rules();
    options.motion = Drawn({0, 100}, 24, 10);
    options.faceDetection = Drawn({1, 100}, 1, 10);
    options.sceneChange = Simple({1, 100});
    options.lineCrossing = Drawn({1, 100}, 8, 2);
    options.lineCrossing->directions = kDirections;
    options.regionEntry = RegionEntry();
    options.defocus = Simple({1, 100});
    options.audioException = Simple({1, 100});
    return options;
}

} // namespace

ChannelInput InputOf(Source source)
{
    if (source == Source::Network)
        return NetworkInput();
    return source == Source::Analog ? AnalogInput() : EncoderInput();
}

RecordOptions RecordingOf(Source source)
{
    const bool encoder = source == Source::Encoder;
    RecordOptions options;
    options.recordTypes = encoder ? First(kSegmentTypes, 4) : kSegmentTypes;
    options.preRecordTime = encoder ? First(kPreRecordTimes, 7) : kPreRecordTimes;
    options.postRecordTime = kPostRecordTimes;
    if (!encoder)
        options.streamType = source == Source::Network ? kRecordStreams : First(kRecordStreams, 3);
    options.expiryDays = Range{0, encoder ? 31u : 3650u};
    options.redundantRecord = !encoder;
    options.recordAudio = true;
    options.holidayRecord = !encoder;
    return options;
}

CaptureOptions CapturesOf(Source source)
{
    const bool network = source == Source::Network;
    const Options resolutions = network ? Options{{2, "4CIF"}, {6, "720P"}, {7, "1080P"}} : kSmallResolutions;
    CaptureOptions options;
    options.captureTypes = source == Source::Encoder ? First(kSegmentTypes, 2) : First(kSegmentTypes, 5);
    options.continuous = Pictures(resolutions, {1, 7 * kDay}, std::nullopt);
    options.event = Pictures(resolutions, {1, network ? 65535u : 60u}, Range{1, network ? 120u : 5u});
    options.holidayCapture = source != Source::Encoder;
    return options;
}

DetectionOptions DetectionsOf(Source source)
{
    if (source == Source::Network)
        return AllDetections();
    DetectionOptions options;
    options.motion = Drawn({0, 100}, source == Source::Encoder ? 4 : 24, 4);
    if (source == Source::Encoder)
        options.audioException = Simple({1, 100});
    return options;
}

} // namespace simulator::abilities
