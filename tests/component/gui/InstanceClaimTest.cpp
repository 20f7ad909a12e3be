#include "SingleApplication/InstanceClaim.h"
#include "SingleApplication/ProcessStamp.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using std::chrono::milliseconds;
using Result = CInstanceClaim::Result;

namespace {

constexpr std::uint64_t kDamaged = 0x4242424242424242;

/// A key of this test's own and the block that stands under it, as some other process may have left it.
class LeftBehind
{
public:
    LeftBehind() { EXPECT_TRUE(m_block.Open("vantor-" + Key())); }
    ~LeftBehind() { shm_unlink(("/vantor-" + Key()).c_str()); }

    static std::string Key()
    {
        return InstanceKey(testing::UnitTest::GetInstance()->current_test_info()->name(),
                           std::to_string(getpid()), "");
    }
    InstanceWords& Words() { return *m_block.Words(); }
    void Set(std::uint64_t header, std::uint64_t owner)
    {
        Words().header = header;
        Words().owner = owner;
    }

private:
    CInstanceBlock m_block;
};

std::uint64_t StampOfZombie(pid_t& child)
{
    int ready[2];
    EXPECT_EQ(pipe(ready), 0);
    child = fork();
    if (child == 0) {
        const std::uint64_t stamp = InstanceSystem::OwnStamp();
        _exit(write(ready[1], &stamp, sizeof(stamp)) == sizeof(stamp) ? 0 : 1);
    }
    std::uint64_t stamp = 0;
    EXPECT_EQ(read(ready[0], &stamp, sizeof(stamp)), static_cast<ssize_t>(sizeof(stamp)));
    siginfo_t info = {};
    waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT); // ended, and still to be collected
    close(ready[0]);
    close(ready[1]);
    return stamp;
}

} // namespace

TEST(InstanceClaim, TheOwnerThatABlockNamesDecides)
{
    const std::uint64_t own = InstanceSystem::OwnStamp();
    pid_t zombie = 0;
    const std::uint64_t ended = StampOfZombie(zombie);
    const std::tuple<const char*, std::uint64_t, Result> rows[] = {
        {"nobody", 0, Result::Owned},
        {"a running process", own, Result::Taken},
        {"a later process under the same number", own + 1, Result::Owned},
        {"a number that no process has", (0x7FFFFFFFULL << 32) | 1, Result::Owned},
        {"a process that ended and was not collected", ended, Result::Owned},
    };
    for (const auto& [name, owner, result] : rows) {
        LeftBehind block;
        block.Set(CInstanceBlock::kHeader, owner);
        EXPECT_EQ(CInstanceClaim(LeftBehind::Key()).Take(), result) << name;
    }
    waitpid(zombie, nullptr, 0);
}

TEST(InstanceClaim, ADamagedBlockIsTakenOverAfterItsTime)
{
    LeftBehind block;
    block.Set(kDamaged, kDamaged);
    const auto begin = std::chrono::steady_clock::now();
    CInstanceClaim claim(LeftBehind::Key(), milliseconds(80));
    EXPECT_EQ(claim.Take(), Result::Owned);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, milliseconds(80));
    EXPECT_EQ(block.Words().header, CInstanceBlock::kHeader);
    EXPECT_EQ(block.Words().owner, InstanceSystem::OwnStamp());
}

TEST(InstanceClaim, ABlockThatBecomesReadableInTimeKeepsItsOwner)
{
    LeftBehind block;
    block.Set(kDamaged, InstanceSystem::OwnStamp());
    std::thread mend([&] { block.Words().header = CInstanceBlock::kHeader; });
    EXPECT_EQ(CInstanceClaim(LeftBehind::Key(), std::chrono::seconds(30)).Take(), Result::Taken);
    mend.join();
}

TEST(InstanceClaim, ABlockWhoseCreatorDiedBeforeItHadASizeIsUsed)
{
    const std::string name = "/vantor-" + LeftBehind::Key();
    const int file = shm_open(name.c_str(), O_RDWR | O_CREAT, 0600);
    ASSERT_GE(file, 0);
    close(file);
    EXPECT_EQ(CInstanceClaim(LeftBehind::Key()).Take(), Result::Owned);
}

TEST(InstanceClaim, ReleasingTwiceAndTakingAgainWork)
{
    CInstanceClaim claim(LeftBehind::Key());
    EXPECT_EQ(claim.Take(), Result::Owned);
    EXPECT_EQ(claim.Take(), Result::Owned);
    CInstanceClaim other(LeftBehind::Key());
    EXPECT_EQ(other.Take(), Result::Taken);
    other.Release(); // takes nothing from the owner
    EXPECT_EQ(CInstanceClaim(LeftBehind::Key()).Take(), Result::Taken);
    claim.Release();
    claim.Release();
    EXPECT_EQ(other.Take(), Result::Owned);
}

TEST(InstanceClaim, ANameThatTheSystemRefusesIsUnavailable)
{
    EXPECT_EQ(CInstanceClaim("no/such/name").Take(), Result::Unavailable);
}

TEST(InstanceClaim, ManyThatTakeAndReleaseNeverOwnItTogether)
{
    std::atomic<int> owners{0};
    std::atomic<int> together{0};
    std::atomic<int> taken{0};
    const std::string key = LeftBehind::Key();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 1000; ++round) {
                CInstanceClaim claim(key);
                if (claim.Take() != Result::Owned)
                    continue;
                together += owners.fetch_add(1) != 0;
                ++taken;
                --owners;
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(together, 0);
    EXPECT_GT(taken, 0);
}

TEST(InstanceClaim, KeysTellIdentityUserAndRootApart)
{
    const std::string key = InstanceKey("App", "1000", "/data/");
    EXPECT_EQ(key.size(), 16U);
    EXPECT_EQ(key, InstanceKey("App", "1000", "/data/"));
    EXPECT_NE(key, InstanceKey("Apq", "1000", "/data/"));
    EXPECT_NE(key, InstanceKey("App", "1001", "/data/"));
    EXPECT_NE(key, InstanceKey("App", "1000", "/datb/"));
    EXPECT_NE(InstanceKey("App1", "000", ""), InstanceKey("App", "1000", ""));
}
