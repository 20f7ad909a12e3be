#include "CommonMethod/InitDBLogical.h"
#include "CommonMethodLib/UserDataPath.h"
#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "Sqlite3DO/SQLite3Conn.h"
#include "StoreWorld.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

using comm_method::CComponentDBInit;
using comm_method::CDataEncryptionConfig;
using comm_method::DataEncryption;

namespace {

constexpr char kFramework[] = "Framework.C/DESetup.xml";
const std::vector<std::string> kOlder{"ClientDESetup.xml", "Framework.S/DESetup.xml", "DESetup.xml"};

class InitDBLogical : public testing::Test
{
protected:
    InitDBLogical()
    {
        store::WriteAll(Root() + "maintain/VideoSystem/0001_first.sql", "CREATE TABLE T (n);");
        std::filesystem::create_directories(Root() + "data");
    }
    ~InitDBLogical() override { Forget(); }

    static void Forget()
    {
        Base::Encrypt::ClearAESParams();
        Sqlite3DO::CSQLite3Conn::SetStaticKey("");
        DatabaseUpdate::CDataEncryptionMgr::Instance().Clear();
    }

    std::string Root() const { return m_root.Path(); }
    std::string Database() const { return Root() + "data/VideoSystem"; }
    comm_method::DBInitPaths Paths() const
    {
        return {Root(), Root() + "data/", Root() + "maintain/", Root()};
    }

    DataEncryption Setup(const std::string& file)
    {
        const DataEncryption encryption = CDataEncryptionConfig::Generate();
        EXPECT_TRUE(CDataEncryptionConfig(Root() + file).Write(encryption));
        return encryption;
    }

    /// As a process that starts now.
    bool Init() { return Forget(), CComponentDBInit(Paths()).Init({"VideoSystem", "MainView"}, {}); }
    bool InitEx() { return Forget(), CComponentDBInit(Paths()).InitEx({"VideoSystem", "MainView"}, {}); }

    std::vector<std::string> Deleted(const CapturedLog& log) const
    {
        const std::string begin = "Deleted file.[file=" + Root();
        std::vector<std::string> files;
        for (const std::string& line : log.Messages(Base::LogLevel::Info))
            if (line.rfind(begin, 0) == 0)
                files.push_back(line.substr(begin.size(), line.size() - begin.size() - 1));
        return files;
    }

    TestDataRoot m_root;
};

} // namespace

TEST_F(InitDBLogical, GoesOnUnencryptedAfterOneFatalLineWithoutASetup)
{
    const CapturedLog log;
    EXPECT_TRUE(Init());
    EXPECT_EQ(log.Messages(Base::LogLevel::Fatal),
              std::vector<std::string>{"[" + Root() + kFramework + "] is not exist."});
    EXPECT_TRUE(Sqlite3DO::IsPlainDatabase(Database()));
    EXPECT_FALSE(Base::Encrypt::GetAESParams());
}

TEST_F(InitDBLogical, InstallsTheSetupForTheWholeProcess)
{
    const DataEncryption encryption = Setup(kFramework);
    const CapturedLog log;
    ASSERT_TRUE(Init());
    EXPECT_TRUE(log.Messages(Base::LogLevel::Fatal).empty());
    EXPECT_EQ(Base::Encrypt::GetAESParams()->label, encryption.id);
    EXPECT_EQ(DatabaseUpdate::CDataEncryptionMgr::Instance().Id(), encryption.id);
    EXPECT_FALSE(Sqlite3DO::IsPlainDatabase(Database()));
    Sqlite3DO::CSQLite3Conn conn;
    EXPECT_TRUE(conn.Open(Database(), false, "")) << "the static key is not the setup's";
}

TEST_F(InitDBLogical, ReadsTheSetupOnceInAProcess)
{
    Setup(kFramework);
    CComponentDBInit init(Paths());
    ASSERT_TRUE(init.Init({"VideoSystem"}, {}));
    store::WriteAll(Root() + kFramework, "damaged meanwhile");
    EXPECT_TRUE(init.Init({"VideoSystem"}, {}));
    EXPECT_TRUE(init.InitEx({"VideoSystem"}, {}));
}

