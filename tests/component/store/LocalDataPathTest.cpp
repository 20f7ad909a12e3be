#include "logical/Local/LocalDataPath.h"
#include "StoreWorld.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

using video::CLocalDataPath;

namespace {

class LocalDataPath : public testing::Test
{
protected:
    std::string Now() const
    {
        const auto folders = CLocalDataPath(m_file, {"default", "default"}).Folders();
        return folders.video + "|" + folders.capture;
    }

    TestDataRoot m_root;
    const std::string m_file = m_root.Path() + "SaveFolders.json";
};

} // namespace

TEST_F(LocalDataPath, SurvivesARestartAndIsWrittenOnlyWhenChanged)
{
    EXPECT_EQ(Now(), "default|default");
    EXPECT_FALSE(store::Exists(m_file));
    CLocalDataPath paths(m_file, {"default", "default"});
    paths.SetFolders({"D:\\clips \"a\"", "\xE5\xBD\x95\xE5\x83\x8F"});
    EXPECT_EQ(Now(), "D:\\clips \"a\"|\xE5\xBD\x95\xE5\x83\x8F");
    std::filesystem::remove(m_file);
    paths.SetFolders(paths.Folders());
    EXPECT_FALSE(store::Exists(m_file)) << "nothing changed";
    paths.SetFolders({"default", "default"});
    EXPECT_TRUE(store::Exists(m_file)) << "what was set holds, also when the defaults change";
}

TEST_F(LocalDataPath, PutsAFileAsideThatItCannotRead)
{
    for (const std::string content : {"", "{", "{}", R"({"saveFolders": {"video": 1, "capture": ""}})"}) {
        SCOPED_TRACE(content);
        store::WriteAll(m_file, content);
        const CapturedLog log;
        CLocalDataPath paths(m_file, {"default", "default"});
        EXPECT_EQ(log.Messages(Base::LogLevel::Error).size(), 1u);
        EXPECT_EQ(paths.Folders().video, "default");
        EXPECT_EQ(store::ReadAll(m_file), content);
        paths.SetFolders({"v", "c"});
        EXPECT_EQ(Now(), "v|c");
        EXPECT_EQ(store::ReadAll(m_file + ".damaged"), content);
    }
}

TEST_F(LocalDataPath, HoldsUntilTheEndWhenItCannotBeWritten)
{
    CLocalDataPath paths(m_root.Path() + "missing/SaveFolders.json", {"default", "default"});
    const CapturedLog log;
    paths.SetFolders({"v", "c"});
    EXPECT_EQ(paths.Folders().video, "v");
    EXPECT_EQ(log.Messages(Base::LogLevel::Error).size(), 1u);
    std::filesystem::create_directories(m_root.Path() + "missing");
    paths.SetFolders({"v", "c"});
    EXPECT_TRUE(store::Exists(m_root.Path() + "missing/SaveFolders.json")) << "the next set tries again";
}
