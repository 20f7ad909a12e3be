#include "Base/FileUtil.h"
#include "DatabaseUpdate/DBCheckImplHelper.h"
#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "StoreWorld.h"

#include <gtest/gtest.h>

using DatabaseUpdate::CDataEncryptionMgr;
using DatabaseUpdate::CDBCheckImplHelper;
using store::kKey;

namespace {

constexpr char kFirst[] = "CREATE TABLE T (n INTEGER); -- first\nINSERT INTO T VALUES (1);\n";
constexpr char kSecond[] = "ALTER TABLE T ADD COLUMN s TEXT DEFAULT ';'; UPDATE T SET n = n + 10;";
constexpr char kSchema[] = "SELECT sql FROM sqlite_master ORDER BY name";

/// Runs every case with plain files and with a key.
class SchemaUpdate : public testing::TestWithParam<const char*>
{
protected:
    SchemaUpdate()
    {
        if (!Key().empty())
            CDataEncryptionMgr::Instance().Init({}, Key(), "test");
        m_params.dataPath = m_root.Path() + "data/";
        m_params.scriptPath = m_root.Path() + "maintain/";
        m_params.installPath = m_root.Path() + "install/";
        for (const std::string& folder : {m_params.dataPath, m_params.scriptPath, m_params.installPath})
            std::filesystem::create_directories(folder);
    }
    ~SchemaUpdate() override { CDataEncryptionMgr::Instance().Clear(); }

    std::string Key() const { return GetParam(); }
    std::string Path() const { return m_params.dataPath + "VideoSystem"; }

    void Script(const std::string& name, const std::string& text)
    {
        store::WriteAll(m_params.scriptPath + "VideoSystem/" + name, text);
    }

    bool Update(const std::vector<std::string>& databases = {"VideoSystem"})
    {
        m_message.clear();
        return CDBCheckImplHelper::checkAndUpdateDB(m_params, databases, m_message);
    }

    bool MessageHas(const std::string& text) const { return m_message.find(text) != std::string::npos; }

    std::string Query(const std::string& sql) const { return store::Query(Path(), Key(), sql); }

    TestDataRoot m_root;
    DatabaseUpdate::DBCheckImplHelperParams m_params;
    std::string m_message;
};

INSTANTIATE_TEST_SUITE_P(Store, SchemaUpdate, testing::Values("", store::kKey.c_str()),
                         [](const auto& info) { return *info.param ? "Keyed" : "Plain"; });

} // namespace

TEST_P(SchemaUpdate, MakesAFreshDatabaseOfTheNewestVersion)
{
    Script("0001_first.sql", kFirst);
    Script("0002_second.sql", kSecond);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(Query("PRAGMA user_version"), "2");
    EXPECT_EQ(Query("SELECT n || s FROM T"), "11;");
    EXPECT_EQ(store::NamesIn(m_params.dataPath), std::vector<std::string>{"VideoSystem"});
    EXPECT_EQ(Sqlite3DO::IsPlainDatabase(Path()), Key().empty());
}

TEST_P(SchemaUpdate, TakesAnEmptyFileForAFreshDatabase)
{
    Script("0001_first.sql", kFirst);
    store::WriteAll(Path(), "");
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(Query("SELECT n FROM T"), "1");
}

TEST_P(SchemaUpdate, MigratesAnOldDatabaseAfterKeepingACopy)
{
    Script("0001_first.sql", kFirst);
    ASSERT_TRUE(Update()) << m_message;
    store::Write(Path(), Key(), "INSERT INTO T VALUES (5)");
    Script("0002_second.sql", kSecond);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(Query("SELECT n FROM T"), "11 15");
    const std::vector<std::string> files{"VideoSystem", "VideoSystem.backup-1"};
    EXPECT_EQ(store::NamesIn(m_params.dataPath), files);
    const std::string copy = Path() + ".backup-1";
    EXPECT_EQ(store::Query(copy, Key(), "SELECT n FROM T"), "1 5");
    EXPECT_EQ(store::Query(copy, Key(), "PRAGMA user_version"), "1");
    EXPECT_EQ(Sqlite3DO::IsPlainDatabase(copy), Key().empty());
}

