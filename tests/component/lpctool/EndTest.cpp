#include "component/lpctool/HostRun.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <ostream>

namespace {

constexpr const char* kUntilReady = "{\"expect_notify\":{\"method\":\"initFinish\"},\"within_ms\":20000}\n";

struct EndRow
{
    const char* name;
    const char* way;
    const char* script;
    int status;
    const char* output;
};

std::ostream& operator<<(std::ostream& out, const EndRow& row)
{
    return out << row.name;
}

const EndRow kRows[] = {
    {"asked and ended", "", kUntilReady, 0, "end the component"},
    {"not ended", "stubborn", "{\"set\":{\"end_ms\":200}}\n{\"expect_notify\":{\"method\":\"initFinish\"}}",
     1, "end: it did not end and was killed"},
    {"never connected", "unconnected", "{\"set\":{\"timeout_ms\":50}}\n", 1,
     "end: it could not be asked and was killed"},
    {"awaited and never connected", "unconnected",
     "{\"set\":{\"timeout_ms\":50}}\n{\"invoke\":{\"method\":\"m\"},\"reply\":\"*\"}", 1,
     "no connection of the component within 50 ms"},
    {"broken from the start", "broken", "{\"sleep_ms\":300}", 1,
     "the component ended before with exit code 3"},
    {"broken and awaited", "broken", kUntilReady, 1,
     "no matching notification: the component ended with exit code 3"},
    {"broken in silence", "", R"({"invoke":{"method":"die","body":{"exit":3}},"no_reply_ms":20000})", 1,
     "exit code 3"},
    {"broken as demanded", "broken", "{\"expect_exit\":3}", 0, "all as demanded"},
};

class Ends : public testing::TestWithParam<EndRow>
{};

TEST_P(Ends, AreCounted)
{
    CHostRun run;
    run.Start(GetParam().script, GetParam().way);
    EXPECT_EQ(run.Status(), GetParam().status) << GetParam().name << run.Output();
    EXPECT_NE(run.Output().find(GetParam().output), std::string::npos) << GetParam().name << run.Output();
}

INSTANTIATE_TEST_SUITE_P(TheHost, Ends, testing::ValuesIn(kRows));

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
    EXPECT_TRUE(WaitUntil([&] { return IsGone(component); }));
}

TEST(TheHost, EndsInOrderWhenItIsInterrupted)
{
    CHostRun run;
    run.Start(std::string(kUntilReady) + R"({"sleep_ms":3600000})");
    ASSERT_TRUE(run.Host().WaitForOutput("initFinish")) << run.Output();
    run.Host().Process().Signal(SIGTERM);
    EXPECT_EQ(run.Status(), 1);
    EXPECT_NE(run.Output().find("s.jsonl:2: interrupted"), std::string::npos) << run.Output();
    EXPECT_NE(run.Output().find("end the component"), std::string::npos) << run.Output();
}

TEST(TheHost, GivesTheProgramTheUsualArguments)
{
    CHostRun run;
    run.Start(kUntilReady, "", {"--skin", "BlueSkin", "--language", "34"});
    EXPECT_EQ(run.Status(), 0) << run.Output();
    EXPECT_NE(run.Output().find("argument 3 [BlueSkin 34 0 0 0 0]\n"), std::string::npos) << run.Output();
}

TEST(TheHost, GivesTheProgramOtherArgumentsAndAFileForItsOutput)
{
    CHostRun run;
    const std::string file = run.Root().Path() + "component-output";
    run.Start(kUntilReady, "", {"one", "", "two three", "--output", file});
    EXPECT_EQ(run.Status(), 0) << run.Output();
    EXPECT_EQ(run.Output().find("argument"), std::string::npos) << run.Output();
    const CProgramRun reader(run.Root(), {"cat", file});
    EXPECT_TRUE(reader.WaitForOutput("argument 1 [one]\nargument 2 []\nargument 3 [two three]\n"))
        << reader.Output();
}

TEST(TheHost, SaysWhenTheProgramCannotBeStarted)
{
    CHostRun run;
    const auto host = run.Tool({"host", "--spawn", "/nowhere/program"});
    EXPECT_EQ(host->Status(), 1);
    EXPECT_NE(host->Output().find("cannot start /nowhere/program: No such file"), std::string::npos)
        << host->Output();
}

TEST(TheHost, SaysWhenAnotherHostRuns)
{
    CHostRun run;
    run.StartAlone(R"({"sleep_ms":3600000})");
    ASSERT_TRUE(run.Host().WaitForOutput("listening"));
    const auto second = run.Tool({"host"});
    EXPECT_EQ(second->Status(), 1);
    EXPECT_NE(second->Output().find("another server has this name (error 1009)"), std::string::npos)
        << second->Output();
}

} // namespace
