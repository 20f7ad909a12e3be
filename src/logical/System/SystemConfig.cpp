#include "logical/System/SystemConfig.h"

#include <utility>

namespace video {
namespace {

using Record = VideoSystemConfigStruct;

vantor::SaveFolders FoldersOf(const Record& record)
{
    return {record.videoSaveFolder, record.captureSaveFolder};
}

Record FreshRecord(const vantor::SaveFolders& folders)
{
    Record record;
    record.videoSaveFolder = folders.video;
    record.captureSaveFolder = folders.capture;
    return record;
}

void SetImageDefaults(Record& record)
{
    record.DisplayScale = 0;
    record.PlayPerformance = 6;
    record.EnableHardDecode = 0;
    record.EnableRuleShow = false;
    record.EnableTargetPattern = false;
    record.EnableRenderingEffect = false;
    record.EnableAutoChangeStreamType = true;
    record.EnableHighlightShow = false;
    record.EnableATMOSD = true;
    record.EnablePlayBackFrameExtraction = true;
    record.EnableDenoise = 1;
}

void SetPlaybackAndFileDefaults(Record& record)
{
    record.PlaybackPriority = 1;
    record.SnapshotPicType = 0;
    record.VideoFileFormat = 0;
    record.DownloadFileMode = 0;
    record.SearchFileCameraMode = 0;
    record.SearchCloudP2PRecordFileMode = 0;
    record.StreamOffset = 0;
    record.EnableDisconnectMultiStreams = false;
    record.EnableWheelControlZoom = false;
    record.OnlyPlayVCAInVCAPlayBack = false;
    record.EnableResumePreview = true;
}

} // namespace

CSystemConfig::CSystemConfig(CBaseDBConn& connection, vantor::ILocalDataPath& path,
                             Base::CMessageLoop& notifications, vantor::SaveFolders defaults,
                             std::function<void()> announce)
    : m_path(path), m_defaultFolders(std::move(defaults)), m_announce(std::move(announce)),
      m_session(connection), m_working(FreshRecord(m_defaultFolders)), m_settled(m_working),
      m_saved(m_working), m_observers(notifications)
{}

void CSystemConfig::Load()
{
    const std::lock_guard<std::mutex> saving(m_saveMutex);
    Record record = FreshRecord(m_path.Folders());
    m_hasRow = m_session.Load(record);
    m_path.SetFolders(FoldersOf(record));
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_working = m_settled = m_saved = std::move(record);
}

Record CSystemConfig::Settings() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_working;
}

void CSystemConfig::SetTogether(const std::function<void(Record&)>& change)
{
    bool moved = false;
    const bool differed = ChangeAndSave(kApply, [&](Record& record) {
        const vantor::SaveFolders before = FoldersOf(record);
        change(record);
        moved = moved || before.video != record.videoSaveFolder || before.capture != record.captureSaveFolder;
    });
    if (moved)
        HandFolders();
    if (differed || moved)
        m_announce();
}

void CSystemConfig::SetEnableToolBar(bool on)
{
    Switch(&Record::EnableToolBar, on, &VideoSystemConfigSession::SetEnableToolBar, 1);
}

void CSystemConfig::SetClockedPreviewToolBar(bool on)
{
    Switch(&Record::ClockedPreviewToolBar, on, &VideoSystemConfigSession::SetClockedPreviewToolBar, 2);
}

void CSystemConfig::SetVideoSaveFolder(const std::string& folder)
{
    SetFolder(&Record::videoSaveFolder, folder);
}

void CSystemConfig::SetCaptureSaveFolder(const std::string& folder)
{
    SetFolder(&Record::captureSaveFolder, folder);
}

void CSystemConfig::RestoreDefaults()
{
    ChangeAndSave(kApply, [&](Record& record) { record = FreshRecord(m_defaultFolders); });
    HandFolders();
    m_announce();
}

void CSystemConfig::RestoreImageDefaults()
{
    ChangeAndSave(kImagePage, SetImageDefaults);
}

void CSystemConfig::RestorePlaybackAndFileDefaults()
{
    ChangeAndSave(kPlaybackAndFilePages, SetPlaybackAndFileDefaults);
}

void CSystemConfig::ApplyDraft()
{
    bool differed = false;
    {
        const std::lock_guard<std::mutex> saving(m_saveMutex);
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_settled = m_working;
        }
        differed = SaveInTurn(kApply);
    }
    if (differed)
        m_announce();
}

void CSystemConfig::DiscardDraft()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_working = m_settled;
}

void CSystemConfig::ChangeAll(const std::function<void(Record&)>& change)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    change(m_working);
    change(m_settled);
}

// In one turn, so that no other saver comes between, who would save the change under its own rule and tell
// fewer observers.
bool CSystemConfig::ChangeAndSave(const SaveRule& rule, const std::function<void(Record&)>& change)
{
    const std::lock_guard<std::mutex> saving(m_saveMutex);
    ChangeAll(change);
    return SaveInTurn(rule);
}

bool CSystemConfig::SaveInTurn(const SaveRule& rule)
{
    Record record;
    Record saved;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        record = m_settled;
        saved = m_saved;
        if (!rule.always && SameSettings(record, saved))
            return false;
    }
    PostDifferences(record, saved, rule.tell);
    m_hasRow = WriteRow(record, rule.bracketed) || m_hasRow;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool differed = !SameSettings(record, saved);
    if (rule.kept)
        m_saved = std::move(record);
    return differed;
}

bool CSystemConfig::WriteRow(const Record& record, bool bracketed)
{
    if (!bracketed)
        return m_session.Save(record);
    if (!m_session.Begin())
        return false;
    m_session.Save(record);
    return m_session.Commit();
}

void CSystemConfig::PostDifferences(const Record& record, const Record& saved, Tell tell)
{
    ForEachSetting([&](const auto& field) {
        const bool told = tell == Tell::AllTypes ? field.onChange >= OnChange::Type0
                                                 : tell == Tell::Type0 && field.onChange == OnChange::Type0;
        if (told && record.*field.member != saved.*field.member)
            m_observers.Post({static_cast<std::int32_t>(field.onChange)});
    });
}

// A table without a row has nothing to patch; it gets one.
void CSystemConfig::Switch(bool Record::*member, bool on, SwitchStatement statement, std::int32_t type)
{
    {
        const std::lock_guard<std::mutex> saving(m_saveMutex);
        Record saved;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            const bool changes = m_saved.*member != on || m_settled.*member != on;
            for (Record* record : {&m_working, &m_settled, &m_saved})
                record->*member = on;
            if (!changes)
                return;
            saved = m_saved;
        }
        m_observers.Post({type});
        if (m_hasRow)
            (m_session.*statement)(on ? 1 : 0);
        else
            m_hasRow = m_session.Save(saved);
    }
    m_announce();
}

void CSystemConfig::SetFolder(std::string Record::*member, const std::string& folder)
{
    if (folder.empty() || folder.size() > kFolderBytes)
        return;
    ChangeAll([&](Record& record) { record.*member = folder; });
    HandFolders();
}

void CSystemConfig::HandFolders()
{
    const std::lock_guard<std::mutex> saving(m_saveMutex);
    m_path.SetFolders(FoldersOf(Settings()));
}

} // namespace video
