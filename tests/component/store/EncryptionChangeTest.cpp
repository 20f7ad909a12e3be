#include "DatabaseUpdate/DBCheckImplHelper.h"
#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "StoreWorld.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>

using DatabaseUpdate::CDataEncryptionMgr;
using DatabaseUpdate::CDBCheckImplHelper;
using store::kKey;
using store::kOtherKey;

namespace {

constexpr char kFirst[] = "CREATE TABLE T (n INTEGER PRIMARY KEY AUTOINCREMENT, s TEXT);";

class EncryptionChange : public testing::Test
{
protected:
    EncryptionChange()
    {
        m_params.dataPath = m_root.Path() + "data/";
        m_params.scriptPath = m_root.Path() + "maintain/";
        std::filesystem::create_directories(m_params.dataPath);
        store::WriteAll(m_params.scriptPath + "VideoSystem/0001_first.sql", kFirst);
    }
    ~EncryptionChange() override { CDataEncryptionMgr::Instance().Clear(); }

    std::string Path() const { return m_params.dataPath + "VideoSystem"; }

    void UseKey(const std::string& key) { CDataEncryptionMgr::Instance().Init({}, key, "test"); }

    bool Update() { return CDBCheckImplHelper::checkAndUpdateDB(m_params, {"VideoSystem"}, m_message); }

    void MakeWithRow(const std::string& key)
    {
        CDataEncryptionMgr::Instance().Clear();
        if (!key.empty())
            UseKey(key);
        ASSERT_TRUE(Update()) << m_message;
        store::Write(Path(), key, "INSERT INTO T (s) VALUES ('a readable row')");
        CDataEncryptionMgr::Instance().Clear();
    }