TEST_F(InitDBLogical, ConvertsAPlainDatabaseWhenASetupAppears)
{
    ASSERT_TRUE(Init());
    store::Write(Database(), "", "INSERT INTO T VALUES (3)");
    const DataEncryption encryption = Setup(kFramework);
    ASSERT_TRUE(Init());
    EXPECT_EQ(store::Query(Database(), encryption.databaseKey, "SELECT n FROM T"), "3");
}

TEST_F(InitDBLogical, FailsWithoutTouchingTheDatabaseWhenTheSetupDoesNotFit)
{
    const DataEncryption encryption = Setup(kFramework);
    const std::string goodSetup = store::ReadAll(Root() + kFramework);
    ASSERT_TRUE(Init());
    const std::string before = store::ReadAll(Database());
    const std::string msg = "Failed to checkAndUpdateDB. [msg-VideoSystem: ";

    store::WriteAll(Root() + kFramework, "damaged");
    {
        const CapturedLog log;
        EXPECT_FALSE(Init());
        EXPECT_TRUE(log.Has("Failed to read xml file [" + Root() + kFramework + "]."));
    }
    std::filesystem::remove(Root() + kFramework);
    {
        const CapturedLog log;
        EXPECT_FALSE(Init()) << "missing, and the database is encrypted";
        ASSERT_EQ(log.Messages(Base::LogLevel::Fatal).size(), 2u);
        EXPECT_EQ(log.Messages(Base::LogLevel::Fatal)[1].rfind(msg, 0), 0u);
    }
    const DataEncryption other = Setup(kFramework);
    {
        const CapturedLog log;
        EXPECT_FALSE(Init()) << "a setup with another key";
        ASSERT_EQ(log.Messages(Base::LogLevel::Fatal).size(), 1u);
        EXPECT_EQ(log.Messages(Base::LogLevel::Fatal)[0].rfind(msg, 0), 0u);
        for (const auto& line : log.Lines())
            for (const std::string& secret : {other.databaseKey, other.dataKey})
                EXPECT_EQ(line.message.find(secret), std::string::npos);
    }
    EXPECT_EQ(store::ReadAll(Database()), before);
    EXPECT_EQ(store::NamesIn(Root() + "data"), std::vector<std::string>{"VideoSystem"});
    store::WriteAll(Root() + kFramework, goodSetup);
    EXPECT_TRUE(Init());
}

TEST_F(InitDBLogical, ExTakesOverTheFirstSetupThatCanBeReadAndRemovesTheOlder)
{
    for (std::size_t first = 0; first < kOlder.size(); ++first) {
        std::filesystem::remove_all(Root() + "Framework.C");
        std::filesystem::remove(Database());
        const DataEncryption encryption = Setup(kOlder[first]);
        for (std::size_t later = first + 1; later < kOlder.size(); ++later)
            Setup(kOlder[later]);
        for (std::size_t earlier = 0; earlier < first; ++earlier)
            store::WriteAll(Root() + kOlder[earlier], "damaged");
        const CapturedLog log;
        ASSERT_TRUE(InitEx()) << kOlder[first];
        EXPECT_TRUE(CDataEncryptionConfig(Root() + kFramework).Read() == encryption) << kOlder[first];
        EXPECT_EQ(store::Query(Database(), encryption.databaseKey, "PRAGMA user_version"), "1");
        for (const std::string& older : kOlder) {
            EXPECT_FALSE(store::Exists(Root() + older)) << older;
            EXPECT_TRUE(log.Has("Deleted file.[file=" + Root() + older + "]")) << older;
        }
        EXPECT_FALSE(store::Exists(Root() + "DESetup.key"));
        EXPECT_TRUE(log.Messages(Base::LogLevel::Fatal).empty());
    }
}

