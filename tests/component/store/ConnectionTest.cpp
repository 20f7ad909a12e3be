#include "Sqlite3DO/SQLite3Conn.h"
#include "StoreWorld.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <future>
#include <thread>

using namespace std::chrono_literals;
using namespace Sqlite3DO;
using store::ErrorOf;

namespace {

class Connection : public testing::Test
{
protected:
    Connection()
    {
        m_conn.Open(Path(), true, "");
        m_conn.Execute("CREATE TABLE T (n INTEGER, s TEXT)");
    }

    std::string Path() const { return m_root.Path() + "VideoSystem"; }

    std::string Numbers(CSQLite3Conn& conn)
    {
        CSQLite3Recordset rows;
        conn.Execute("SELECT n FROM T ORDER BY rowid", rows);
        std::string text;
        while (rows.Next())
            text += rows.GetString(0) + " ";
        return text;
    }

    /// What a program that starts now would read.
    std::string OnDisk() const { return store::Query(Path(), "", "SELECT n FROM T ORDER BY rowid"); }

    TestDataRoot m_root;
    CSQLite3Conn m_conn;
};

} // namespace

TEST_F(Connection, WritesAheadAndWaitsForTheDisk)
{
    CSQLite3Recordset rows;
    m_conn.Execute("PRAGMA journal_mode", rows);
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.GetString(0), "wal");
    m_conn.Execute("PRAGMA synchronous", rows);
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.GetInt(0), 2) << "FULL is 2";
}

TEST_F(Connection, FailsClearlyUntilItIsOpen)
{
    CSQLite3Conn conn;
    const std::string missing = m_root.Path() + "missing";
    EXPECT_EQ(ErrorOf([&] { conn.Execute("SELECT 1"); }), kErrorCantOpen);
    EXPECT_EQ(ErrorOf([&] { conn.Begin(); }), kErrorCantOpen);
    EXPECT_EQ(ErrorOf([&] { conn.Commit(); }), kErrorCantOpen);
    EXPECT_EQ(ErrorOf([&] { conn.Open(missing, false, ""); }), kErrorCantOpen);
    EXPECT_EQ(ErrorOf([&] { conn.Open(missing + "/sub/file", true, ""); }), kErrorCantOpen);
    EXPECT_FALSE(store::Exists(missing));
    EXPECT_TRUE(conn.Open(Path(), false, ""));
    EXPECT_EQ(ErrorOf([&] { conn.Open(Path(), false, ""); }), kErrorMisuse);
}

TEST_F(Connection, OpensAPathOutsideAscii)
{
    const std::string path = m_root.Path() + "\xE6\x91\x84\xE5\x83\x8F \xC3\xA9";
    CSQLite3Conn conn;
    conn.Open(path, true, "");
    conn.Execute("CREATE TABLE U (n)");
    EXPECT_TRUE(store::Exists(path));
}

TEST_F(Connection, TakesNoTransactionOrOtherFileFromStatements)
{
    for (const char* sql :
         {"BEGIN", "COMMIT", "ROLLBACK", "SAVEPOINT a", "RELEASE a", "ATTACH DATABASE ':memory:' AS o"})
        EXPECT_EQ(ErrorOf([&] { m_conn.Execute(sql); }), kErrorAuth) << sql;
    EXPECT_TRUE(m_conn.Execute("INSERT INTO T (n) VALUES (1)"));
}

TEST_F(Connection, KeepsATransactionsWritesFromOthersUntilCommit)
{
    m_conn.Begin();
    m_conn.Execute("INSERT INTO T (n) VALUES (1)");
    EXPECT_EQ(OnDisk(), "");
    EXPECT_EQ(Numbers(m_conn), "1 ");
    m_conn.Commit();
    EXPECT_EQ(OnDisk(), "1");
}

