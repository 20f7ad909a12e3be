#include "CommonMethod/InitDBLogical.h"
#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "Sqlite3DO/SQLite3Conn.h"
#include "StoreWorld.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

using comm_method::CComponentDBInit;
using comm_method::CDataEncryptionConfig;

namespace {

constexpr char kSetup[] = "Framework.C/DESetup.xml";
constexpr char kOlderSetup[] = "Framework.S/DESetup.xml";

/// Everything that a start can have to do at once: a damaged setup and an older one to be taken over, and a
/// plain database of an older version, with its last rows still in the log, and a plain copy to be encrypted.
class FirstStart : public testing::Test
{
protected:
    FirstStart()
    {
        const std::string path = Root() + "data/VideoSystem";
        store::WriteAll(Root() + "maintain/VideoSystem/0001_first.sql", "CREATE TABLE T (n, s);");
        std::filesystem::create_directories(Root() + "data");
        EXPECT_TRUE(CComponentDBInit(PathsIn(Root())).Init({"VideoSystem"}, {}));
        std::filesystem::copy_file(path, path + ".backup-0");
        const std::string before = store::ReadAll(path);
        const std::string log =
            store::CrashLog(path, "",
                            "WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 "
                            "FROM c WHERE n < 300) INSERT INTO T SELECT n, hex(n) FROM c");
        store::WriteAll(path, before);
        store::WriteAll(path + "-wal", log);
        store::WriteAll(Root() + "maintain/VideoSystem/0002_more.sql",
                        "ALTER TABLE T ADD COLUMN z INTEGER; UPDATE T SET z = 2 * n;");
        EXPECT_TRUE(CDataEncryptionConfig(Root() + kOlderSetup).Write(CDataEncryptionConfig::Generate()));
        store::WriteAll(Root() + kSetup, "damaged");
    }
    ~FirstStart() override
    {
        Base::Encrypt::ClearAESParams();
        Sqlite3DO::CSQLite3Conn::SetStaticKey("");
        DatabaseUpdate::CDataEncryptionMgr::Instance().Clear();
    }

    std::string Root() const { return m_root.Path() + "made/"; }

    static comm_method::DBInitPaths PathsIn(const std::string& root)
    {
        return {root, root + "data/", root + "maintain/", ""};
    }

    static bool Start(const std::string& root)
    {
        return CComponentDBInit(PathsIn(root)).InitEx({"VideoSystem"}, {});
    }

    std::string Copy(const std::string& name) const
    {
        const std::string root = m_root.Path() + name + "/";
        std::filesystem::copy(Root(), root, std::filesystem::copy_options::recursive);
        return root;
    }

    std::chrono::microseconds TimeOfAWholeStart() const
    {
        const std::string root = Copy("whole");
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_TRUE(Start(root));
        return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() -
                                                                     begin);
    }

    /// A process that starts on a fresh copy, and is killed after the time.
    std::string StartAndKill(const std::string& name, std::chrono::microseconds after)
    {
        const std::string root = Copy(name);
        const pid_t child = ::fork();
        if (child == 0)
            _exit(Start(root) ? 0 : 1);
        std::this_thread::sleep_for(after);
        ::kill(child, SIGKILL);
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0) << "it failed by itself";
        return root;
    }

    TestDataRoot m_root;
};

} // namespace

TEST_F(FirstStart, LosesNothingWhenItIsKilledAtAnyMoment)
{
    std::uniform_int_distribution<long> moment(0, TimeOfAWholeStart().count());
    std::mt19937 random(20);
    for (int round = 0; round < 25; ++round) {
        const std::chrono::microseconds after(moment(random));
        const std::string root = StartAndKill(std::to_string(round), after);
        SCOPED_TRACE("killed after " + std::to_string(after.count()) + " us");
        ASSERT_TRUE(Start(root)) << "the next start does not work";
        const auto setup = CDataEncryptionConfig(root + kSetup).Read();
        ASSERT_TRUE(setup) << "the key is lost";
        const auto query = [&](const std::string& file, const std::string& sql) {
            return store::Query(root + "data/" + file, setup->databaseKey, sql);
        };
        EXPECT_EQ(query("VideoSystem", "SELECT count(*) || '/' || sum(z) FROM T"), "300/90300");
        EXPECT_EQ(query("VideoSystem", "PRAGMA integrity_check"), "ok");
        EXPECT_EQ(query("VideoSystem.backup-1", "SELECT count(*) FROM T"), "300");
        const std::vector<std::string> files{"VideoSystem", "VideoSystem.backup-0", "VideoSystem.backup-1"};
        EXPECT_EQ(store::NamesIn(root + "data"), files);
        for (const std::string& file : files)
            EXPECT_FALSE(Sqlite3DO::IsPlainDatabase(root + "data/" + file)) << file;
        EXPECT_TRUE(store::NamesIn(root + "Framework.S").empty());
    }
}