TEST_F(InitDBLogical, ExPrefersTheFrameworksOwnSetup)
{
    const DataEncryption encryption = Setup(kFramework);
    const std::string before = store::ReadAll(Root() + kFramework);
    Setup(kOlder[0]);
    const CapturedLog log;
    ASSERT_TRUE(InitEx());
    EXPECT_EQ(store::ReadAll(Root() + kFramework), before);
    const std::vector<std::string> deleted{"ClientDESetup.key", "ClientDESetup.xml"};
    EXPECT_EQ(Deleted(log), deleted);
    EXPECT_EQ(store::Query(Database(), encryption.databaseKey, "PRAGMA user_version"), "1");
}

TEST_F(InitDBLogical, ExRemovesNothingUntilEveryDatabaseHasOpened)
{
    Setup(kOlder[1]);
    ASSERT_TRUE(InitEx());
    std::filesystem::rename(Root() + "Framework.C", Root() + "aside");
    Setup(kOlder[0]); // not the database's
    const CapturedLog log;
    EXPECT_FALSE(InitEx());
    EXPECT_TRUE(Deleted(log).empty());
    EXPECT_TRUE(store::Exists(Root() + kOlder[0]));
    EXPECT_FALSE(store::Exists(Root() + kFramework)) << "an unproven setup was taken over";
    std::filesystem::remove(Root() + kOlder[0]);
    std::filesystem::rename(Root() + "aside", Root() + "Framework.C");
    EXPECT_TRUE(InitEx());
}

TEST_F(InitDBLogical, ExAlsoProvesDatabasesThatItDoesNotMaintain)
{
    Setup(kOlder[0]);
    store::WriteAll(Root() + "data/MainView", std::string(5000, 'x'));
    const CapturedLog log;
    EXPECT_FALSE(InitEx());
    EXPECT_TRUE(Deleted(log).empty());
}

TEST_F(InitDBLogical, ExKeepsADamagedFrameworkSetupAsideWithItsSealingKey)
{
    const std::string keyFile = Root() + "Framework.C/DESetup.key";
    Setup(kFramework);
    const std::string setup = store::ReadAll(Root() + kFramework);
    const std::string key = store::ReadAll(keyFile);
    Setup(kOlder[2]);
    store::WriteAll(keyFile, key + "\n"); // as an editor leaves it
    ASSERT_TRUE(InitEx());
    EXPECT_EQ(store::ReadAll(Root() + kFramework + ".damaged"), setup);
    EXPECT_EQ(store::ReadAll(keyFile + ".damaged"), key + "\n");
    EXPECT_TRUE(CDataEncryptionConfig(Root() + kFramework).Read());
    EXPECT_FALSE(store::Exists(Root() + kOlder[2]));
}

TEST_F(InitDBLogical, ExFailsWhenNoSetupCanBeReadAndGoesOnWhenThereIsNone)
{
    store::WriteAll(Root() + kOlder[0], "damaged");
    EXPECT_FALSE(InitEx());
    EXPECT_FALSE(store::Exists(Database()));
    std::filesystem::remove(Root() + kOlder[0]);
    const CapturedLog log;
    EXPECT_TRUE(InitEx());
    EXPECT_TRUE(log.Has("[" + Root() + kFramework + "] is not exist."));
}

TEST_F(InitDBLogical, WorksOnThisProcesssOwnPlaces)
{
    ASSERT_TRUE(comm_methodlib::CUserDataPath::Instance().init(Root(), "Video.C", -1, -1));
    const CapturedLog log;
    ASSERT_TRUE(comm_method::initComponentDBLogical({"MainView", "PlayBack", "VideoSystem", "VideoClient"},
                                                    {{"VideoClient", "Video", "Video.S"}}));
    EXPECT_TRUE(log.Has("[" + Root() + kFramework + "] is not exist."));
    EXPECT_EQ(store::Query(comm_methodlib::CUserDataPath::Instance().componentPath() + "VideoSystem", "",
                           "SELECT count(*) FROM Toolbar"),
              "0");
}
