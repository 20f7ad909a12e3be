#include "CrashAPI/CrashAPI.h"
#include "component/crash/CrashRun.h"

#include <gmock/gmock.h>

#include <chrono>
#include <ctime>

namespace {

namespace fs = std::filesystem;
using testing::EndsWith;

/// From the precise clock; std::time may be a tick behind it.
std::time_t Now()
{
    return std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
}

class Retention : public CrashReport
{
protected:
    void Leave(const std::vector<const char*>& names)
    {
        fs::create_directories(Folder());
        for (const char* name : names)
            std::ofstream(Folder() + name) << "old";
    }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const fs::path& report : Reports())
            names.push_back(report.filename().string());
        return names;
    }
};

TEST_F(Retention, NewestReplacesTheOldestAndForeignFilesStay)
{
    Leave({"crash-20200101-000000-1.txt", "crash-20210101-000000-1.txt", "full-dump", "notes.txt"});
    const std::time_t before = Now();
    const Child child = Crash({"abort"});

    const auto files = Reports();
    ASSERT_EQ(files.size(), 3u);
    const std::string newest = files[0].filename().string();
    const std::string end = "-" + std::to_string(child.pid) + ".txt";
    std::tm utc{};
    EXPECT_EQ(::strptime(newest.c_str(), "crash-%Y%m%d-%H%M%S", &utc),
              newest.c_str() + newest.size() - end.size());
    EXPECT_THAT(newest, EndsWith(end));
    EXPECT_GE(::timegm(&utc), before);
    EXPECT_LE(::timegm(&utc), Now());
    EXPECT_EQ(files[1].filename(), "full-dump");
    EXPECT_EQ(files[2].filename(), "notes.txt");
}

TEST_F(Retention, SmallerCountRemovesTheOldestAtOnce)
{
    Leave({"crash-20200101-000000-1.txt", "crash-20200101-000001-1.txt", "crash-20210101-000000-1.txt"});
    ASSERT_TRUE(CrashAPI_SetDumpMaxCount(3));
    ASSERT_TRUE(CrashAPI_SetDumpPath(Folder().c_str()));
    EXPECT_EQ(Reports().size(), 3u);
    ASSERT_TRUE(CrashAPI_SetDumpMaxCount(2));
    ASSERT_EQ(Reports().size(), 2u);
    EXPECT_EQ(Reports()[0].filename(), "crash-20200101-000001-1.txt");
}

TEST_F(Retention, WithinASecondTheTimeOfWritingDecides)
{
    Leave({"crash-20200101-000000-10.txt", "crash-20200101-000000-9.txt"});
    const auto written = fs::last_write_time(Folder() + "crash-20200101-000000-10.txt");
    fs::last_write_time(Folder() + "crash-20200101-000000-9.txt", written - std::chrono::milliseconds(1));
    ASSERT_TRUE(CrashAPI_SetDumpPath(Folder().c_str()));
    ASSERT_TRUE(CrashAPI_SetDumpMaxCount(1));
    EXPECT_EQ(Names(), std::vector<std::string>{"crash-20200101-000000-10.txt"});
}

TEST_F(Retention, ReportFromAWrongClockDoesNotReplaceANewOne)
{
    Leave({"crash-20990101-000000-1.txt"});
    Crash({"abort"});
    EXPECT_THAT(OnlyReport(), EndsWith("\nend of report\n"));
}

TEST_F(Retention, FullDiskDoesNotCostTheOlderReport)
{
    Leave({"crash-20200101-000000-1.txt"});
    EXPECT_EQ(Crash({"null-write", "disk-full"}).Signal(), SIGSEGV);
    EXPECT_EQ(Names(), std::vector<std::string>{"crash-20200101-000000-1.txt"});
}

TEST_F(Retention, ProcessesThatCrashTogetherLeaveOneReport)
{
    for (int round = 0; round < 5; ++round) {
        std::vector<pid_t> together;
        for (int i = 0; i < 4; ++i)
            together.push_back(Start({"null-write"}, Folder()));
        for (const pid_t pid : together)
            EXPECT_EQ(Await(pid).Signal(), SIGSEGV);
        EXPECT_THAT(OnlyReport(), EndsWith("\nend of report\n"));
    }
}

} // namespace
