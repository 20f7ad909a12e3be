#include "CommonMethodLib/UserDataPath.h"
#include "Sqlite3DO/Statement.h"
#include "StoreWorld.h"
#include "logical/Local/DatabaseSession/VideoSystemDB.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>

using Sqlite3DO::CSQLite3Recordset;
using video::CBaseDBConn;
using video::CBaseDBTransaction;

namespace {

class BaseDBConn : public testing::Test
{
protected:
    static std::vector<std::string> Fatal(const CapturedLog& log)
    {
        return log.Messages(Base::LogLevel::Fatal);
    }

    TestDataRoot m_root;
};

} // namespace

TEST_F(BaseDBConn, JoinsFolderAndNameDirectly)
{
    const CBaseDBConn conn(m_root.Path() + "pre", "VideoSystem");
    EXPECT_TRUE(store::Exists(m_root.Path() + "preVideoSystem"));
}

TEST_F(BaseDBConn, LogsOneFatalLineForABadStatementAndWorksOn)
{
    CBaseDBConn conn(m_root.Path(), "VideoSystem");
    const CapturedLog log;
    EXPECT_FALSE(conn.Execute("CREATE TABEL T (n)"));
    EXPECT_EQ(Fatal(log), std::vector<std::string>{
                              "data base error, error code: 1, error message: near \"TABEL\": syntax error"});
    EXPECT_EQ(log.Lines().size(), 1u);
    EXPECT_TRUE(conn.Execute("CREATE TABLE T (n)"));
    EXPECT_TRUE(conn.Execute("INSERT INTO T VALUES (4)"));
    CSQLite3Recordset rows;
    EXPECT_TRUE(conn.Execute("SELECT n FROM T", rows));
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.GetInt(0), 4);
    EXPECT_FALSE(conn.Execute("SELECT missing FROM T", rows));
    EXPECT_FALSE(rows.Next()) << "a failed query has no rows";
    EXPECT_EQ(log.Lines().size(), 2u);
}

TEST_F(BaseDBConn, LogsOneFatalLineForAStatementThatDoesNotFitAndChangesNothing)
{
    CBaseDBConn conn(m_root.Path(), "VideoSystem");
    conn.Execute("CREATE TABLE T (n)");
    conn.Execute("INSERT INTO T VALUES (1)");
    const CapturedLog log;
    const char* const format = "UPDATE T SET n = 2 WHERE n = '%s'";
    EXPECT_FALSE(conn.Execute(Sqlite3DO::FormatStatement<20>(format, "no such row")));
    EXPECT_EQ(Fatal(log), std::vector<std::string>{
                              "data base error, error code: 21, error message: the text holds no statement"});
    EXPECT_EQ(store::Query(m_root.Path() + "VideoSystem", "", "SELECT n FROM T"), "1");
}

TEST_F(BaseDBConn, LogsEveryUseOfADatabaseThatDidNotOpen)
{
    const CapturedLog log;
    CBaseDBConn conn(m_root.Path() + "no such folder/", "VideoSystem");
    ASSERT_EQ(Fatal(log).size(), 1u);
    CSQLite3Recordset rows;
    EXPECT_FALSE(conn.Execute("SELECT 1", rows));
    EXPECT_FALSE(conn.Execute("DELETE FROM T"));
    EXPECT_FALSE(conn.Begin());
    EXPECT_FALSE(conn.Commit());
    EXPECT_EQ(Fatal(log).size(), 5u);
    for (const std::string& line : Fatal(log))
        EXPECT_EQ(line.rfind("data base error, error code: 14, error message: ", 0), 0u) << line;
}

TEST_F(BaseDBConn, EndsABracketOnEveryPath)
{
    CBaseDBConn conn(m_root.Path(), "VideoSystem");
    conn.Execute("CREATE TABLE T (n)");
    {
        CBaseDBTransaction bracket(conn);
        conn.Execute("INSERT INTO T VALUES (1)");
    }
    {
        CBaseDBTransaction bracket(conn);
        EXPECT_TRUE(conn.Execute("INSERT INTO T VALUES (2)"));
        EXPECT_TRUE(bracket.Commit());
        EXPECT_FALSE(bracket.Commit());
    }
    {
        const CapturedLog log;
        CBaseDBTransaction outer(conn);
        CBaseDBTransaction inner(conn);
        EXPECT_TRUE(outer.HasBegun());
        EXPECT_FALSE(inner.HasBegun());
        EXPECT_EQ(Fatal(log).size(), 1u);
    }
    EXPECT_EQ(store::Query(m_root.Path() + "VideoSystem", "", "SELECT n FROM T"), "2");
}

