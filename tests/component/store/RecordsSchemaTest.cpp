#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "RecordsWorld.h"

#include <gtest/gtest.h>

#include <set>

using video::PictureFileSession;
using video::VideoFileSession;

namespace {

const std::string kNow = "2020-01-01 00:00:00";

/// The steps of a plan, but for the reading of the rows that a statement on a view has found already.
std::set<std::string> PlanOf(video::CBaseDBConn& connection, const std::string& sql)
{
    EXPECT_FALSE(sql.empty());
    Sqlite3DO::CSQLite3Recordset rows;
    EXPECT_TRUE(connection.Execute("EXPLAIN QUERY PLAN " + sql, rows)) << sql;
    std::set<std::string> steps;
    while (rows.Next())
        steps.insert(rows.GetString(3));
    steps.erase("SCAN TABLE PictureFile");
    steps.erase("SCAN TABLE VideoFile");
    return steps;
}

template<typename Session, typename Record>
std::vector<std::string> Statements(const Record& record)
{
    return {
        Session::InsertText(record), Session::DeleteByIdText("i"),        Session::ByIdText("i"),
        Session::ByPathText("p"),    Session::CameraSpanText("c", 1, 99), Session::GroupSpanText("g", 1, 99)};
}

std::vector<std::string> AllStatements()
{
    std::vector<std::string> all = Statements<PictureFileSession>(vantor::PictureFileRecord());
    for (const std::string& sql : Statements<VideoFileSession>(vantor::VideoFileRecord()))
        all.push_back(sql);
    all.push_back(VideoFileSession::UpdateCameraText({}));
    all.push_back(VideoFileSession::DeleteByPathText("p"));
    return all;
}

void ExpectSearches(video::CBaseDBConn& connection)
{
    // A scan of one of these names then is of rows found already; EXPLAIN alone does not look for a new
    // schema.
    Sqlite3DO::CSQLite3Recordset views;
    connection.Execute("SELECT name FROM sqlite_master WHERE type = 'view'", views);
    ASSERT_EQ(views.RowCount(), 2u);
    for (const std::string& sql : AllStatements()) {
        for (const std::string& step : PlanOf(connection, sql)) {
            const bool ofCameras = step == "SCAN TABLE PictureFileCamera AS camera" ||
                                   step == "SCAN TABLE VideoFileCamera AS camera";
            EXPECT_TRUE(ofCameras || step.rfind("SEARCH ", 0) == 0) << step << "\n" << sql;
        }
    }
    for (const std::string table : {"PictureFile", "VideoFile"}) {
        const bool pictures = table == "PictureFile";
        EXPECT_EQ(PlanOf(connection, pictures ? PictureFileSession::CameraSpanText("c", 1, 99)
                                              : VideoFileSession::CameraSpanText("c", 1, 99)),
                  (std::set<std::string>{"SCAN TABLE " + table + "Camera AS camera",
                                         "SEARCH TABLE " + table + "Row AS file USING INDEX " + table +
                                             "ByCamera (CameraID=? AND OccurTime>? AND OccurTime<?)"}));
    }
}

std::string FirstScript()
{
    return store::ReadAll(Base::FileUtil::GetCurExeDir() + "maintain/VideoSystem/0001_create_tables.sql");
}

} // namespace

TEST(RecordsSchema, LetsEveryStatementSearch)
{
    store::Catalogue catalogue;
    ASSERT_EQ(catalogue.failure, "");
    ExpectSearches(catalogue.connection);
}

