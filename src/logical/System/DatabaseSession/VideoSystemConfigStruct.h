#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <tuple>

namespace video {

struct VideoSystemConfigStruct;

/// The values from least to greatest, both included.
struct ValueSpan
{
    std::int32_t least;
    std::int32_t greatest;
};

/// What a change of a field does beyond being saved.
enum class OnChange {
    Silent = -1,  ///< nobody is told at once
    Type0 = 0,    ///< observers hear of type 0
    Type1 = 1,    ///< ... of type 1
    Type2 = 2,    ///< ... of type 2
    Ignored = -2, ///< counts as no change
};

/// A field of the settings record. M is bool for a flag, std::int32_t for a number.
template<typename M>
struct SettingField
{
    const char* name; ///< of the table's column, and in JSON
    M VideoSystemConfigStruct::*member;
    M byDefault;                   ///< while the table is empty
    std::array<ValueSpan, 3> take; ///< what may be set, in ascending order; spans may repeat
    OnChange onChange;

    constexpr bool Takes(std::int64_t value) const
    {
        for (const ValueSpan& span : take)
            if (value >= span.least && value <= span.greatest)
                return true;
        return false;
    }
};

/// The video settings: a row of the table VideoSystemConfigTable, and three members that are in no table. The
/// members are declared in the order of the table's columns and described by one list, Fields, from which
/// loading, saving, comparing, the defaults and JSON follow.
///
/// A row is taken as it stands: numbers outside what may be set are kept, so that whoever reads one guards
/// against those that it does not know.
struct VideoSystemConfigStruct
{
    std::int32_t DisplayScale;
    std::int32_t InstantPlaybackTime;
    std::int32_t PlayPerformance;
    bool EnableToolBar;
    std::int32_t PlaybackPriority;
    bool EnableResumePreview;
    bool EnableAutoChangeStreamType;
    std::int32_t SnapshotPicType;
    bool EnableHighlightShow;
    bool EnableATMOSD;
    bool EnableRuleShow;
    bool EnableDisconnectMultiStreams;
    std::int32_t PlaybackDefaultStreamType;
    bool EnableWheelControlZoom;
    bool OnlyPlayVCAInVCAPlayBack;
    std::int32_t EnableHardDecode;
    std::int32_t DownloadFileMode;
    std::int32_t StreamOffset;
    std::int32_t SearchFileCameraMode;
    bool EnablePlayBackFrameExtraction;
    bool EnableTransactionInfor;
    bool EnableTargetPattern;
    bool EnableRenderingEffect;
    std::int32_t VideoFileFormat;
    std::int32_t EnableDenoise;
    bool ClockedPreviewToolBar;
    bool ShowRecordAndAlarmState;
    std::int32_t SearchCloudP2PRecordFileMode;

    std::string videoSaveFolder;                ///< UTF-8
    std::string captureSaveFolder;              ///< UTF-8
    std::int32_t InstantPlaybackStreamType = 0; ///< of this run; 0: main stream, 1: sub-stream

    /// All fields have their defaults; the folders are empty.
    VideoSystemConfigStruct();