TEST_P(SchemaUpdate, CopiesWhatStillLiesInTheLogOfACrashedProgram)
{
    Script("0001_first.sql", kFirst);
    ASSERT_TRUE(Update()) << m_message;
    const std::string aside = m_root.Path() + "aside";
    {
        Sqlite3DO::CSQLite3Engine crashed(Path(), Sqlite3DO::CSQLite3Engine::Mode::Existing, Key());
        crashed.Run("INSERT INTO T VALUES (7)");
        for (const char* suffix : {"", "-wal"})
            std::filesystem::copy_file(Path() + suffix, aside + suffix);
    }
    for (const char* suffix : {"", "-wal"})
        std::filesystem::copy_file(aside + suffix, Path() + suffix,
                                   std::filesystem::copy_options::overwrite_existing);
    Script("0002_second.sql", kSecond);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(store::Query(Path() + ".backup-1", Key(), "SELECT n FROM T"), "1 7");
    EXPECT_EQ(Query("SELECT n FROM T"), "11 17");
}

TEST_P(SchemaUpdate, AppliesNoOlderLogToTheCopyItKeeps)
{
    Script("0001_first.sql", kFirst);
    ASSERT_TRUE(Update()) << m_message;
    const std::string copy = Path() + ".backup-1";
    std::filesystem::copy_file(Path(), copy);
    const std::string log = store::CrashLog(copy, Key(), "DELETE FROM T");
    store::WriteAll(copy + "-wal", log);
    Script("0002_second.sql", kSecond);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(store::Query(copy, Key(), "SELECT n FROM T"), "1");
}

TEST_P(SchemaUpdate, LeavesACurrentDatabaseAsItIs)
{
    Script("0001_first.sql", kFirst);
    ASSERT_TRUE(Update()) << m_message;
    const std::string before = store::ReadAll(Path());
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(store::ReadAll(Path()), before);
    EXPECT_EQ(store::NamesIn(m_params.dataPath), std::vector<std::string>{"VideoSystem"});
}

TEST_P(SchemaUpdate, RefusesADatabaseItMustNotTouchAndLeavesItByteForByte)
{
    const auto written = [this](int version) {
        std::filesystem::remove(Path());
        store::Write(Path(), Key(), "CREATE TABLE T (n)");
        Sqlite3DO::CSQLite3Engine(Path(), Sqlite3DO::CSQLite3Engine::Mode::Existing, Key())
            .Run("PRAGMA user_version = " + std::to_string(version));
        return store::ReadAll(Path());
    };
    const struct
    {
        const char* what;
        std::string content;
        const char* reason;
    } rows[] = {
        {"newer", written(3), "newer"},
        {"of a negative version", written(-1), "-1"},
        {"noise", std::string(8192, '\x5A'), ""},
        {"a few bytes", "SQLite", ""},
        {"a plain header and noise", "SQLite format 3" + std::string(1, '\0') + std::string(9000, 'x'), ""},
        {"cut off", written(1).substr(0, 700), ""},
    };
    Script("0001_first.sql", kFirst);
    Script("0002_second.sql", kSecond);
    for (const auto& row : rows) {
        store::WriteAll(Path(), row.content);
        EXPECT_FALSE(Update()) << row.what;
        EXPECT_TRUE(MessageHas("VideoSystem: ")) << row.what << ": " << m_message;
        EXPECT_TRUE(MessageHas(row.reason)) << row.what << ": " << m_message;
        EXPECT_TRUE(Key().empty() || !MessageHas(Key()));
        EXPECT_EQ(store::ReadAll(Path()), row.content) << row.what;
        EXPECT_EQ(store::NamesIn(m_params.dataPath), std::vector<std::string>{"VideoSystem"}) << row.what;
    }
}

