#include "RecordsWorld.h"

#include "logical/Local/DatabaseSession/SharedCommit.h"
#include "support/WaitUntil.h"

#include <atomic>
#include <future>
#include <mutex>
#include <new>
#include <set>
#include <stdexcept>
#include <thread>

namespace {

std::string InsertOf(const std::string& id)
{
    return "INSERT INTO PictureFile (ID, CameraID, OccurTime) VALUES ('" + id + "', 'camera', '')";
}

/// Writes that come while the connection belongs to somebody else.
class SharedCommit : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* sql : {"PRAGMA foreign_keys = ON", "CREATE TABLE Owner (ID INTEGER PRIMARY KEY)",
                                "CREATE TABLE Owned (ID REFERENCES Owner DEFERRABLE INITIALLY DEFERRED)"})
            ASSERT_TRUE(catalogue.connection.Execute(sql));
        ASSERT_TRUE(catalogue.connection.Begin());
    }

    std::future<bool> Write(std::function<void()> write)
    {
        return std::async(std::launch::async, [this, write] {
            ++started;
            return commit.Run(write);
        });
    }

    /// Lets them go on when all have come.
    void LetGo(int count)
    {
        ASSERT_TRUE(WaitUntil([&] { return started == count; }));
        std::this_thread::yield();
        ASSERT_TRUE(catalogue.connection.Commit());
    }

    CapturedLog log;
    store::Catalogue catalogue;
    video::CSharedCommit commit{catalogue.connection};
    std::atomic<int> started{0};
};

TEST_F(SharedCommit, AWriteThatFailsOrThrowsLeavesThoseOfOthers)
{
    bool worked = true;
    auto good = Write([&] { catalogue.connection.Execute(InsertOf("good")); });
    auto failing = Write([&] { worked = catalogue.connection.Execute("INSERT INTO NoTable VALUES (1)"); });
    auto throwing = Write([] { throw std::runtime_error("mine"); });
    LetGo(3);
    EXPECT_TRUE(good.get());
    EXPECT_TRUE(failing.get());
    EXPECT_THROW(throwing.get(), std::runtime_error);
    EXPECT_FALSE(worked);
    EXPECT_EQ(catalogue.Ask("SELECT ID FROM PictureFile"), "good");
}

TEST_F(SharedCommit, SaysWhenTheTransactionWasTakenBack)
{
    bool worked = true;
    auto one = Write([&] {
        catalogue.connection.Execute(InsertOf("taken back by the engine"));
        catalogue.connection.Execute("INSERT OR ROLLBACK INTO Owner VALUES (1), (1)");
        worked = catalogue.connection.Execute(InsertOf("after that"));
    });
    LetGo(1);
    EXPECT_FALSE(one.get());
    EXPECT_FALSE(worked);
    EXPECT_FALSE(commit.Run([&] { catalogue.connection.Execute("INSERT INTO Owned VALUES (1)"); }));
    EXPECT_EQ(catalogue.Ask("SELECT ID FROM PictureFile UNION ALL SELECT ID FROM Owned"), "");
    EXPECT_TRUE(commit.Run([&] { catalogue.connection.Execute(InsertOf("next")); }));
}

// As in want of memory: the next writer must neither wait for ever nor meet what the last one left.
TEST(SharedCommitOnAClosedDatabase, GoesOnWhenNotEvenTheLogCanBeWritten)
{
    TestDataRoot root;
    video::CBaseDBConn connection(root.Path() + "no folder/", "VideoSystem");
    video::CSharedCommit commit(connection);
    const CapturedLog observerIsRemovedInTheEnd;
    Base::SetLogObserver([](Base::LogLevel, const char*, const std::string&) { throw std::bad_alloc(); });
    bool ran = false;
    bool stored = true;
    for (int i = 0; i < 2; ++i)
        ASSERT_NO_THROW(stored = commit.Run([&] { ran = true; }));
    EXPECT_FALSE(stored || ran);
}

TEST_F(SharedCommit, WritesThatWaitTogetherAreWrittenByOneThread)
{
    constexpr int kWrites = 6;
    std::mutex mutex;
    std::multiset<std::thread::id> writers;
    std::vector<std::future<bool>> results;
    for (int i = 0; i < kWrites; ++i)
        results.push_back(Write([&, i] {
            catalogue.connection.Execute(InsertOf(std::to_string(i)));
            const std::lock_guard<std::mutex> lock(mutex);
            writers.insert(std::this_thread::get_id());
        }));
    LetGo(kWrites);
    for (auto& result : results)
        EXPECT_TRUE(result.get());
    EXPECT_EQ(catalogue.Ask("SELECT count(*) FROM PictureFile"), std::to_string(kWrites));
    EXPECT_LT(std::set<std::thread::id>(writers.begin(), writers.end()).size(), std::size_t{kWrites});
}

} // namespace
