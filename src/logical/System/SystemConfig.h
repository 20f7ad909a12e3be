#pragma once

#include "Base/Noncopyable.h"
#include "Base/ObserverRegistry.h"
#include "VideoInterfaces/ILocalDataPath.h"
#include "VideoInterfaces/IVideoSystemConfig.h"
#include "logical/System/DatabaseSession/VideoSystemConfigSession.h"

#include <functional>
#include <mutex>
#include <string>
#include <type_traits>

namespace video {

/// The component's one owner of the video settings. Any thread.
///
/// Setters save at once, and only what differs from the saved record; a page that changes several fields
/// opens a CSystemConfigEdit, a route uses SetTogether. A save writes the row, and then announces the change;
/// observers hear of it on the notification loop. A database error has its line in the log and is not tried
/// again.
///
/// No lock is held while somebody is told; the one that getters take is not held while the row is written
/// either.
class CSystemConfig : public vantor::IVideoSystemConfig, Base::CNoncopyable
{
public:
    using Record = VideoSystemConfigStruct;

    /// The longest save folder, in bytes of UTF-8.
    static constexpr std::size_t kFolderBytes = 260;

    /// Everything must outlive the object; notifications is the loop on which observers are called. announce
    /// tells the framework that settings changed; it is called by the thread that changed them, so by several
    /// at once.
    CSystemConfig(CBaseDBConn& connection, vantor::ILocalDataPath& path, Base::CMessageLoop& notifications,
                  vantor::SaveFolders defaults, std::function<void()> announce);

    /// At start-up, before anybody else uses the object: takes the settings from the table and the folders
    /// from the path holder.
    void Load();

    /// The working record.
    Record Settings() const;

    /// Changes a field, and saves when the settings differ from the saved ones.
    template<typename M>
    void Set(M Record::*member, M value)
    {
        static_assert(std::is_integral_v<M>, "folders have setters of their own");
        if (!Holds(member, value) && ChangeAndSave(kSetter, [&](Record& record) { record.*member = value; }))
            m_announce();
    }

    /// Makes several changes at once, saves once, and announces once when anything differed. Observers hear
    /// of every type that the changes have. change is called twice, under a lock, and only assigns; folders
    /// must have 1 to kFolderBytes bytes.
    void SetTogether(const std::function<void(Record&)>& change);

    /// The toolbar's own switches: patch the saved row, tell the observers and announce.
    void SetEnableToolBar(bool on);
    void SetClockedPreviewToolBar(bool on);

    /// As SetVideoSaveFolder.
    void SetCaptureSaveFolder(const std::string& folder);

    /// Everything, the folders included, to the defaults; always saves and announces.
    void RestoreDefaults();
    /// What the image page shows, to that page's defaults, of which some differ from those of the record. No
    /// observer is told and nothing is announced, until the next change that is saved.
    void RestoreImageDefaults();
    /// What the playback and file pages show, in the same way; nothing is announced.
    void RestorePlaybackAndFileDefaults();

    std::int32_t DisplayScale() const override { return Get(&Record::DisplayScale); }
    std::int32_t InstantPlaybackTime() const override { return Get(&Record::InstantPlaybackTime); }
    std::int32_t InstantPlaybackStreamType() const override
    {
        return Get(&Record::InstantPlaybackStreamType);
    }
    std::int32_t PlayPerformance() const override { return Get(&Record::PlayPerformance); }
    bool EnableToolBar() const override { return Get(&Record::EnableToolBar); }
    bool ClockedPreviewToolBar() const override { return Get(&Record::ClockedPreviewToolBar); }
    std::int32_t PlaybackPriority() const override { return Get(&Record::PlaybackPriority); }
    bool EnableResumePreview() const override { return Get(&Record::EnableResumePreview); }
    bool EnableAutoChangeStreamType() const override { return Get(&Record::EnableAutoChangeStreamType); }
    std::int32_t SnapshotPicType() const override { return Get(&Record::SnapshotPicType); }
    std::int32_t VideoFileFormat() const override { return Get(&Record::VideoFileFormat); }
    bool EnableHighlightShow() const override { return Get(&Record::EnableHighlightShow); }
    bool EnableATMOSD() const override { return Get(&Record::EnableATMOSD); }
    bool EnableRuleShow() const override { return Get(&Record::EnableRuleShow); }
    bool EnableTargetPattern() const override { return Get(&Record::EnableTargetPattern); }
    bool EnableRenderingEffect() const override { return Get(&Record::EnableRenderingEffect); }
    bool EnableDisconnectMultiStreams() const override { return Get(&Record::EnableDisconnectMultiStreams); }
    std::int32_t PlaybackDefaultStreamType() const override
    {
        return Get(&Record::PlaybackDefaultStreamType);
    }
    bool EnableWheelControlZoom() const override { return Get(&Record::EnableWheelControlZoom); }
    bool OnlyPlayVCAInVCAPlayBack() const override { return Get(&Record::OnlyPlayVCAInVCAPlayBack); }
    bool IsHardDecodeOn() const override { return EnableHardDecode() != 0; }
    std::int32_t EnableHardDecode() const override { return Get(&Record::EnableHardDecode); }
    bool EnablePlayBackFrameExtraction() const override
    {
        return Get(&Record::EnablePlayBackFrameExtraction);
    }
    std::int32_t DownloadFileMode() const override { return Get(&Record::DownloadFileMode); }
    std::int32_t SearchFileCameraMode() const override { return Get(&Record::SearchFileCameraMode); }
    std::int32_t SearchCloudP2PRecordFileMode() const override
    {
        return Get(&Record::SearchCloudP2PRecordFileMode);
    }
    std::int32_t StreamOffset() const override { return Get(&Record::StreamOffset); }
    bool IsDenoiseOn() const override { return EnableDenoise() != 0; }
    std::int32_t EnableDenoise() const override { return Get(&Record::EnableDenoise); }
    bool ShowRecordAndAlarmState() const override { return Get(&Record::ShowRecordAndAlarmState); }
    std::string VideoSaveFolder() const override { return Get(&Record::videoSaveFolder); }
    std::string CaptureSaveFolder() const override { return Get(&Record::captureSaveFolder); }
    std::string ReservedText() const override { return {}; }

