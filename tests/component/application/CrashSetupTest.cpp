#include "ui/Application/CrashSetup.h"

#include "CommonMethodLib/UserDataPath.h"
#include "CrashAPI/CrashAPI.h"
#include "CrashAPI/CrashSettings.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

class TheCrashSetup : public testing::Test
{
protected:
    TheCrashSetup()
    {
        comm_methodlib::CUserDataPath::Instance().init(root.Path() + "bin/../", "Video.C", -1, -1);
    }
    ~TheCrashSetup() override { CrashAPI_Uninit(); }

    TestDataRoot root;
    CapturedLog log;
    const std::string dumpPath = root.Path() + "Video.C/dump/";
};

TEST_F(TheCrashSetup, WritesNormalReportsIntoTheDumpFolder)
{
    video::crashAPIInit();
    EXPECT_EQ(crash::DumpPath(), dumpPath);
    EXPECT_EQ(crash::DumpType(), 0u);
    EXPECT_TRUE(log.Lines().empty());
}

TEST_F(TheCrashSetup, WritesFullReportsWhenTheyAreAskedFor)
{
    std::ofstream(dumpPath + "full-dump") << "";
    video::crashAPIInit();
    EXPECT_EQ(crash::DumpType(), 0x9B67u);
}

TEST_F(TheCrashSetup, KeepsTheNewestReportOnly)
{
    for (const char* report : {"crash-20200101-000000-1.txt", "crash-20210101-000000-1.txt"})
        std::ofstream(dumpPath + report) << "old";
    video::crashAPIInit();
    EXPECT_FALSE(std::filesystem::exists(dumpPath + "crash-20200101-000000-1.txt"));
    EXPECT_TRUE(std::filesystem::exists(dumpPath + "crash-20210101-000000-1.txt"));
}

TEST_F(TheCrashSetup, LogsAFolderThatCannotBeUsedAndGoesOn)
{
    std::filesystem::remove(dumpPath);
    std::ofstream(dumpPath.substr(0, dumpPath.size() - 1)) << "in the way";
    video::crashAPIInit();
    EXPECT_EQ(log.Errors(), std::vector<std::string>{"Failed to CrashAPI_SetDumpPath [" + dumpPath + "]."});
}

} // namespace
