#include "ChildProcess/ChildProcess.h"

#include "support/TestDataRoot.h"

#include "Base/FileUtil.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <future>

namespace {

constexpr int kLongestMs = 20000;

TEST(AChildProcess, TellsHowItEnded)
{
    const std::tuple<const char*, int, const char*> rows[] = {
        {"exit 0", 0, "exit code 0"},
        {"exit 7", 7, "exit code 7"},
        {"kill -SEGV $$", -SIGSEGV, "signal 11 (SIGSEGV)"}};
    for (const auto& [script, wanted, description] : rows) {
        std::promise<int> told;
        CChildProcess child([&](int status) { told.set_value(status); });
        std::string error;
        ASSERT_TRUE(child.Start({"sh", "-c", script}, "", error)) << error;
        EXPECT_EQ(child.WaitForExit(kLongestMs), wanted);
        EXPECT_EQ(told.get_future().get(), wanted);
        EXPECT_EQ(CChildProcess::DescribeStatus(wanted), description);
        EXPECT_FALSE(child.Signal(SIGTERM));
    }
}

TEST(AChildProcess, DoesNotOutliveItsObject)
{
    long long id = 0;
    {
        CChildProcess child;
        std::string error;
        ASSERT_TRUE(child.Start({"sh", "-c", "trap '' TERM; exec sleep 3600"}, "", error)) << error;
        id = child.Id();
        EXPECT_FALSE(child.ExitStatus());
        EXPECT_FALSE(child.WaitForExit(1));
    }
    EXPECT_NE(kill(static_cast<pid_t>(id), 0), 0);
}

/// What a shell wrote to the file for its output.
std::string OutputOf(const TestDataRoot& root, const std::string& command)
{
    CChildProcess child;
    std::string text;
    EXPECT_TRUE(child.Start({"sh", "-c", command}, root.Path() + "output", text)) << text;
    EXPECT_EQ(child.WaitForExit(kLongestMs), 0);
    EXPECT_TRUE(Base::FileUtil::ReadFile(root.Path() + "output", text));
    return text;
}

TEST(AChildProcess, WritesBothOutputsToTheFile)
{
    EXPECT_EQ(OutputOf(TestDataRoot(), "echo one; echo two >&2"), "one\ntwo\n");
}

TEST(AChildProcess, InheritsNoOpenFileOfItsParent)
{
    const TestDataRoot root;
    const std::ofstream open(root.Path() + "other");
    const std::string files = OutputOf(root, "ls -l /proc/$$/fd");
    EXPECT_NE(files.find("output"), std::string::npos) << files;
    EXPECT_EQ(files.find("other"), std::string::npos) << files;
}

TEST(AChildProcess, SaysWhyItCannotStart)
{
    for (const std::string& output : {std::string(), std::string("/nowhere/output")}) {
        CChildProcess child;
        std::string error;
        EXPECT_FALSE(child.Start({output.empty() ? "/nowhere/program" : "true"}, output, error));
        EXPECT_EQ(error, "No such file or directory");
        EXPECT_FALSE(child.Signal(SIGTERM));
        EXPECT_FALSE(child.ExitStatus());
    }
}

TEST(SignalNames, HaveNumbers)
{
    EXPECT_EQ(CChildProcess::SignalNumber("SIGKILL"), SIGKILL);
    EXPECT_EQ(CChildProcess::SignalNumber("SIGSTOP"), SIGSTOP);
    for (const char* unknown : {"KILL", "sigkill", "SIG", "", "9"})
        EXPECT_FALSE(CChildProcess::SignalNumber(unknown)) << unknown;
}

} // namespace
