#pragma once

#include "VideoInterfaces/LocalFileRecords.h"
#include "logical/Local/DatabaseSession/BaseDBConn.h"
#include "logical/Local/DatabaseSession/Columns.h"

#include <string>
#include <vector>

namespace video {

/// The condition on a list of cameras, which an empty list makes one that nothing fulfils.
std::string CameraClause(const std::vector<std::string>& cameraIds);

/// The condition on the time of a record, from begin to end, both included.
std::string SpanClause(vantor::TimeValue begin, vantor::TimeValue end);

/// The list in parts, each short enough for a statement with the camera clause, which the engine limits to a
/// depth of 1,000; at least one part. A camera that stands in the list again is left out.
std::vector<std::vector<std::string>> CameraParts(const std::vector<std::string>& cameraIds);

/// The name and columns of a record's table, and the text and buffer size of its insert.
template<typename Record>
struct FileTable;

/// What the tables of pictures and of clips have in common. Any thread; each call is one statement.
///
/// Every text of a statement is quoted. A statement that does not fit its buffer is never executed and fails:
/// a record whose texts are longer than some 700 bytes together is not inserted, and one whose path is longer
/// than some 450 is not found by it; every "'" counts twice.
template<typename Record>
class FileSession
{
public:
    explicit FileSession(CBaseDBConn& connection) : m_connection(connection) {}

    bool Insert(const Record& record) { return m_connection.Execute(InsertText(record)); }
    bool DeleteById(const std::string& id) { return m_connection.Execute(DeleteByIdText(id)); }

    /// Finds the record, which is empty when there is none. False when the statement failed.
    bool GetById(const std::string& id, Record& record) { return ReadFirst(ByIdText(id), record); }
    bool GetByPath(const std::string& filePath, Record& record)
    {
        return ReadFirst(ByPathText(filePath), record);
    }

    /// The records that occurred from begin to end, both included. None after a failure; false only when they
    /// are more than a query may read (CSQLite3Recordset::kLimitBytes).
    bool QueryCamera(const std::string& cameraId, vantor::TimeValue begin, vantor::TimeValue end,
                     std::vector<Record>& records)
    {
        records.clear();
        return Append(CameraSpanText(cameraId, begin, end), records) != Outcome::TooMany;
    }
    bool QueryGroup(const std::string& groupId, vantor::TimeValue begin, vantor::TimeValue end,
                    std::vector<Record>& records)
    {
        records.clear();
        return Append(GroupSpanText(groupId, begin, end), records) != Outcome::TooMany;
    }

    /// All records of the cameras, of which there may be any number. The same of failures.
    bool QueryCameras(const std::vector<std::string>& cameraIds, std::vector<Record>& records)
    {
        records.clear();
        for (const auto& part : CameraParts(cameraIds)) {
            const Outcome outcome = Append(CamerasText(part), records);
            if (outcome != Outcome::Done) {
                records.clear();
                return outcome != Outcome::TooMany;
            }
        }
        return true;
    }

    /// Brackets several writes; see CBaseDBConn.
    bool Begin() { return m_connection.Begin(); }
    bool Commit() { return m_connection.Commit(); }

    // The statements. Those of a fixed size are empty when the values do not fit.

    static std::string InsertText(const Record& record)
    {
        return FormatRow<Table::kInsertSize>(Table::kInsert, record, Table::kColumns);
    }
    static std::string DeleteByIdText(const std::string& id)
    {
        return Sqlite3DO::FormatStatement<500>("DELETE FROM %s WHERE ID = '%s'", Table::kName,
                                               Sqlite3DO::Quoted(id).c_str());
    }
    static std::string ByIdText(const std::string& id)
    {
        return Sqlite3DO::FormatStatement<500>("SELECT * FROM %s WHERE ID = '%s' ", Table::kName,
                                               Sqlite3DO::Quoted(id).c_str());
    }
    static std::string ByPathText(const std::string& filePath)
    {
        return Sqlite3DO::FormatStatement<500>("SELECT * FROM %s WHERE FilePath = '%s' ", Table::kName,
                                               Sqlite3DO::Quoted(filePath).c_str());
    }
    static std::string CamerasText(const std::vector<std::string>& cameraIds)
    {
        return Select() + CameraClause(cameraIds);
    }
    static std::string CameraSpanText(const std::string& cameraId, vantor::TimeValue begin,
                                      vantor::TimeValue end)
    {
        return CamerasText({cameraId}) + SpanClause(begin, end);
    }
    static std::string GroupSpanText(const std::string& groupId, vantor::TimeValue begin,
                                     vantor::TimeValue end)
    {
        return Select() + "GroupID = '" + Sqlite3DO::Quoted(groupId) + "' " + SpanClause(begin, end);
    }

protected:
    using Table = FileTable<Record>;

    CBaseDBConn& m_connection;

private:
    enum class Outcome { Done, Failed, TooMany };

    static std::string Select() { return std::string("SELECT * FROM ") + Table::kName + " WHERE "; }

    bool ReadFirst(const std::string& sql, Record& record)
    {
        record = Record();
        Sqlite3DO::CSQLite3Recordset rows;
        if (!m_connection.Execute(sql, rows))
            return false;
        if (rows.Next())
            ReadRow(rows, Table::kColumns, record);
        return true;
    }

    Outcome Append(const std::string& sql, std::vector<Record>& records)
    {
        Sqlite3DO::CSQLite3Recordset rows;
        if (!m_connection.Execute(sql, rows))
            return rows.TooLarge() ? Outcome::TooMany : Outcome::Failed;
        records.reserve(records.size() + rows.RowCount());
        while (rows.Next())
            ReadRow(rows, Table::kColumns, records.emplace_back());
        return Outcome::Done;
    }
};

} // namespace video
