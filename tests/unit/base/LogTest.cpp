#include "Base/Log.h"
#include "Base/FileUtil.h"
#include "Base/ProcessUtil.h"
#include "support/CapturedLog.h"
#include "support/FileContent.h"
#include "support/FileLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <thread>

using Base::LogLevel;

namespace {

std::string FileLog(const std::string& folder)
{
    const std::string properties = folder + "log.properties";
    WriteLogSettings(properties, folder + "out.log", "%p|%c|%F|%m%n", "INFO");
    return properties;
}

TEST(TheLog, WritesLevelLoggerAndPlaceUntilItIsClosed)
{
    TestDataRoot root;
    BASE_INFO("lost before");
    ASSERT_TRUE(Base::CLog::Instance().InitLog(FileLog(root.Path())));
    BASE_FATAL("[%s] is not exist.", "x");
    BASE_DEBUG("below the level");
    BASE_ERROR_TO("VideoLogger", "Failed %d", 7);
    Base::CLog::Instance().UninitLog();
    BASE_ERROR("lost after");
    Base::CLog::Instance().UninitLog();

    const std::string text = FileContent(root.Path() + "out.log");
    EXPECT_NE(text.find("FATAL|root|"), std::string::npos) << text;
    EXPECT_NE(text.find("LogTest.cpp|[x] is not exist."), std::string::npos) << text;
    EXPECT_NE(text.find("ERROR|VideoLogger|"), std::string::npos) << text;
    EXPECT_EQ(text.find("lost"), std::string::npos) << text;
    EXPECT_EQ(text.find("below"), std::string::npos) << text;
}

/// A line that stays under way until it is released.
struct SlowLine
{
    std::promise<void> begun;
    std::promise<void> release;
    std::atomic<bool> ended{false};
};
SlowLine* g_slowLine = nullptr;

TEST(ClosingTheLog, WaitsForALineThatAnotherThreadIsWriting)
{
    TestDataRoot root;
    ASSERT_TRUE(Base::CLog::Instance().InitLog(FileLog(root.Path())));
    SlowLine line;
    g_slowLine = &line;
    Base::SetLogObserver([](LogLevel, const char*, const std::string&) {
        g_slowLine->begun.set_value();
        g_slowLine->release.get_future().wait();
        g_slowLine->ended = true;
    });
    std::thread writer([] { BASE_INFO("slow"); });
    line.begun.get_future().wait();
    std::thread helper([&] { line.release.set_value(); });
    Base::CLog::Instance().UninitLog();
    EXPECT_TRUE(line.ended);
    helper.join();
    writer.join();
    Base::SetLogObserver(nullptr);
    EXPECT_NE(FileContent(root.Path() + "out.log").find("|slow"), std::string::npos);
}

TEST(TheLog, GoesToStandardErrorWithoutAPropertiesFile)
{
    testing::internal::CaptureStderr();
    EXPECT_FALSE(Base::CLog::Instance().InitLog("no/such/log.properties"));
    BASE_ERROR("seen all the same");
    Base::CLog::Instance().UninitLog();
    EXPECT_NE(testing::internal::GetCapturedStderr().find("ERROR root seen all the same"), std::string::npos);
}

/// One line says so, and the installed settings hold.
TEST(TheLog, FollowsTheInstalledSettingsWhenTheUsersGiveNone)
{
    constexpr const char* kNone = "it sets up no appender for the root logger";
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"empty", "", kNone},
        {"noise", "\1\xff=\n\n=\xfe\\", kNone},
        {"unknown class", "log4j.rootLogger=INFO, F\nlog4j.appender.F=org.apache.log4j.NoAppender\n", kNone},
        {"no such place",
         "log4j.rootLogger=INFO, F\nlog4j.appender.F=org.apache.log4j.FileAppender\n"
         "log4j.appender.F.layout=org.apache.log4j.SimpleLayout\nlog4j.appender.F.File=/proc/no/file\n",
         "the file [/proc/no/file] cannot be written"},
    };
    for (const auto& [name, settings, reason] : rows) {
        TestDataRoot root;
        const std::string bad = root.Path() + "bad.properties";
        Base::FileUtil::WriteFileAtomically(bad, settings);
        testing::internal::CaptureStderr();
        EXPECT_FALSE(Base::CLog::Instance().InitLog(bad, FileLog(root.Path()))) << name;
        BASE_ERROR("seen all the same");
        Base::CLog::Instance().UninitLog();
        EXPECT_NE(testing::internal::GetCapturedStderr().find("Log: [" + bad +
                                                              "] cannot be followed: " + reason + ".\n"),
                  std::string::npos)
            << name;
        EXPECT_NE(FileContent(root.Path() + "out.log").find("seen all the same"), std::string::npos) << name;
    }
}

/// Standard error where the limit of files' sizes does not hold.
class StderrInPipe
{
public:
    StderrInPipe() : m_before(::dup(STDERR_FILENO))
    {
        EXPECT_EQ(::pipe(m_ends), 0);
        EXPECT_EQ(::fcntl(m_ends[0], F_SETFL, O_NONBLOCK), 0);
        ::dup2(m_ends[1], STDERR_FILENO);
    }
    ~StderrInPipe()
    {
        ::dup2(m_before, STDERR_FILENO);
        for (const int end : {m_before, m_ends[0], m_ends[1]})
            ::close(end);
    }
    StderrInPipe(const StderrInPipe&) = delete;
    StderrInPipe& operator=(const StderrInPipe&) = delete;

    std::string Taken() const
    {
        std::string text(64 * 1024, '\0');
        text.resize(
            static_cast<std::size_t>(std::max<ssize_t>(0, ::read(m_ends[0], text.data(), text.size()))));
        return text;
    }

private:
    const int m_before;
    int m_ends[2] = {-1, -1};
};

TEST(TheLog, SaysHowManyLinesCouldNotBeWritten)
{
    TestDataRoot root;
    Base::ProcessUtil::FailWritesInsteadOfEnding();
    ASSERT_TRUE(Base::CLog::Instance().InitLog(FileLog(root.Path())));
    BASE_INFO("before");
    rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit none{0, before.rlim_max};
    StderrInPipe standardError;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
    const auto lose = [] {
        for (int i = 0; i < 500; ++i)
            BASE_INFO("lost");
    };
    std::thread other(lose);
    lose();
    other.join();
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    const std::string told = standardError.Taken();
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
    BASE_INFO("after");
    Base::CLog::Instance().UninitLog();
    const std::string text = FileContent(root.Path() + "out.log");
    EXPECT_EQ(text.find("|lost"), std::string::npos) << text;
    EXPECT_NE(text.find("|Here 1000 lines are missing that could not be written.\nINFO|"), std::string::npos)
        << text;
}

TEST(TheLog, KeepsLongMessagesUpToItsLimit)
{
    CapturedLog log;
    BASE_INFO("%s", std::string(600, 'a').c_str());
    BASE_INFO("%s", std::string(100000, 'b').c_str());
    const auto messages = log.Messages(LogLevel::Info);
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(messages[0], std::string(600, 'a'));
    EXPECT_EQ(messages[1], std::string(16 * 1024, 'b'));
}

} // namespace