    TestDataRoot m_root;
    DatabaseUpdate::DBCheckImplHelperParams m_params;
    std::string m_message;
};

/// Lets no file of this process grow beyond so many bytes.
class FullDisk
{
public:
    explicit FullDisk(std::size_t room) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit full{room, m_limit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    rlimit m_limit = {};
    void (*m_signal)(int);
};

} // namespace

TEST_F(EncryptionChange, ConvertsAPlainFileWhenAKeyAppears)
{
    MakeWithRow("");
    UseKey(kKey);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(store::NamesIn(m_params.dataPath), std::vector<std::string>{"VideoSystem"});
    EXPECT_FALSE(Sqlite3DO::IsPlainDatabase(Path()));
    EXPECT_EQ(store::ReadAll(Path()).find("readable"), std::string::npos);
    EXPECT_EQ(store::Query(Path(), kKey, "SELECT s FROM T"), "a readable row");
    EXPECT_EQ(store::Query(Path(), kKey, "PRAGMA user_version"), "1");
    EXPECT_EQ(store::Query(Path(), kKey, "PRAGMA integrity_check"), "ok");
    store::Write(Path(), kKey, "INSERT INTO T (s) VALUES ('next')");
    EXPECT_EQ(store::Query(Path(), kKey, "SELECT max(n) FROM T"), "2");
}

TEST_F(EncryptionChange, TakesAPlainLogOfACrashedProgramAlong)
{
    MakeWithRow("");
    {
        Sqlite3DO::CSQLite3Engine crashed(Path(), Sqlite3DO::CSQLite3Engine::Mode::Existing, "");
        crashed.Run("INSERT INTO T (s) VALUES ('in the log')");
        for (const char* suffix : {"", "-wal"})
            std::filesystem::copy_file(Path() + suffix, m_root.Path() + "aside" + suffix);
    }
    for (const char* suffix : {"", "-wal"})
        std::filesystem::copy_file(m_root.Path() + "aside" + suffix, Path() + suffix,
                                   std::filesystem::copy_options::overwrite_existing);
    UseKey(kKey);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(store::Query(Path(), kKey, "SELECT count(*) FROM T"), "2");
    EXPECT_EQ(store::NamesIn(m_params.dataPath), std::vector<std::string>{"VideoSystem"});
}

TEST_F(EncryptionChange, BeginsAnewAfterAnInterruptedConversion)
{
    MakeWithRow("");
    for (const char* suffix : {".encrypting", ".encrypting-journal"})
        store::WriteAll(Path() + suffix, "left by a power failure");
    UseKey(kKey);
    ASSERT_TRUE(Update()) << m_message;
    EXPECT_EQ(store::NamesIn(m_params.dataPath), std::vector<std::string>{"VideoSystem"});
    EXPECT_EQ(store::Query(Path(), kKey, "SELECT s FROM T"), "a readable row");
}

TEST_F(EncryptionChange, LeavesAPlainFileThatIsInUse)
{
    MakeWithRow("");
    Sqlite3DO::CSQLite3Engine other(Path(), Sqlite3DO::CSQLite3Engine::Mode::Existing, "",
                                    std::chrono::seconds(0));
    other.Run("BEGIN IMMEDIATE");
    UseKey(kKey);
    EXPECT_FALSE(Update());
    other.Run("INSERT INTO T (s) VALUES ('later')");
    other.Run("COMMIT");
    EXPECT_TRUE(Sqlite3DO::IsPlainDatabase(Path()));
    EXPECT_FALSE(store::Exists(Path() + ".encrypting"));
    EXPECT_EQ(store::Query(Path(), "", "SELECT count(*) FROM T"), "2");
}

TEST_F(EncryptionChange, LeavesADamagedPlainFile)
{
    MakeWithRow("");
    std::string content = store::ReadAll(Path());
    content.replace(4096, 200, std::string(200, '\x77'));
    store::WriteAll(Path(), content);
    UseKey(kKey);
    EXPECT_FALSE(Update());
    EXPECT_EQ(store::ReadAll(Path()), content);
    EXPECT_EQ(store::NamesIn(m_params.dataPath), std::vector<std::string>{"VideoSystem"});
}

TEST_F(EncryptionChange, LeavesAPlainFileWhenTheDiskIsFull)
{
    MakeWithRow("");
    const std::string before = store::ReadAll(Path());
    UseKey(kKey);
    for (const std::size_t room : {std::size_t(0), std::size_t(4096), before.size() - 1}) {
        EXPECT_FALSE((FullDisk(room), Update())) << room;
        EXPECT_EQ(store::ReadAll(Path()), before) << room;
        EXPECT_FALSE(store::Exists(Path() + ".encrypting")) << room;
    }
    EXPECT_TRUE(Update()) << m_message;
    EXPECT_EQ(store::Query(Path(), kKey, "SELECT s FROM T"), "a readable row");
}

TEST_F(EncryptionChange, ConvertsTheKeptCopiesToo)
{
    MakeWithRow("");
    std::filesystem::copy_file(Path(), Path() + ".backup-0");
    // A conversion of it was killed before.
    Sqlite3DO::CSQLite3Engine(Path() + ".backup-0", Sqlite3DO::CSQLite3Engine::Mode::Inspect, "")
        .Run("PRAGMA journal_mode = DELETE");
    store::WriteAll(Path() + ".backup-0-journal", std::string(512, '\0'));
    store::WriteAll(Path() + ".backup-9", std::string("SQLite format 3\0", 16) + "damaged");
    UseKey(kKey);
    const CapturedLog log;
    ASSERT_TRUE(Update()) << "a damaged copy must not stop it: " << m_message;
    EXPECT_EQ(store::Query(Path() + ".backup-0", kKey, "SELECT s FROM T"), "a readable row");
    EXPECT_EQ(log.Messages(Base::LogLevel::Warn).size(), 1u);
    EXPECT_FALSE(store::Exists(Path() + ".backup-0-journal"));
}

TEST_F(EncryptionChange, RefusesAnEncryptedFileWithoutItsKeyAndDestroysNothing)
{
    MakeWithRow(kKey);
    const std::string before = store::ReadAll(Path());
    for (const std::string& key : {std::string(), kOtherKey}) {
        CDataEncryptionMgr::Instance().Clear();
        if (!key.empty())
            UseKey(key);
        EXPECT_FALSE(Update());
        EXPECT_EQ(m_message.find(kOtherKey), std::string::npos);
        EXPECT_EQ(store::ReadAll(Path()), before);
        EXPECT_EQ(store::NamesIn(m_params.dataPath), std::vector<std::string>{"VideoSystem"});
    }
    UseKey(kKey);
    EXPECT_TRUE(Update()) << m_message;
}