TEST_F(Connection, TakesATransactionBackAtCommitWhenOneOfItsStatementsFailed)
{
    const char* const failures[] = {"nonsense", "INSERT INTO Missing VALUES (1)", "INSERT INTO T VALUES (1)",
                                    "COMMIT", ""};
    for (const char* failure : failures) {
        m_conn.Begin();
        m_conn.Execute("INSERT INTO T (n) VALUES (1)");
        EXPECT_NE(ErrorOf([&] { m_conn.Execute(failure); }), 0) << failure;
        EXPECT_TRUE(m_conn.Execute("INSERT INTO T (n) VALUES (2)"));
        EXPECT_EQ(ErrorOf([&] { m_conn.Commit(); }), kErrorAbort) << failure;
        EXPECT_EQ(OnDisk(), "") << failure;
    }
    m_conn.Begin();
    m_conn.Execute("INSERT INTO T (n) VALUES (3)");
    EXPECT_TRUE(m_conn.Commit()) << "a failure before must not follow the next transaction";
    EXPECT_EQ(OnDisk(), "3");
}

TEST_F(Connection, RefusesWhatFollowsInATransactionThatTheEngineTookBack)
{
    m_conn.Execute("CREATE TABLE U (n UNIQUE ON CONFLICT ROLLBACK)");
    m_conn.Begin();
    m_conn.Execute("INSERT INTO U VALUES (1)");
    EXPECT_EQ(ErrorOf([&] { m_conn.Execute("INSERT INTO U VALUES (1)"); }), kErrorConstraint);
    EXPECT_EQ(ErrorOf([&] { m_conn.Execute("INSERT INTO T (n) VALUES (5)"); }), kErrorAbort);
    EXPECT_EQ(ErrorOf([&] { m_conn.Commit(); }), kErrorAbort);
    EXPECT_EQ(OnDisk(), "");
    EXPECT_TRUE(m_conn.Execute("INSERT INTO T (n) VALUES (6)"));
}

TEST_F(Connection, RefusesAnUnbalancedBracketAtOnce)
{
    EXPECT_EQ(ErrorOf([&] { m_conn.Commit(); }), kErrorMisuse);
    m_conn.Begin();
    EXPECT_EQ(ErrorOf([&] { m_conn.Begin(); }), kErrorMisuse);
    EXPECT_EQ(std::async(std::launch::async, [&] { return ErrorOf([&] { m_conn.Commit(); }); }).get(),
              kErrorMisuse);
    EXPECT_TRUE(m_conn.Commit());
    m_conn.Rollback();
}

TEST_F(Connection, TakesTheBlockBackWhenAnExceptionLeavesIt)
{
    try {
        CSQLite3Transaction transaction(m_conn);
        m_conn.Execute("INSERT INTO T (n) VALUES (1)");
        throw 1;
    } catch (int) {
    }
    EXPECT_EQ(Numbers(m_conn), "");
    {
        CSQLite3Transaction transaction(m_conn);
        m_conn.Execute("INSERT INTO T (n) VALUES (2)");
        transaction.Commit();
    }
    EXPECT_EQ(OnDisk(), "2");
}

TEST_F(Connection, LetsForeignStatementsWaitForTheEndOfATransactionAndLosesNone)
{
    m_conn.Begin();
    m_conn.Execute("INSERT INTO T (n) VALUES (1)");
    std::atomic<bool> ended{false};
    std::promise<void> started;
    auto foreign = std::async(std::launch::async, [&] {
        started.set_value();
        m_conn.Execute("INSERT INTO T (n) VALUES (2)");
        return ended.load();
    });
    started.get_future().wait();
    EXPECT_EQ(foreign.wait_for(50ms), std::future_status::timeout);
    ended = true;
    m_conn.Rollback();
    EXPECT_TRUE(foreign.get()) << "it was acknowledged inside somebody else's transaction";
    EXPECT_EQ(OnDisk(), "2");
}

TEST_F(Connection, GivesUpWaitingForATransactionThatDoesNotEnd)
{
    CSQLite3Conn impatient(20ms);
    impatient.Open(Path(), false, "");
    CSQLite3Recordset rows;
    impatient.Execute("SELECT 'of the query before'", rows);
    std::thread([&] { impatient.Begin(); }).join();
    EXPECT_EQ(ErrorOf([&] { impatient.Execute("SELECT 1", rows); }), kErrorBusy);
    EXPECT_FALSE(rows.Next()) << "a failed query has no rows";
    EXPECT_EQ(ErrorOf([&] { impatient.Begin(); }), kErrorBusy);
    EXPECT_EQ(ErrorOf([&] { m_conn.Execute("SELECT 1"); }), 0) << "another connection reads on";
}

