#include "Base/Encrypt.h"
#include "Base/FileUtil.h"
#include "CommonMethod/DataEncryptionConfig.h"
#include "system/ComponentRun.h"

#include <gmock/gmock.h>

#include <filesystem>

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string kStartAndEnd = std::string(ComponentRun::kUntilReady) + ComponentRun::kQuit;

bool IsPlain(const std::string& database)
{
    std::string content;
    EXPECT_TRUE(Base::FileUtil::ReadFile(database, content));
    return content.rfind("SQLite format 3", 0) == 0;
}

TEST(TheComponentsDatabase, IsPlainUntilTheFrameworkSetsAKeyUpAndOpensByThatKeyAloneFromThenOn)
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

    auto other = setup;
    other.databaseKey = Base::Encrypt::RandomKeyText();
    const std::string failed = "Failed to checkAndUpdateDB. [msg-VideoSystem: ";
    const std::string refused = R"({"expect_exit": 255, "within_ms": 20000})";
    ASSERT_TRUE(comm_method::CDataEncryptionConfig(setupFile).Write(other));
    ASSERT_EQ(run.Play(refused), 0) << run.Output();
    EXPECT_THAT(run.LogMessages(), Contains(failed + "file is encrypted or is not a database]."));
    ASSERT_TRUE(std::filesystem::remove(setupFile));
    ASSERT_EQ(run.Play(refused), 0) << run.Output();
    EXPECT_THAT(run.LogMessages(),
                Contains(failed + "the file is encrypted or damaged, and there is no key]."));
}

} // namespace
