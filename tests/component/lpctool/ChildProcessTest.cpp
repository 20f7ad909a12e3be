#include "ChildProcess/ChildProcess.h"

#include "support/TestDataRoot.h"

#include "Base/FileUtil.h"

#include <gtest/gtest.h>

#include <csignal>
#include <future>

namespace {

constexpr int kLongestMs = 20000;

TEST(AChildProcess, TellsHowItEnded)
{
    const struct
    {
        const char* script;
        int status;
        const char* description;
    } rows[] = {{"exit 0", 0, "exit code 0"},
                {"exit 7", 7, "exit code 7"},
                {"kill -SEGV $$", -SIGSEGV, "signal 11 (SIGSEGV)"}};
    for (const auto& row : rows) {
        std::promise<int> told;
        CChildProcess child([&](int status) { told.set_value(status); });
        std::string error;
        ASSERT_TRUE(child.Start({"sh", "-c", row.script}, "", error)) << error;
        EXPECT_EQ(child.WaitForExit(kLongestMs), row.status);
        EXPECT_EQ(told.get_future().get(), row.status);
        EXPECT_EQ(CChildProcess::DescribeStatus(row.status), row.description);
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

TEST(AChildProcess, WritesBothOutputsToTheFile)
{
    const TestDataRoot root;
    const std::string path = root.Path() + "output";
    CChildProcess child;
    std::string error;
    ASSERT_TRUE(child.Start({"sh", "-c", "echo one; echo two >&2"}, path, error)) << error;
    EXPECT_EQ(child.WaitForExit(kLongestMs), 0);
    std::string text;
    ASSERT_TRUE(Base::FileUtil::ReadFile(path, text));
    EXPECT_EQ(text, "one\ntwo\n");
}

TEST(AChildProcess, InheritsNoOpenFileOfItsParent)
{
    const TestDataRoot root;
    const std::string path = root.Path() + "output";
    std::FILE* open = std::fopen((root.Path() + "other").c_str(), "w");
    CChildProcess child;
    std::string error;
    ASSERT_TRUE(child.Start({"sh", "-c", "ls -l /proc/$$/fd"}, path, error)) << error;
    EXPECT_EQ(child.WaitForExit(kLongestMs), 0);
    std::fclose(open);
    std::string text;
    ASSERT_TRUE(Base::FileUtil::ReadFile(path, text));
    EXPECT_NE(text.find("output"), std::string::npos) << text;
    EXPECT_EQ(text.find("other"), std::string::npos) << text;
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
