#pragma once

#include "logical/Local/DatabaseSession/BaseDBConn.h"
#include "logical/System/DatabaseSession/VideoSystemConfigStruct.h"

#include <string>

namespace video {

/// The statements on the table of the video settings. One thread at a time; several objects may be used side
/// by side. A database error has its line in the log, and the result false.
class VideoSystemConfigSession
{
public:
    explicit VideoSystemConfigSession(CBaseDBConn& connection) : m_connection(connection) {}

    /// Fills the record from the first row and tells whether there was one; else the record stays as it is.
    /// Numbers that no page and no route would set are taken, with one line that names their columns.
    bool Load(VideoSystemConfigStruct& record);

    /// Replaces the row. Outside a bracket the delete and the insert reach the disk together. When the insert
    /// fails the old row stays; when only the delete fails the new row comes behind the old one, which later
    /// loads use.
    bool Save(const VideoSystemConfigStruct& record);

    bool Clear();

    /// Patch the row; an empty table stays empty.
    bool SetClockedPreviewToolBar(int value);
    bool SetEnableToolBar(int value);

    /// Bracket a save; see CBaseDBConn. Commit ends the bracket also when it fails.
    bool Begin();
    bool Commit();

    static std::string InsertText(const VideoSystemConfigStruct& record);

private:
    bool SaveTogether(const std::string& insert);

    CBaseDBConn& m_connection;
    bool m_bracketed = false;
};

} // namespace video
