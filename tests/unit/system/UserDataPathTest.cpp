#include "CommonMethodLib/UserDataPath.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>

namespace {

using comm_methodlib::CUserDataPath;
namespace fs = std::filesystem;

int ModeOf(const std::string& path)
{
    struct stat found
    {};
    return ::stat(path.c_str(), &found) == 0 ? static_cast<int>(found.st_mode & 0777) : -1;
}

void Touch(const std::string& path)
{
    std::ofstream(path) << "x";
}

/// Keeps the umask, which init changes, from reaching the next test.
class UserDataPath : public testing::Test
{
protected:
    UserDataPath() : m_umask(::umask(022)) {}
    ~UserDataPath() override { ::umask(m_umask); }

    TestDataRoot m_data;
    CUserDataPath m_paths;

private:
    mode_t m_umask;
};

TEST_F(UserDataPath, EveryFolderLiesBelowTheDataRootAndExists)
{
    ASSERT_TRUE(m_paths.init("/opt/vantor/bin/../", "Video.C", -1, -1));

    const std::string root = m_data.Path();
    const std::pair<std::string, std::string> rows[] = {
        {m_paths.rootPath(), root},
        {m_paths.componentPath(), root + "Video.C/"},
        {m_paths.logPath(), root + "Video.C/log/"},
        {m_paths.dumpPath(), root + "Video.C/dump/"},
        {m_paths.videoPath(), root + "Video/"},
        {m_paths.capturePath(), root + "Picture/"},
    };
    for (const auto& [path, expected] : rows) {
        EXPECT_EQ(path, expected);
        EXPECT_TRUE(fs::is_directory(path)) << path;
    }
    EXPECT_EQ(m_paths.installDataPath(), "/opt/vantor/");
    EXPECT_STREQ(std::getenv("VANTOR_LOG_DIR"), (root + "Video.C/log").c_str());
    EXPECT_STREQ(std::getenv("VANTOR_COMPONENT"), "Video.C");
}

TEST_F(UserDataPath, ModesHoldForItsFoldersAndForWhatTheProcessCreatesLater)
{
    const std::tuple<int, int, int, int, int> rows[] = {
        {-1, -1, 0700, 0600, 0700},
        {0750, 0640, 0750, 0640, 0750},
        {0755, 0600, 0755, 0600, 0711}, // Later folders share the umask that protects the files.
    };
    for (const auto& [dirMode, fileMode, folder, laterFile, laterFolder] : rows) {
        TestDataRoot data;
        CUserDataPath paths;
        ASSERT_TRUE(paths.init("/opt/", "Video.C", dirMode, fileMode));
        Touch(paths.logPath() + "later");
        fs::create_directory(paths.logPath() + "folder");

        EXPECT_EQ(ModeOf(paths.componentPath()), folder);
        EXPECT_EQ(ModeOf(paths.dumpPath()), folder);
        EXPECT_EQ(ModeOf(paths.logPath() + "later"), laterFile);
        EXPECT_EQ(ModeOf(paths.logPath() + "folder"), laterFolder);
    }
}

TEST_F(UserDataPath, SecondStartKeepsFilesAndTheModeOfFolders)
{
    ASSERT_TRUE(m_paths.init("/opt/", "Video.C", -1, -1));
    Touch(m_paths.componentPath() + "kept");
    fs::permissions(m_paths.componentPath(), fs::perms(0750));

    CUserDataPath again;
    ASSERT_TRUE(again.init("/opt/", "Video.C", -1, -1));
    EXPECT_TRUE(fs::exists(again.componentPath() + "kept"));
    EXPECT_EQ(ModeOf(again.componentPath()), 0750);
}

TEST_F(UserDataPath, PropertiesThatTheUserPutThereWinOverTheInstalledOnes)
{
    ASSERT_TRUE(m_paths.init("/opt", "Video.C", -1, -1));
    EXPECT_EQ(m_paths.logPropertiesPath(), "/opt/resources/log.properties");
    Touch(m_paths.componentPath() + "log.properties");
    EXPECT_EQ(m_paths.logPropertiesPath(), m_paths.componentPath() + "log.properties");
}

TEST_F(UserDataPath, WhatCannotBeUsedIsRefusedWithOneLineAndLogsToStandardError)
{
    Touch(m_data.Path() + "file");
    const std::tuple<std::string, std::string, std::string> rows[] = {
        {m_data.Path() + "file", "Video.C",
         "User data: cannot write in [" + m_data.Path() + "file/]: Not a directory.\n"},
        {"/proc/vantor", "Video.C",
         "User data: cannot write in [/proc/vantor/]: No such file or directory.\n"},
        {m_data.Path(), "../Video.C", "User data: [../Video.C] is not the name of a component.\n"},
        {m_data.Path(), "..", "User data: [..] is not the name of a component.\n"},
        {m_data.Path(), "", "User data: [] is not the name of a component.\n"},
    };
    for (const auto& [root, component, line] : rows) {
        setenv("VANTOR_USER_DATA", root.c_str(), 1);
        CUserDataPath paths;
        testing::internal::CaptureStderr();
        EXPECT_FALSE(paths.init("/opt/", component, -1, -1));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), line);
        EXPECT_EQ(paths.logPropertiesPath(), "");
    }
}

} // namespace