TEST(RecordsSchema, KeepsTheListOfCameras)
{
    store::Catalogue catalogue;
    ASSERT_EQ(catalogue.failure, "");
    const struct
    {
        const char* sql;
        const char* cameras;
        const char* records;
    } rows[] = {
        {"INSERT INTO VideoFile (ID, CameraID) VALUES ('1', 'a')", "(a)", "1a"},
        {"INSERT INTO VideoFile (ID, CameraID) VALUES ('2', 'a'), ('3', NULL)", "() (a)", "1a 2a 3"},
        {"UPDATE VideoFile SET CameraID = 'b' WHERE ID = '1'", "() (a) (b)", "1b 2a 3"},
        {"UPDATE VideoFile SET CameraID = 'b' WHERE ID = '2'", "() (b)", "1b 2b 3"},
        {"UPDATE VideoFile SET ID = '4', CameraID = NULL WHERE ID = '2'", "() (b)", "1b 3 4"},
        {"DELETE FROM VideoFile WHERE CameraID = ''", "(b)", "1b"},
        {"DELETE FROM VideoFile", "", ""},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(catalogue.connection.Execute(row.sql)) << row.sql;
        EXPECT_EQ(catalogue.Ask("SELECT '(' || CameraID || ')' FROM VideoFileCamera ORDER BY 1"), row.cameras)
            << row.sql;
        EXPECT_EQ(catalogue.Ask("SELECT ID || CameraID FROM VideoFile ORDER BY 1"), row.records) << row.sql;
    }
    catalogue.connection.Execute("INSERT INTO VideoFile (ID, CameraID) VALUES ('1', 'a')");
    EXPECT_FALSE(catalogue.connection.Execute("INSERT INTO VideoFile (ID, CameraID) VALUES ('1', 'z')"));
    EXPECT_EQ(catalogue.Ask("SELECT CameraID FROM VideoFileCamera"), "a") << "a failure takes back all";
}

/// A database of the first version with records, also without a camera, brought to the newest one: as it is,
/// and encrypted on the way.
TEST(RecordsSchema, TakesOverTheRecordsOfTheFirstVersion)
{
    for (const std::string& key : {std::string(), store::kKey}) {
        SCOPED_TRACE(key);
        const TestDataRoot root;
        const std::string folder = root.Path(), path = folder + "VideoSystem";
        store::Write(path, "",
                     FirstScript() +
                         "INSERT INTO PictureFile VALUES "
                         "('1', 'a', 'g', 'n', '/1', '" +
                         kNow +
                         "', 7), "
                         "('2', 'a', 'g', 'n', '/2', '" +
                         kNow +
                         "', 8), "
                         "('3', NULL, NULL, NULL, '/3', NULL, NULL);"
                         "INSERT INTO VideoFile (ID, CameraID) VALUES ('4', 'b');",
                     1);
        if (!key.empty())
            DatabaseUpdate::CDataEncryptionMgr::Instance().Init({}, key, "test");
        const std::string failure = store::BringUpToDate(folder);
        DatabaseUpdate::CDataEncryptionMgr::Instance().Clear();
        ASSERT_EQ(failure, "");
        EXPECT_EQ(store::Query(path, key, "SELECT ID || CameraID || FilePath FROM PictureFile ORDER BY ID"),
                  "1a/1 2a/2 3/3");
        EXPECT_EQ(store::Query(path, key, "SELECT ID || CameraID FROM VideoFile"), "4b");
        EXPECT_EQ(store::Query(path, key, "PRAGMA integrity_check"), "ok");
        EXPECT_EQ(store::Query(folder + "VideoSystem.backup-1", key, "SELECT count(*) FROM PictureFile"),
                  "3");
    }
}

/// What the plans rest on is read by a connection that was open before the scripts ran, and goes with the
/// file when it is encrypted later.
TEST(RecordsSchema, LetsThemSearchOnAnOlderConnectionAndAfterEncryption)
{
    const TestDataRoot root;
    const std::string path = root.Path() + "VideoSystem";
    store::Write(path, "", FirstScript(), 1);
    video::CBaseDBConn older(root.Path(), "VideoSystem");
    EXPECT_TRUE(older.Execute("INSERT INTO VideoFile (ID, CameraID) VALUES ('1', 'a')"));
    EXPECT_EQ(store::BringUpToDate(root.Path()), "");
    ExpectSearches(older);
    ASSERT_TRUE(older.Close());

    DatabaseUpdate::CDataEncryptionMgr::Instance().Init({}, store::kKey, "test");
    EXPECT_EQ(store::BringUpToDate(root.Path()), "");
    DatabaseUpdate::CDataEncryptionMgr::Instance().Clear();
    ASSERT_FALSE(Sqlite3DO::IsPlainDatabase(path));
    EXPECT_EQ(store::Query(path, store::kKey, "PRAGMA integrity_check"), "ok");
    Sqlite3DO::CSQLite3Conn::SetStaticKey(store::kKey);
    video::CBaseDBConn encrypted(root.Path(), "VideoSystem");
    Sqlite3DO::CSQLite3Conn::SetStaticKey(std::string());
    ExpectSearches(encrypted);
}
