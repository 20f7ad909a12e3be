#include "logical/System/DatabaseSession/VideoSystemConfigSession.h"

#include "Base/Log.h"
#include "logical/Local/DatabaseSession/Columns.h"

namespace video {
namespace {

constexpr const char* kDelete = "DELETE FROM VideoSystemConfigTable";

/// Blanks are missing behind some commas; the text is fixed.
constexpr const char* kInsert =
    "INSERT INTO VideoSystemConfigTable (DisplayScale, InstantPlaybackTime, PlayPerformance, EnableToolBar, "
    "PlaybackPriority, EnableResumePreview, EnableAutoChangeStreamType, SnapshotPicType, "
    "EnableHighlightShow, EnableATMOSD, EnableRuleShow, EnableDisconnectMultiStreams, "
    "PlaybackDefaultStreamType, EnableWheelControlZoom, OnlyPlayVCAInVCAPlayBack, EnableHardDecode, "
    "DownloadFileMode, StreamOffset, SearchFileCameraMode, EnablePlayBackFrameExtraction, "
    "EnableTransactionInfor,EnableTargetPattern,EnableRenderingEffect, "
    "VideoFileFormat,EnableDenoise,ClockedPreviewToolBar,ShowRecordAndAlarmState,"
    "SearchCloudP2PRecordFileMode) VALUES (%d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, "
    "%d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d)";

void LogUnknownValues(const VideoSystemConfigStruct& record)
{
    std::string names;
    ForEachSetting([&](const auto& field) {
        const int value = record.*field.member;
        if (!field.Takes(value))
            names += (names.empty() ? "" : ", ") + std::string(field.name) + "=" + std::to_string(value);
    });
    if (!names.empty())
        BASE_WARN("The settings hold values that nobody can have set: [%s].", names.c_str());
}

} // namespace

bool VideoSystemConfigSession::Load(VideoSystemConfigStruct& record)
{
    Sqlite3DO::CSQLite3Recordset rows;
    if (!m_connection.Execute("SELECT * FROM VideoSystemConfigTable", rows) || !rows.Next())
        return false;
    ReadRow(rows, VideoSystemConfigStruct::Fields(), record);
    LogUnknownValues(record);
    return true;
}

bool VideoSystemConfigSession::Save(const VideoSystemConfigStruct& record)
{
    const std::string insert = InsertText(record);
    return m_bracketed ? m_connection.ExecuteTogether({kDelete, insert}) : SaveTogether(insert);
}

bool VideoSystemConfigSession::SaveTogether(const std::string& insert)
{
    {
        CBaseDBTransaction transaction(m_connection);
        if (!transaction.HasBegun())
            return false;
        if (m_connection.Execute(kDelete))
            return m_connection.Execute(insert) && transaction.Commit();
    }
    m_connection.Execute(insert);
    return false;
}

bool VideoSystemConfigSession::Clear()
{
    return m_connection.Execute(kDelete);
}

bool VideoSystemConfigSession::SetClockedPreviewToolBar(int value)
{
    return m_connection.Execute(Sqlite3DO::FormatStatement<500>(
        "UPDATE VideoSystemConfigTable SET ClockedPreviewToolBar = %d", value));
}

bool VideoSystemConfigSession::SetEnableToolBar(int value)
{
    return m_connection.Execute(
        Sqlite3DO::FormatStatement<500>("UPDATE VideoSystemConfigTable SET EnableToolBar = %d", value));
}

bool VideoSystemConfigSession::Begin()
{
    m_bracketed = m_connection.Begin();
    return m_bracketed;
}

bool VideoSystemConfigSession::Commit()
{
    m_bracketed = false;
    return m_connection.Commit();
}

std::string VideoSystemConfigSession::InsertText(const VideoSystemConfigStruct& record)
{
    return FormatRow<3000>(kInsert, record, VideoSystemConfigStruct::Fields());
}

} // namespace video
