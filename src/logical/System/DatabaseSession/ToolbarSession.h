#pragma once

#include "VideoInterfaces/ToolbarStruct.h"
#include "logical/Local/DatabaseSession/BaseDBConn.h"

namespace video {

/// The statements on the table of the toolbar's layout. Any thread. A database error has its line in the log,
/// and the result false where nothing else is said.
class ToolbarSession
{
public:
    explicit ToolbarSession(CBaseDBConn& connection) : m_connection(connection) {}

    /// Fills the layout; positions that no row names have their defaults, all of them after an error. A
    /// layout of the release that had one button more, which is 17 rows without the mark that this release
    /// writes, is brought into the form of this one; the table gets it with the next save. Always true.
    bool Query(vantor::ToolbarStruct& layout);

    /// Replaces all rows; outside a bracket they reach the disk together.
    bool Save(const vantor::ToolbarStruct& layout);

    /// An empty table is the default layout.
    bool Clear();

    /// Bracket a save; see CBaseDBConn.
    bool Begin() { return m_connection.Begin(); }
    bool Commit() { return m_connection.Commit(); }

private:
    CBaseDBConn& m_connection;
};

} // namespace video