TEST_P(SchemaUpdate, ChangesNothingWhenAScriptFails)
{
    Script("0001_first.sql", kFirst);
    ASSERT_TRUE(Update()) << m_message;
    const std::string schema = Query(kSchema);
    const char* const failing[] = {
        "CREATE TABLE U (n); INSERT INTO T VALUES (2); nonsense;",
        "INSERT INTO T VALUES (2); INSERT INTO Missing VALUES (1);",
        "INSERT INTO T VALUES (2); COMMIT; CREATE TABLE U (n); nonsense;",
        "BEGIN; CREATE TABLE U (n);",
        "CREATE TABLE U (n); SAVEPOINT s;",
        "PRAGMA user_version = 9; nonsense;",
        "CREATE TABLE U (n); ATTACH DATABASE ':memory:' AS other;",
        "CREATE TABLE U (n); CREATE TABLE V (n",
        "CREATE TABLE U (n UNIQUE ON CONFLICT ROLLBACK); INSERT INTO U VALUES (1); INSERT INTO U VALUES (1);",
    };
    for (const char* script : failing) {
        Script("0002_second.sql", script);
        EXPECT_FALSE(Update()) << script;
        EXPECT_TRUE(MessageHas("0002_second.sql")) << m_message;
        EXPECT_EQ(Query(kSchema), schema) << script;
        EXPECT_EQ(Query("SELECT n FROM T"), "1") << script;
        EXPECT_EQ(Query("PRAGMA user_version"), "1") << script;
    }
    Script("0002_second.sql", kSecond);
    EXPECT_TRUE(Update()) << "the repaired script must run: " << m_message;
}

TEST_P(SchemaUpdate, KeepsTheStepsBeforeTheOneThatFailed)
{
    Script("0001_first.sql", kFirst);
    Script("0002_second.sql", kSecond);
    Script("0003_third.sql", "DELETE FROM T; nonsense");
    EXPECT_FALSE(Update());
    EXPECT_EQ(Query("PRAGMA user_version"), "2");
    EXPECT_EQ(Query("SELECT n FROM T"), "11");
}

TEST_P(SchemaUpdate, DoesNotMigrateWithoutItsCopy)
{
    Script("0001_first.sql", kFirst);
    ASSERT_TRUE(Update()) << m_message;
    Script("0002_second.sql", kSecond);
    store::WriteAll(Path() + ".backup-1/in the way", "a folder of that name");
    EXPECT_FALSE(Update());
    EXPECT_TRUE(MessageHas("copy")) << m_message;
    EXPECT_EQ(Query("PRAGMA user_version"), "1");
    EXPECT_FALSE(store::Exists(Path() + ".backup-1.writing"));
}

TEST_P(SchemaUpdate, ReportsFaultyScriptsAndDoesNotMakeTheDatabase)
{
    Script("0002_second.sql", kSecond);
    EXPECT_FALSE(Update());
    EXPECT_TRUE(MessageHas("0002_second.sql")) << m_message;
    EXPECT_FALSE(store::Exists(Path()));
}

TEST_P(SchemaUpdate, DoesNotMakeADatabaseOfSomebodyElse)
{
    Script("0001_first.sql", kFirst);
    EXPECT_TRUE(Update({"MainView", "PlayBack", "VideoSystem", "VideoClient"})) << m_message;
    EXPECT_EQ(store::NamesIn(m_params.dataPath), std::vector<std::string>{"VideoSystem"});
}

TEST_P(SchemaUpdate, RefusesADatabaseOfSomebodyElseThatDoesNotOpen)
{
    m_params.components.push_back({"VideoClient", "Video", "Video.S"});
    store::WriteAll(m_params.dataPath + "VideoClient", "noise that is no database");
    EXPECT_FALSE(Update({"VideoClient"}));
    EXPECT_TRUE(MessageHas("VideoClient of Video (Video.S): ")) << m_message;
}

