#include "Base/CancelableTask.h"
#include "Base/Error.h"
#include "Base/MessageLoop.h"
#include "Base/SerialTasks.h"
#include "Base/ThreadPool.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <thread>
#include <vector>

using namespace Base;

namespace {

TEST(AMessageLoop, RunsTasksInOrderOnOneThread)
{
    CMessageLoopForNotify loop;
    std::vector<int> order;
    for (int i = 0; i < 1000; ++i)
        loop.PostTask([&order, i] { order.push_back(i); });
    loop.Stop();
    ASSERT_EQ(order.size(), 1000u);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(AStoppedPool, RefusesTasksAndMayBeStoppedAgain)
{
    CThreadPool pool("test", 2);
    std::atomic<int> done{0};
    for (int i = 0; i < 100; ++i)
        EXPECT_TRUE(pool.PostTask([&] { ++done; }));
    pool.Stop();
    EXPECT_EQ(done, 100);
    EXPECT_FALSE(pool.PostTask([&] { ++done; }));
    pool.Stop();
    EXPECT_EQ(done, 100);
}

TEST(APool, CanBeStoppedAndDestroyedFromWithinATask)
{
    auto pool = std::make_unique<CThreadPool>("test", 2);
    std::promise<void> gone;
    CThreadPool* posted = pool.get();
    posted->PostTask([&] {
        pool->Stop();
        pool.reset();
        gone.set_value();
    });
    EXPECT_EQ(gone.get_future().wait_for(std::chrono::seconds(10)), std::future_status::ready);
}

TEST(APool, LogsATaskThatThrowsAndGoesOn)
{
    CapturedLog log;
    CThreadPool pool("test", 1);
    bool next = false;
    pool.PostTask([] { throw std::runtime_error("broken"); });
    pool.PostTask([&] { next = true; });
    pool.Stop();
    EXPECT_TRUE(next);
    EXPECT_TRUE(log.Has("A task failed: broken."));
}

TEST(SerialTasks, KeepTheirOrderOnAPoolOfManyThreads)
{
    CThreadPool pool("test", 4);
    CSerialTasks serial([&](Task task) { return pool.PostTask(std::move(task)); });
    std::vector<int> order;
    serial.PostTask([] { throw std::runtime_error("the others run all the same"); });
    for (int i = 0; i < 2000; ++i)
        ASSERT_TRUE(serial.PostTask([&order, i] { order.push_back(i); }));
    pool.Stop();
    ASSERT_EQ(order.size(), 2000u);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_FALSE(serial.PostTask([] {}));
}

struct Owner
{
    explicit Owner(std::atomic<int>& seen) : m_seen(seen) {}
    void Add(int value) { m_seen += value; }

    std::atomic<int>& m_seen;
    details::CWeakPtrBase m_anchor;
};

TEST(ACancelableTask, RunsOnlyWhileItsOwnerLives)
{
    std::atomic<int> seen{0};
    auto owner = std::make_unique<Owner>(seen);
    const CCancelableTask task(owner->m_anchor, owner.get(), &Owner::Add, 5);
    task();
    EXPECT_EQ(seen, 5);
    owner.reset();
    task();
    EXPECT_EQ(seen, 5);
}

TEST(DestroyingAnOwner, WaitsForItsRunningTask)
{
    std::promise<void> started;
    std::promise<void> release;
    std::atomic<bool> finished{false};
    details::CWeakPtrBase anchor;
    CThreadPool pool("test", 1);
    pool.PostTask(CCancelableTask(anchor.Ref(), [&] {
        started.set_value();
        release.get_future().wait();
        finished = true;
    }));
    started.get_future().wait();
    std::thread helper([&] { release.set_value(); });
    anchor.Release();
    EXPECT_TRUE(finished);
    helper.join();
}

TEST(AnOwner, MayBeDestroyedFromWithinItsOwnTask)
{
    auto anchor = std::make_unique<details::CWeakPtrBase>();
    CThreadPool pool("test", 1);
    bool ran = false;
    pool.PostTask(CCancelableTask(anchor->Ref(), [&] {
        anchor.reset();
        ran = true;
    }));
    pool.Stop();
    EXPECT_TRUE(ran);
}

TEST(TheLastError, BelongsToItsThread)
{
    Base::Error::SetLastError(1015);
    int other = -1;
    std::thread([&] { other = Base::Error::GetLastError(); }).join();
    EXPECT_EQ(other, 0);
    EXPECT_EQ(Base::Error::GetLastError(), 1015);
}

} // namespace
