#pragma once

#include <cstdint>
#include <string>

namespace vantor {

/// Hears of changes of settings that other views follow at once, on the notification loop.
class IVideoSystemConfigObserver
{
public:
    struct Param
    {
        /// 0: DisplayScale; 1: EnableToolBar; 2: ClockedPreviewToolBar or ShowRecordAndAlarmState.
        std::int32_t type;
    };

    virtual ~IVideoSystemConfigObserver() = default;
    virtual void OnVideoSystemConfigChanged(const Param& param) = 0;
};

/// The component's one owner of the video settings; what each number means is told at the list of its fields,
/// VideoSystemConfigStruct. Any thread; getters give the working record, which an edit that is not yet
/// applied may have changed.
class IVideoSystemConfig
{
public:
    virtual ~IVideoSystemConfig() = default;

    virtual std::int32_t DisplayScale() const = 0;
    virtual std::int32_t InstantPlaybackTime() const = 0;
    /// Stream of the instant playback: 0 main, 1 sub. Of this run only; in no table.
    virtual std::int32_t InstantPlaybackStreamType() const = 0;
    virtual std::int32_t PlayPerformance() const = 0;
    virtual bool EnableToolBar() const = 0;
    virtual bool ClockedPreviewToolBar() const = 0;
    virtual std::int32_t PlaybackPriority() const = 0;
    virtual bool EnableResumePreview() const = 0;
    virtual bool EnableAutoChangeStreamType() const = 0;
    virtual std::int32_t SnapshotPicType() const = 0;
    virtual std::int32_t VideoFileFormat() const = 0;
    virtual bool EnableHighlightShow() const = 0;
    virtual bool EnableATMOSD() const = 0;
    virtual bool EnableRuleShow() const = 0;
    virtual bool EnableTargetPattern() const = 0;
    virtual bool EnableRenderingEffect() const = 0;
    virtual bool EnableDisconnectMultiStreams() const = 0;
    virtual std::int32_t PlaybackDefaultStreamType() const = 0;
    virtual bool EnableWheelControlZoom() const = 0;
    virtual bool OnlyPlayVCAInVCAPlayBack() const = 0;
    virtual bool IsHardDecodeOn() const = 0;
    virtual std::int32_t EnableHardDecode() const = 0;
    virtual bool EnablePlayBackFrameExtraction() const = 0;
    virtual std::int32_t DownloadFileMode() const = 0;
    virtual std::int32_t SearchFileCameraMode() const = 0;
    virtual std::int32_t SearchCloudP2PRecordFileMode() const = 0;
    virtual std::int32_t StreamOffset() const = 0;
    virtual bool IsDenoiseOn() const = 0;
    virtual std::int32_t EnableDenoise() const = 0;
    virtual bool ShowRecordAndAlarmState() const = 0;
    virtual std::string VideoSaveFolder() const = 0;   ///< UTF-8
    virtual std::string CaptureSaveFolder() const = 0; ///< UTF-8
    virtual std::string ReservedText() const = 0;      ///< always empty

    /// Takes a folder of 1 to 260 bytes of UTF-8 and keeps it; any other is ignored. No observer is told.
    virtual void SetVideoSaveFolder(const std::string& folder) = 0;

    /// Changes the format, and saves when that changed anything.
    virtual void SetVideoFileFormat(std::int32_t format) = 0;

    /// False for null, else true. Any thread; see Base/ObserverRegistry.h.
    virtual bool AddObserver(IVideoSystemConfigObserver* observer) = 0;
    virtual bool RemoveObserver(IVideoSystemConfigObserver* observer) = 0;
    /// The same without a look at the pointer: always true.
    virtual bool RemoveObserverUnchecked(IVideoSystemConfigObserver* observer) = 0;
};

} // namespace vantor