TEST_F(Connection, GivesUpWaitingForAnotherProcess)
{
    CSQLite3Conn impatient(20ms);
    impatient.Open(Path(), false, "");
    m_conn.Begin();
    EXPECT_EQ(ErrorOf([&] { impatient.Execute("INSERT INTO T (n) VALUES (1)"); }), kErrorBusy);
    EXPECT_EQ(ErrorOf([&] { impatient.Begin(); }), kErrorBusy);
    m_conn.Commit();
    EXPECT_TRUE(impatient.Execute("INSERT INTO T (n) VALUES (1)"));
}

TEST_F(Connection, KeepsTheBracketsOfManyThreadsApart)
{
    constexpr int kThreads = 4;
    constexpr int kRounds = 40;
    std::vector<std::future<int>> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.push_back(std::async(std::launch::async, [this, thread] {
            int kept = 0;
            for (int round = 0; round < kRounds; ++round) {
                const std::string row = "INSERT INTO T (n) VALUES (" + std::to_string(thread) + ")";
                CSQLite3Transaction transaction(m_conn);
                m_conn.Execute(row);
                m_conn.Execute(row);
                if (round % 2 == 0)
                    continue;
                transaction.Commit();
                kept += 2;
            }
            return kept;
        }));
    }
    int kept = 0;
    for (auto& thread : threads)
        kept += thread.get();
    EXPECT_EQ(kept, kThreads * kRounds);
    EXPECT_EQ(store::Query(Path(), "", "SELECT count(*) FROM T"), std::to_string(kept));
    EXPECT_EQ(store::Query(Path(), "", "SELECT count(*) FROM T GROUP BY n"), "40 40 40 40");
}

TEST_F(Connection, ClosesOnlyWhenNothingIsGoingOn)
{
    m_conn.Begin();
    EXPECT_FALSE(m_conn.Close());
    m_conn.Commit();
    EXPECT_TRUE(m_conn.Close());
    EXPECT_EQ(store::NamesIn(m_root.Path()), std::vector<std::string>{"VideoSystem"});
    EXPECT_EQ(ErrorOf([&] { m_conn.Execute("SELECT 1"); }), kErrorCantOpen);
}

namespace {

/// Inserts 1, 2, 3... in the file and writes a byte to the pipe after each acknowledged one, until it is
/// killed.
[[noreturn]] void InsertUntilKilled(const std::string& path, const std::string& key, int acknowledged)
{
    try {
        CSQLite3Conn conn;
        conn.Open(path, true, key);
        conn.Execute("CREATE TABLE Row (n INTEGER)");
        for (int n = 1;; ++n) {
            if (n % 3 == 0)
                conn.Begin();
            conn.Execute("INSERT INTO Row VALUES (" + std::to_string(n) + ")");
            if (n % 3 == 0)
                conn.Commit();
            if (::write(acknowledged, "x", 1) != 1)
                _exit(2);
        }
    } catch (...) {
        _exit(1);
    }
}

/// The bytes that come until the other side is gone; kills the process after some.
int CountAcknowledged(int pipe, pid_t child)
{
    int count = 0;
    char byte;
    while (::read(pipe, &byte, 1) == 1) {
        if (++count == 100)
            ::kill(child, SIGKILL);
    }
    return count;
}

} // namespace

TEST(Durability, AnAcknowledgedInsertSurvivesTheKillOfItsProcess)
{
    for (const std::string& key : {std::string(), store::kKey}) {
        const TestDataRoot root;
        const std::string path = root.Path() + "VideoSystem";
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0)
            InsertUntilKilled(path, key, ends[1]);
        ::close(ends[1]);
        const int acknowledged = CountAcknowledged(ends[0], child);
        ::close(ends[0]);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child ended by itself: " << status;
        EXPECT_GE(acknowledged, 100);
        EXPECT_EQ(store::Query(path, key, "PRAGMA quick_check"), "ok");
        EXPECT_EQ(store::Query(path, key, "SELECT count(*) >= " + std::to_string(acknowledged) + " FROM Row"),
                  "1");
        EXPECT_EQ(store::Query(path, key, "SELECT max(n) = count(*) FROM Row"), "1");
    }
}