    void SetVideoSaveFolder(const std::string& folder) override;
    void SetVideoFileFormat(std::int32_t format) override { Set(&Record::VideoFileFormat, format); }

    bool AddObserver(vantor::IVideoSystemConfigObserver* observer) override
    {
        return m_observers.Add(observer);
    }
    bool RemoveObserver(vantor::IVideoSystemConfigObserver* observer) override
    {
        return m_observers.Remove(observer);
    }
    bool RemoveObserverUnchecked(vantor::IVideoSystemConfigObserver* observer) override
    {
        return m_observers.RemoveUnchecked(observer);
    }

private:
    friend class CSystemConfigEdit;

    enum class Tell { Nobody, Type0, AllTypes };

    /// How a kind of change is saved.
    struct SaveRule
    {
        Tell tell;      ///< who hears of what differs from the saved record, before the row is written
        bool always;    ///< also when nothing differs
        bool bracketed; ///< in a transaction that takes everything back when a part fails
        bool kept;      ///< whether the record counts as saved afterwards
    };
    static constexpr SaveRule kSetter{Tell::Type0, false, true, true};
    static constexpr SaveRule kApply{Tell::AllTypes, true, false, true};
    static constexpr SaveRule kImagePage{Tell::Nobody, true, false, false};
    static constexpr SaveRule kPlaybackAndFilePages{Tell::Nobody, true, false, true};

    using SwitchStatement = bool (VideoSystemConfigSession::*)(int);

    template<typename M>
    M Get(M Record::*member) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_working.*member;
    }

    /// Whether setting the field would change nothing, and nothing is left to save.
    template<typename M>
    bool Holds(M Record::*member, M value) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_working.*member == value && m_settled.*member == value && SameSettings(m_settled, m_saved);
    }

    template<typename M>
    void Draft(M Record::*member, M value)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_working.*member = value;
    }
    void ApplyDraft();
    void DiscardDraft();

    void ChangeAll(const std::function<void(Record&)>& change);
    bool ChangeAndSave(const SaveRule& rule, const std::function<void(Record&)>& change);
    /// The caller holds m_saveMutex. Whether the settings differed.
    bool SaveInTurn(const SaveRule& rule);
    bool WriteRow(const Record& record, bool bracketed);
    void PostDifferences(const Record& record, const Record& saved, Tell tell);
    void Switch(bool Record::*member, bool on, SwitchStatement statement, std::int32_t type);
    void SetFolder(std::string Record::*member, const std::string& folder);
    void HandFolders();

    vantor::ILocalDataPath& m_path;
    const vantor::SaveFolders m_defaultFolders;
    const std::function<void()> m_announce;

    std::mutex m_saveMutex; ///< savers, one after the other; taken before m_mutex
    VideoSystemConfigSession m_session;
    bool m_hasRow = false; ///< whether the table has one that can be patched

    mutable std::mutex m_mutex; ///< of what follows
    Record m_working;
    Record m_settled; ///< the working record without edits that are not applied yet
    Record m_saved;   ///< what the table holds

    Base::CPostedObservers<vantor::IVideoSystemConfigObserver,
                           &vantor::IVideoSystemConfigObserver::OnVideoSystemConfigChanged>
        m_observers;
};

/// An edit of several settings, as the pages make it: the setters change the working record alone, so that
/// getters give the new values, and Apply ends the edit. Without it the working record becomes what it was.
/// One edit at a time; GUI thread. What other threads set meanwhile is saved by itself, and stays.
class CSystemConfigEdit : Base::CNoncopyable
{
public:
    explicit CSystemConfigEdit(CSystemConfig& config) : m_config(config) {}
    ~CSystemConfigEdit()
    {
        if (!m_applied)
            m_config.DiscardDraft();
    }

    template<typename M>
    void Set(M VideoSystemConfigStruct::*member, M value)
    {
        static_assert(std::is_integral_v<M>, "folders are no part of an edit");
        m_config.Draft(member, value);
    }

    /// Tells the observers what differs from the saved record, saves always, and announces once when
    /// anything differed.
    void Apply()
    {
        m_applied = true;
        m_config.ApplyDraft();
    }

private:
    CSystemConfig& m_config;
    bool m_applied = false;
};

} // namespace video