TEST_F(BaseDBConn, SaysAtCommitThatABracketedSaveFailed)
{
    CBaseDBConn conn(m_root.Path(), "VideoSystem");
    conn.Execute("CREATE TABLE T (n NOT NULL)");
    conn.Execute("INSERT INTO T VALUES (1)");
    const CapturedLog log;
    EXPECT_TRUE(conn.Begin());
    EXPECT_TRUE(conn.Execute("DELETE FROM T"));
    EXPECT_FALSE(conn.Execute("INSERT INTO T VALUES (NULL)"));
    EXPECT_FALSE(conn.Commit());
    EXPECT_EQ(Fatal(log).size(), 2u);
    EXPECT_EQ(store::Query(m_root.Path() + "VideoSystem", "", "SELECT n FROM T"), "1");
}

TEST_F(BaseDBConn, ShowsNobodyAStateBetweenStatementsThatBelongTogether)
{
    CBaseDBConn conn(m_root.Path(), "VideoSystem");
    conn.Execute("CREATE TABLE T (n)");
    conn.Execute("INSERT INTO T VALUES (1)");
    std::atomic<bool> done{false};
    auto reader = std::async(std::launch::async, [&] {
        CBaseDBConn other(m_root.Path(), "VideoSystem");
        CSQLite3Recordset rows;
        bool whole = true;
        do {
            whole = other.Execute("SELECT n FROM T", rows) && rows.RowCount() == 1 && whole;
        } while (!done);
        return whole;
    });
    bool worked = true;
    for (int round = 0; round < 200; ++round)
        worked = conn.ExecuteTogether({"DELETE FROM T", "INSERT INTO T VALUES (2)"}) && worked;
    done = true;
    EXPECT_TRUE(worked);
    EXPECT_TRUE(reader.get()) << "a kill at that moment would have left the table empty";
}

TEST_F(BaseDBConn, KeepsTheOthersOfStatementsThatBelongTogetherWhenOneFails)
{
    const std::string path = m_root.Path() + "VideoSystem";
    CBaseDBConn conn(m_root.Path(), "VideoSystem");
    conn.Execute("CREATE TABLE T (n)");
    conn.Execute("INSERT INTO T VALUES (1)");
    conn.Execute("CREATE TRIGGER Kept BEFORE DELETE ON T BEGIN SELECT RAISE(ABORT, 'kept'); END");
    const std::vector<std::string> save{"DELETE FROM T", "INSERT INTO T VALUES (2)"};
    const CapturedLog log;
    EXPECT_FALSE(conn.ExecuteTogether(save));
    EXPECT_EQ(Fatal(log), std::vector<std::string>{"data base error, error code: 19, error message: kept"});
    EXPECT_EQ(store::Query(path, "", "SELECT n FROM T"), "1 2");

    EXPECT_TRUE(conn.Begin());
    EXPECT_FALSE(conn.ExecuteTogether(save));
    EXPECT_FALSE(conn.Commit()) << "in a bracket the bracket's rule holds";
    EXPECT_EQ(store::Query(path, "", "SELECT n FROM T"), "1 2");
    EXPECT_TRUE(conn.ExecuteTogether({"INSERT INTO T VALUES (3)"}));
    EXPECT_EQ(store::Query(path, "", "SELECT n FROM T"), "1 2 3");
}

TEST_F(BaseDBConn, IsOneForAllThreadsAndLiesInTheComponentsFolder)
{
    ASSERT_TRUE(comm_methodlib::CUserDataPath::Instance().init(m_root.Path(), "Video.C", -1, -1));
    std::promise<void> start;
    const std::shared_future<void> started = start.get_future().share();
    std::vector<std::future<CBaseDBConn*>> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.push_back(std::async(std::launch::async, [started] {
            started.wait();
            return &video::VideoSystemDB::Instance();
        }));
    start.set_value();
    CBaseDBConn* const instance = &video::VideoSystemDB::Instance();
    for (auto& thread : threads)
        EXPECT_EQ(thread.get(), instance);
    EXPECT_TRUE(instance->Execute("CREATE TABLE T (n)"));
    EXPECT_TRUE(store::Exists(comm_methodlib::CUserDataPath::Instance().componentPath() + "VideoSystem"));
}