TEST_P(SchemaUpdate, RefusesNamesThatLeaveTheFolderAndAMissingScriptFolder)
{
    for (const char* name : {"", "../VideoSystem", "a/b", "a\\b", ".."})
        EXPECT_FALSE(Update({name})) << name;
    std::filesystem::remove_all(m_params.scriptPath);
    EXPECT_FALSE(Update());
}

TEST_P(SchemaUpdate, StartsFromADeliveredDatabase)
{
    Script("0001_first.sql", kFirst);
    Script("0002_second.sql", kSecond);
    store::Write(m_params.installPath + "VideoSystem", "", "CREATE TABLE T (n); INSERT INTO T VALUES (100)",
                 1);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(Query("SELECT n FROM T"), "110");
    EXPECT_EQ(Sqlite3DO::IsPlainDatabase(Path()), Key().empty());
}

TEST_P(SchemaUpdate, AppliesNoLogOfALostDatabaseToTheDeliveredOne)
{
    Script("0001_first.sql", kFirst);
    ASSERT_TRUE(Update()) << m_message;
    const std::string log = store::CrashLog(Path(), Key(), "DELETE FROM T");
    std::filesystem::remove(Path());
    store::WriteAll(Path() + "-wal", log);
    store::Write(m_params.installPath + "VideoSystem", "", "CREATE TABLE T (n); INSERT INTO T VALUES (100)",
                 1);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(Query("SELECT n FROM T"), "100");
}

TEST_P(SchemaUpdate, WorksInAFolderOutsideAscii)
{
    Script("0001_first.sql", kFirst);
    m_params.dataPath = m_root.Path() + "\xE8\xA7\x86\xE9\xA2\x91/";
    std::filesystem::create_directories(m_params.dataPath);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_TRUE(store::Exists(Path()));
}

TEST(MaintainedSchema, GivesTheTablesTheirColumnsInOrder)
{
    const TestDataRoot root;
    const DatabaseUpdate::DBCheckImplHelperParams params{
        root.Path(), Base::FileUtil::GetCurExeDir() + "maintain/", "", {}};
    std::string message;
    ASSERT_TRUE(CDBCheckImplHelper::checkAndUpdateDB(params, {"VideoSystem"}, message)) << message;
    const auto columns = [&](const std::string& table) {
        Sqlite3DO::CSQLite3Engine database(root.Path() + "VideoSystem",
                                           Sqlite3DO::CSQLite3Engine::Mode::Inspect, "");
        Sqlite3DO::CSQLite3Recordset rows;
        database.Run("PRAGMA table_info(" + table + ")", &rows);
        std::string names;
        while (rows.Next())
            names += rows.GetString(1) + " ";
        return names;
    };
    EXPECT_EQ(columns("PictureFile"), "ID CameraID GroupID FileName FilePath OccurTime FileSize ");
    EXPECT_EQ(columns("VideoFile"),
              "ID CameraID GroupID FileName FilePath PicturePath OccurTime BeginTime EndTime FileSize ");
    EXPECT_EQ(columns("Toolbar"), "uKeyNum bShow iShowID iRemoteConfigHideFixed ");
    EXPECT_EQ(
        columns("VideoSystemConfigTable"),
        "DisplayScale InstantPlaybackTime PlayPerformance EnableToolBar PlaybackPriority EnableResumePreview "
        "EnableAutoChangeStreamType SnapshotPicType EnableHighlightShow EnableATMOSD EnableRuleShow "
        "EnableDisconnectMultiStreams PlaybackDefaultStreamType EnableWheelControlZoom "
        "OnlyPlayVCAInVCAPlayBack EnableHardDecode DownloadFileMode StreamOffset SearchFileCameraMode "
        "EnablePlayBackFrameExtraction EnableTransactionInfor EnableTargetPattern EnableRenderingEffect "
        "VideoFileFormat EnableDenoise ClockedPreviewToolBar ShowRecordAndAlarmState "
        "SearchCloudP2PRecordFileMode ");
}
