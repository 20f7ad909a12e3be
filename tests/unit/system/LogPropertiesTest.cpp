#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/ProcessUtil.h"
#include "CommonMethodLib/UserDataPath.h"
#include "support/TestDataRoot.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

#include <algorithm>

namespace {

class LogProperties : public testing::Test
{
protected:
    LogProperties() : m_umask(::umask(022))
    {
        const std::string installed = Base::FileUtil::GetCurExeDir() + "../";
        EXPECT_TRUE(m_paths.init(installed, "Video.C", -1, -1));
        EXPECT_TRUE(Base::CLog::Instance().InitLog(m_paths.logPropertiesPath()));
    }
    ~LogProperties() override
    {
        Base::CLog::Instance().UninitLog();
        ::umask(m_umask);
    }

    std::string Written()
    {
        Base::CLog::Instance().UninitLog();
        std::string text;
        EXPECT_TRUE(Base::FileUtil::ReadFile(m_paths.logPath() + "Video.C.log", text, 64 * 1024 * 1024));
        return text;
    }

    TestDataRoot m_data;
    comm_methodlib::CUserDataPath m_paths;

private:
    mode_t m_umask;
};

TEST_F(LogProperties, LineShowsTimeLevelThreadLoggerPlaceAndFunction)
{
    Base::ProcessUtil::NameThisThread("test-thread");
    BASE_WARN_TO("VideoLogger", "link lost, %d tries left", 3);
    const int line = __LINE__ - 1;

    const std::string time =
        "[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3} (Z|[+-][0-9]{4})";
    const std::string place = "(/[^ ]*/)?LogPropertiesTest\\.cpp:" + std::to_string(line) + " \\(TestBody\\)";
    EXPECT_THAT(Written(), testing::MatchesRegex(time + " WARN  \\[test-thread\\] VideoLogger " + place +
                                                 " link lost, 3 tries left\n"));
}

TEST_F(LogProperties, LevelsFromInfoUpwardAreWrittenOnceEach)
{
    BASE_DEBUG("not kept");
    BASE_INFO("to the root");
    BASE_ERROR_TO("VideoLogger", "to the link");
    BASE_FATAL("worst");

    const std::string text = Written();
    EXPECT_THAT(text, testing::ContainsRegex(" INFO  [^\n]* to the root\n[^\n]* ERROR [^\n]* to the link\n"
                                             "[^\n]* FATAL [^\n]* worst\n$"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3);
}

TEST_F(LogProperties, FullFileRollsOverAndFewOldOnesAreKept)
{
    const std::string filler(16 * 1000, 'x');
    for (int megabytes = 0; megabytes < 50; ++megabytes)
        for (int i = 0; i < 64; ++i)
            BASE_INFO("%s", filler.c_str());

    const std::uintmax_t size = Written().size();
    EXPECT_LE(size, 8u * 1024 * 1024 + 20000);
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(m_paths.logPath()))
        files += entry.is_regular_file() ? 1 : 0;
    EXPECT_EQ(files, 5u);
}

} // namespace
