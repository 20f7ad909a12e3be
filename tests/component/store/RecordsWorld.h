#pragma once

#include "Base/FileUtil.h"
#include "DatabaseUpdate/DBCheckImplHelper.h"
#include "StoreWorld.h"
#include "logical/Local/LocalFile.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

/// The component's database as its scripts make it, and the catalogue on it.
namespace store {

/// Brings the database "VideoSystem" in the folder to the newest version; the reason when that failed.
inline std::string BringUpToDate(const std::string& folder)
{
    const DatabaseUpdate::DBCheckImplHelperParams params{
        folder, Base::FileUtil::GetCurExeDir() + "maintain/", "", {}};
    std::string message;
    const bool done = DatabaseUpdate::CDBCheckImplHelper::checkAndUpdateDB(params, {"VideoSystem"}, message);
    return done ? std::string() : "failed " + message;
}

struct Catalogue
{
    TestDataRoot root;
    const std::string failure = BringUpToDate(root.Path());
    video::CBaseDBConn connection{root.Path(), "VideoSystem"};
    video::CLocalFile files{connection};

    /// The first column of every row, joined by blanks.
    std::string Ask(const std::string& sql)
    {
        Sqlite3DO::CSQLite3Recordset rows;
        EXPECT_TRUE(connection.Execute(sql, rows));
        std::string text;
        while (rows.Next())
            text += (text.empty() ? "" : " ") + rows.GetString(0);
        return text;
    }
};

/// The paths of the records, joined by blanks.
template<typename Record>
std::string Paths(const std::vector<Record>& records)
{
    std::string text;
    for (const Record& record : records)
        text += (text.empty() ? "" : " ") + record.FilePath;
    return text;
}

} // namespace store
