#include "Base/FileUtil.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <future>

using namespace Base::FileUtil;

namespace {

TEST(WritingAFile, ReplacesItWholeAndLeavesNothingBeside)
{
    TestDataRoot root;
    const std::string path = root.Path() + "file";
    std::ofstream(path + ".writing") << "a killed process left this";
    ASSERT_TRUE(WriteFileAtomically(path, "old"));
    ASSERT_TRUE(WriteFileAtomically(path, std::string("new\0text", 8)));
    std::string content;
    ASSERT_TRUE(ReadFile(path, content));
    EXPECT_EQ(content, std::string("new\0text", 8));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(root.Path()), {}), 1);
    EXPECT_EQ(std::filesystem::status(path).permissions() & std::filesystem::perms::others_all,
              std::filesystem::perms::none);
}

TEST(WritingAFile, IsDoneByOneThreadAfterTheOther)
{
    TestDataRoot root;
    const std::string path = root.Path() + "file";
    const auto write = [&](char letter) {
        bool written = true;
        for (int time = 0; time < 10; ++time)
            written = WriteFileAtomically(path, std::string(5000, letter)) && written;
        return written;
    };
    std::vector<std::future<bool>> writers;
    for (const char letter : {'a', 'b', 'c', 'd'})
        writers.push_back(std::async(std::launch::async, write, letter));
    for (auto& writer : writers)
        EXPECT_TRUE(writer.get());
    std::string content;
    ASSERT_TRUE(ReadFile(path, content));
    EXPECT_EQ(content, std::string(5000, content.empty() ? ' ' : content[0]));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(root.Path()), {}), 1);
}

TEST(ReadingAFile, RefusesOneOverTheLimitAndAMissingOne)
{
    TestDataRoot root;
    std::string content;
    ASSERT_TRUE(WriteFileAtomically(root.Path() + "file", std::string(101, 'x')));
    EXPECT_FALSE(ReadFile(root.Path() + "file", content, 100));
    EXPECT_TRUE(ReadFile(root.Path() + "file", content, 101));
    EXPECT_FALSE(ReadFile(root.Path() + "none", content));
}

TEST(MakingFolders, CreatesAllOfThemAndFailsBelowAFile)
{
    TestDataRoot root;
    EXPECT_TRUE(MakeDirs(root.Path() + "a/b/c/"));
    EXPECT_TRUE(MakeDirs(root.Path() + "a/b/c/"));
    EXPECT_TRUE(std::filesystem::is_directory(root.Path() + "a/b/c"));
    ASSERT_TRUE(WriteFileAtomically(root.Path() + "file", ""));
    EXPECT_FALSE(MakeDirs(root.Path() + "file/d"));
}

TEST(TheDataRoot, FollowsTheVariableAndEndsInASlash)
{
    TestDataRoot root;
    EXPECT_EQ(UserDataRoot(), root.Path());
    unsetenv("VANTOR_USER_DATA");
    setenv("XDG_DATA_HOME", "/somewhere", 1);
    EXPECT_EQ(UserDataRoot(), "/somewhere/Vantor/");
}

TEST(TheProgramsFolder, EndsInASlashAndHoldsTheProgram)
{
    EXPECT_EQ(GetCurExeDir().back(), '/');
    EXPECT_TRUE(std::filesystem::exists(GetCurExeDir() + "test_base"));
}

} // namespace
