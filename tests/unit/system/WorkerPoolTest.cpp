#include "CommonMethodLib/WorkerPool.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>

namespace {

using comm_methodlib::CWorkerPool;
constexpr auto kLimit = std::chrono::seconds(10);

TEST(WorkerPool, OneSlowTaskDoesNotHoldUpTheNext)
{
    CWorkerPool pool;
    std::promise<void> release, second;
    ASSERT_TRUE(pool.PostTask([wait = release.get_future().share()] { wait.wait(); }));
    ASSERT_TRUE(pool.PostTask([&second] { second.set_value(); }));
    EXPECT_EQ(second.get_future().wait_for(kLimit), std::future_status::ready);
    release.set_value();
    pool.Stop();
}

} // namespace
