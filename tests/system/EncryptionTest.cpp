#include "Base/Encrypt.h"
#include "Base/FileUtil.h"
#include "CommonMethod/DataEncryptionConfig.h"
#include "system/ComponentRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string kStartAndEnd = R"({"expect_notify": {"method": "initFinish"}, "within_ms": 20000})"
                                 "\n"
                                 R"({"notify": {"method": "componentUninit"}})"
                                 "\n"
                                 R"({"expect_exit": 0, "within_ms": 15000})"
                                 "\n";

/// The content of every file below the folder.
std::string EverythingWritten(const std::string& folder)
{
    std::string all;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        std::string content;
        if (entry.is_regular_file() && Base::FileUtil::ReadFile(entry.path(), content))
            all += content;
    }
    return all;
}

bool IsPlain(const std::string& database)
{
    std::string content;
    EXPECT_TRUE(Base::FileUtil::ReadFile(database, content));
    return content.rfind("SQLite format 3", 0) == 0;
}

TEST(TheComponentsDatabase, IsPlainUntilTheFrameworkSetsAKeyUpAndEncryptedFromThenOn)
{
    ComponentRun run;
    const std::string setupFile = run.Path() + "Framework.C/DESetup.xml";
    ASSERT_EQ(run.Play(kStartAndEnd), 0) << run.Output();
    EXPECT_THAT(run.LogMessages(), Contains("[" + setupFile + "] is not exist."));
    EXPECT_TRUE(IsPlain(run.DataPath() + "VideoSystem"));

    std::filesystem::remove(run.DataPath() + "log/Video.C.log");
    std::filesystem::create_directories(run.Path() + "Framework.C");
    const comm_method::DataEncryption setup = comm_method::CDataEncryptionConfig::Generate();
    ASSERT_TRUE(comm_method::CDataEncryptionConfig(setupFile).Write(setup));
    for (int start = 0; start < 2; ++start)
        ASSERT_EQ(run.Play(kStartAndEnd), 0) << run.Output();
    EXPECT_THAT(run.LogMessages(), Contains("Database [VideoSystem] is encrypted from here on."));
    EXPECT_THAT(run.LogMessages(), Not(Contains(HasSubstr("is not exist."))));
    EXPECT_FALSE(IsPlain(run.DataPath() + "VideoSystem"));
    EXPECT_THAT(EverythingWritten(run.DataPath()), Not(HasSubstr(setup.databaseKey)));
}

/// The files of the database, by name, as they are.
std::map<std::string, std::string> Files(const ComponentRun& run)
{
    std::map<std::string, std::string> files;
    for (const char* suffix : {"", "-wal"})
        Base::FileUtil::ReadFile(run.DataPath() + "VideoSystem" + suffix, files[suffix]);
    return files;
}

TEST(TheComponentsDatabase, IsLeftAsItIsWhenTheSetupDoesNotFit)
{
    ComponentRun run;
    using comm_method::CDataEncryptionConfig;
    const std::string setupFile = run.Path() + "Framework.C/DESetup.xml";
    const std::string keyFile = run.Path() + "Framework.C/DESetup.key";
    const auto setup = CDataEncryptionConfig::Generate();
    ASSERT_TRUE(CDataEncryptionConfig(setupFile).Write(setup));
    ASSERT_EQ(run.Play(kStartAndEnd), 0) << run.Output();
    const auto before = Files(run);
    auto other = setup;
    other.databaseKey = Base::Encrypt::RandomKeyText();
    const struct
    {
        std::string line;
        std::function<bool()> spoil;
    } rows[] = {
        {"Failed to read xml file [" + setupFile + "].",
         [&] { return Base::FileUtil::WriteFileAtomically(setupFile, "<DESetup"); }},
        {"Failed to checkAndUpdateDB. [msg-VideoSystem: file is encrypted or is not a database].",
         [&] { return CDataEncryptionConfig(setupFile).Write(other); }},
        {"Faild to decryption config file [" + setupFile + "].",
         [&] { return Base::FileUtil::WriteFileAtomically(keyFile, std::string(64, '0')); }},
        {"Faild to decryption config file [" + setupFile + "].",
         [&] { return std::filesystem::remove(keyFile); }},
        {"Failed to checkAndUpdateDB. [msg-VideoSystem: the file is encrypted or damaged, and there is no "
         "key].",
         [&] { return std::filesystem::remove(setupFile); }},
    };
    for (const auto& row : rows) {
        ASSERT_TRUE(row.spoil()) << row.line;
        std::filesystem::remove(run.DataPath() + "log/Video.C.log");
        ASSERT_EQ(run.Play(R"({"expect_exit": 255, "within_ms": 20000})"), 0) << row.line << run.Output();
        EXPECT_THAT(run.LogMessages(), Contains(row.line));
        EXPECT_THAT(run.LogMessages(), Contains("InitDatabase Failed."));
        EXPECT_EQ(Files(run), before) << row.line;
    }
}

} // namespace
