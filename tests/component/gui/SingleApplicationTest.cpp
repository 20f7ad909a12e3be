#include "SingleApplication/InstanceClaim.h"
#include "SingleApplication/ProcessStamp.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QProcess>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <vector>

#include <signal.h>

namespace {

constexpr int kWaitMs = 20'000;

/// One process of the helper program, which takes its data root from the environment of the moment of its
/// start.
class Instance
{
public:
    Instance()
    {
        m_process.setProgram(SINGLE_INSTANCE_HELPER);
        m_process.start();
        EXPECT_TRUE(m_process.waitForStarted(kWaitMs));
    }
    ~Instance()
    {
        m_process.kill();
        m_process.waitForFinished(kWaitMs);
    }

    void Go()
    {
        m_process.write("\n");
        m_process.waitForBytesWritten(kWaitMs);
    }

    /// "primary" or "second"; empty when the process says nothing in time.
    std::string Role()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(kWaitMs)) {
        }
        return m_process.readLine().trimmed().toStdString();
    }

    std::string GoAndRole()
    {
        Go();
        return Role();
    }

    int ExitCode()
    {
        EXPECT_TRUE(m_process.waitForFinished(kWaitMs));
        return m_process.exitCode();
    }

    void Signal(int signal) { kill(static_cast<pid_t>(m_process.processId()), signal); }

    void KillHard()
    {
        Signal(SIGKILL);
        EXPECT_TRUE(m_process.waitForFinished(kWaitMs));
    }

    std::string Log() { return m_process.readAllStandardError().toStdString(); }

private:
    QProcess m_process;
};

std::string BlockPath(const TestDataRoot& root)
{
    return "/dev/shm/vantor-" + InstanceKey("Vantor.Test", InstanceSystem::UserIdentity(), root.Path());
}

bool HasSocket(const TestDataRoot& root)
{
    const std::filesystem::directory_iterator files(root.Path());
    return std::any_of(begin(files), end(files), [](const auto& file) { return file.is_socket(); });
}

} // namespace

TEST(SingleApplication, ASecondStartEndsWithZeroAndAnOrderlyEndLeavesNothingBehind)
{
    TestDataRoot root;
    {
        Instance first;
        ASSERT_EQ(first.GoAndRole(), "primary");
        EXPECT_TRUE(std::filesystem::exists(BlockPath(root)));
        EXPECT_TRUE(HasSocket(root));
        for (int start = 0; start < 3; ++start) {
            Instance second;
            EXPECT_EQ(second.GoAndRole(), "second");
            EXPECT_EQ(second.ExitCode(), 0);
        }
        first.Go();
        EXPECT_EQ(first.ExitCode(), 7);
    }
    EXPECT_FALSE(std::filesystem::exists(BlockPath(root)));
    EXPECT_FALSE(HasSocket(root));
    Instance next;
    EXPECT_EQ(next.GoAndRole(), "primary");
    next.Go();
    next.ExitCode();
}

TEST(SingleApplication, APrimaryThatStandsStillIsNotRobbed)
{
    TestDataRoot root;
    Instance first;
    ASSERT_EQ(first.GoAndRole(), "primary");
    first.Signal(SIGSTOP);
    Instance second;
    EXPECT_EQ(second.GoAndRole(), "second");
    first.Signal(SIGCONT);
    first.Go();
    EXPECT_EQ(first.ExitCode(), 7);
}

TEST(SingleApplication, OfTenStartsAtOnceExactlyOneIsPrimaryAlsoAfterAKill)
{
    TestDataRoot root;
    for (int round = 0; round < 4; ++round) {
        std::vector<std::unique_ptr<Instance>> instances;
        for (int i = 0; i < 10; ++i)
            instances.push_back(std::make_unique<Instance>());
        for (auto& instance : instances)
            instance->Go();
        int primaries = 0;
        for (auto& instance : instances) {
            const std::string role = instance->Role();
            primaries += role == "primary";
            EXPECT_TRUE(role == "primary" || role == "second") << "[" << role << "] " << instance->Log();
        }
        EXPECT_EQ(primaries, 1) << "round " << round;
        for (auto& instance : instances)
            instance->KillHard();
        EXPECT_TRUE(std::filesystem::exists(BlockPath(root))) << "the kill should leave the block behind";
    }
    std::filesystem::remove(BlockPath(root));
}

TEST(SingleApplication, WithoutSharedMemoryTheLocalServerDecides)
{
    TestDataRoot root;
    std::filesystem::create_directory(BlockPath(root)); // no block can have this name now
    Instance first;
    EXPECT_EQ(first.GoAndRole(), "primary");
    Instance second;
    EXPECT_EQ(second.GoAndRole(), "second");
    EXPECT_EQ(second.ExitCode(), 0);
    first.KillHard();
    EXPECT_EQ(first.Log(), "SingleApplication: Unable to attach to shared memory block.\n");
    Instance third;
    EXPECT_EQ(third.GoAndRole(), "primary");
    third.Go();
    third.ExitCode();
    std::filesystem::remove(BlockPath(root));
}