    static constexpr auto Fields();
};

namespace details {

constexpr SettingField<bool> Flag(const char* name, bool VideoSystemConfigStruct::*member, bool byDefault,
                                  OnChange onChange = OnChange::Silent)
{
    return {name, member, byDefault, {{{0, 1}, {0, 1}, {0, 1}}}, onChange};
}

constexpr SettingField<std::int32_t> Number(const char* name, std::int32_t VideoSystemConfigStruct::*member,
                                            std::int32_t byDefault, ValueSpan span,
                                            OnChange onChange = OnChange::Silent)
{
    return {name, member, byDefault, {{span, span, span}}, onChange};
}

} // namespace details

constexpr auto VideoSystemConfigStruct::Fields()
{
    using T = VideoSystemConfigStruct;
    using details::Flag;
    using details::Number;
    return std::make_tuple(
        // Proportions of a picture: 0 those of its window, 1 4:3, 2 16:9, 3 its own.
        Number("DisplayScale", &T::DisplayScale, 0, {0, 3}, OnChange::Type0),
        // How far back instant playback begins, in seconds.
        Number("InstantPlaybackTime", &T::InstantPlaybackTime, 180, {1, 3600}),
        // Frames kept before they are shown: 1 shortest delay, 6 balanced, 15 fluent, 7 to 45 the user's own;
        // 100 lets the player choose.
        SettingField<std::int32_t>{
            "PlayPerformance", &T::PlayPerformance, 6, {{{1, 1}, {6, 45}, {100, 100}}}, OnChange::Silent},
        // Whether live-view windows show their toolbar.
        Flag("EnableToolBar", &T::EnableToolBar, true, OnChange::Type1),
        // Where recordings are looked for first: 0 the device, 1 the storage server.
        Number("PlaybackPriority", &T::PlaybackPriority, 1, {0, 1}),
        // Whether the live views of the last run are opened again.
        Flag("EnableResumePreview", &T::EnableResumePreview, true),
        // Whether small windows take the sub-stream by themselves.
        Flag("EnableAutoChangeStreamType", &T::EnableAutoChangeStreamType, false),
        // Captured pictures: 0 JPEG, 1 BMP, which alone can carry overlaid rules.
        Number("SnapshotPicType", &T::SnapshotPicType, 1, {0, 1}),
        // Whether the picture of a highlighted target is framed.
        Flag("EnableHighlightShow", &T::EnableHighlightShow, false),
        // Whether transactions of cash machines are shown over the picture.
        Flag("EnableATMOSD", &T::EnableATMOSD, true),
        // Whether the rules of video analysis are drawn into the picture.
        Flag("EnableRuleShow", &T::EnableRuleShow, true),
        // Whether the streams of hidden windows are given up.
        Flag("EnableDisconnectMultiStreams", &T::EnableDisconnectMultiStreams, false),
        // Stream with which playback begins: 0 main, 1 sub.
        Number("PlaybackDefaultStreamType", &T::PlaybackDefaultStreamType, 0, {0, 1}),
        // Whether the mouse wheel zooms the picture.
        Flag("EnableWheelControlZoom", &T::EnableWheelControlZoom, false),
        // Whether playback of video analysis leaves out everything else.
        Flag("OnlyPlayVCAInVCAPlayBack", &T::OnlyPlayVCAInVCAPlayBack, false),
        // Decoding by the graphics processor: 0 off, 1 Direct3D 9, 2 Direct3D 11; any but 0 is on.
        Number("EnableHardDecode", &T::EnableHardDecode, 0, {0, 2}),
        // Downloads: 0 a file for each recording, 1 joined to one file.
        Number("DownloadFileMode", &T::DownloadFileMode, 0, {0, 1}),
        // How long before an event its playback begins, in seconds.
        Number("StreamOffset", &T::StreamOffset, 0, {0, 600}),
        // Search for recordings: 0 of all chosen cameras together, 1 of one camera at a time.
        Number("SearchFileCameraMode", &T::SearchFileCameraMode, 0, {0, 1}),
        // Whether fast playback leaves out frames.
        Flag("EnablePlayBackFrameExtraction", &T::EnablePlayBackFrameExtraction, true),
        // Whether transactions are listed beside the picture. Alone it counts as no change.
        Flag("EnableTransactionInfor", &T::EnableTransactionInfor, false, OnChange::Ignored),
        // Whether the way of a target is drawn.
        Flag("EnableTargetPattern", &T::EnableTargetPattern, false),
        // Whether rules, or temperatures, are drawn into captured pictures.
        Flag("EnableRenderingEffect", &T::EnableRenderingEffect, false),
        // Files of recorded clips: 0 MP4, 1 AVI.
        Number("VideoFileFormat", &T::VideoFileFormat, 0, {0, 1}),
        // Noise reduction: 0 off, 1 by itself, 2 always; any but 0 is on.
        Number("EnableDenoise", &T::EnableDenoise, 1, {0, 2}),
        // Whether the toolbar of live-view windows stays in view.
        Flag("ClockedPreviewToolBar", &T::ClockedPreviewToolBar, false, OnChange::Type2),
        // Whether live-view windows show what is recorded and what gives an alarm.
        Flag("ShowRecordAndAlarmState", &T::ShowRecordAndAlarmState, true, OnChange::Type2),
        // Search in the cloud: 0 of all chosen cameras together, 1 of one camera at a time.
        Number("SearchCloudP2PRecordFileMode", &T::SearchCloudP2PRecordFileMode, 0, {0, 1}));
}

/// Calls visit with each field of the settings record, in the order of the table's columns.
template<typename Visitor>
void ForEachSetting(Visitor&& visit)
{
    std::apply([&](const auto&... field) { (visit(field), ...); }, VideoSystemConfigStruct::Fields());
}

inline VideoSystemConfigStruct::VideoSystemConfigStruct()
{
    ForEachSetting([this](const auto& field) { this->*field.member = field.byDefault; });
}

/// Whether there is nothing to write or to announce: the stored fields but EnableTransactionInfor are equal.
inline bool SameSettings(const VideoSystemConfigStruct& left, const VideoSystemConfigStruct& right)
{
    bool same = true;
    ForEachSetting([&](const auto& field) {
        same = same && (field.onChange == OnChange::Ignored || left.*field.member == right.*field.member);
    });
    return same;
}

} // namespace video
