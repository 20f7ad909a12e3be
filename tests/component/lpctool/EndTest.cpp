#include "component/lpctool/HostRun.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

namespace {

constexpr const char* kUntilReady = "{\"expect_notify\":{\"method\":\"initFinish\"},\"within_ms\":20000}\n";

/// The number behind "process " in the host's output.
pid_t ChildOf(const CHostRun& run)
{
    const std::string output = run.Output();
    return std::stoi(output.substr(output.find(", process ") + 10));
}

bool IsGone(pid_t process)
{
    // A process that nobody has reaped yet is still listed, but runs no program.
    std::error_code error;
    (void)std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
    return static_cast<bool>(error);
}

TEST(TheHost, LeavesNoComponentBehindWhenItIsKilled)
{
    CHostRun run;
    run.Start(std::string(kUntilReady) + R"({"sleep_ms":3600000})", "stubborn");
    ASSERT_TRUE(run.Host().WaitForOutput("initFinish")) << run.Output();
    const pid_t component = ChildOf(run);
    ASSERT_FALSE(IsGone(component));
    run.Host().Process().Signal(SIGKILL);
    EXPECT_EQ(run.Status(), -SIGKILL);
    EXPECT_TRUE(WaitUntil([&] { return IsGone(component); }, std::chrono::seconds(30)));
}

TEST(TheHost, EndsInOrderWhenItIsInterrupted)
{
    CHostRun run;
    run.Start(std::string(kUntilReady) + R"({"sleep_ms":3600000})");
    ASSERT_TRUE(run.Host().WaitForOutput("initFinish")) << run.Output();
    run.Host().Process().Signal(SIGTERM);
    EXPECT_EQ(run.Status(), 1);
    EXPECT_TRUE(run.Says("s.jsonl:2: interrupted")) << run.Output();
    EXPECT_TRUE(run.Says("end the component")) << run.Output();
}

TEST(TheHost, GivesTheProgramItsArgumentsAndAFileForItsOutput)
{
    CHostRun usual;
    usual.Start(kUntilReady, "", {"--skin", "BlueSkin", "--language", "34"});
    EXPECT_EQ(usual.Status(), 0) << usual.Output();
    EXPECT_TRUE(usual.Says("argument 3 [BlueSkin 34 0 0 0 0]\n")) << usual.Output();
    CHostRun run;
    const std::string file = run.Root().Path() + "component-output";
    run.Start(kUntilReady, "", {"one", "", "two three", "--output", file});
    EXPECT_EQ(run.Status(), 0) << run.Output();
    EXPECT_FALSE(run.Says("argument")) << run.Output();
    const CProgramRun reader(run.Root(), {"cat", file});
    EXPECT_TRUE(reader.WaitForOutput("argument 1 [one]\nargument 2 []\nargument 3 [two three]\n"))
        << reader.Output();
}

TEST(TheHost, SaysWhenTheProgramCannotBeStarted)
{
    CHostRun run;
    const auto host = run.Tool({"host", "--spawn", "/nowhere/program"});
    EXPECT_EQ(host->Status(), 1);
    EXPECT_TRUE(host->Says("cannot start /nowhere/program: No such file")) << host->Output();
}

TEST(TheHost, SaysWhenAnotherHostRuns)
{
    CHostRun run;
    run.StartAlone(R"({"sleep_ms":3600000})");
    ASSERT_TRUE(run.Host().WaitForOutput("listening"));
    const auto second = run.Tool({"host"});
    EXPECT_EQ(second->Status(), 1);
    EXPECT_TRUE(second->Says("another server has this name (error 1009)")) << second->Output();
}

} // namespace
