#include "Base/FileUtil.h"
#include "system/ComponentRun.h"

#include <gmock/gmock.h>

#include <signal.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <future>
#include <thread>

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

const std::vector<std::string> kParameters = {
    "InitSysParameter:in0", "InitSysParameter:in1", "InitSysParameter:in2", "fInitReportManager async start",
    "InitSysParameter:list-BlackRedSkin 1 0 0 0 0,skin-BlackRedSkin,lan-1,vers-0"};

const std::vector<std::string> kStagesBeforeDatabase = {
    "fInitDatabase async start.", "RemoteConfigController CreateInstance",
    "RemoteConfigController InitRemoteConfig", "LoadConfigFile Success.", "LoadFont Success."};

const std::vector<std::string> kLook = {"success to load VantorGUIToolKitBlackRedSkin.",
                                        "success to load ClientCommSkin.", "LoadSkin Success.",
                                        "LoadStyle Success.", "InitGuiToolKit Success."};

const std::vector<std::string> kStagesAfterDatabase = {
    "m_fInitWinIDAndSystemManager async start.", "InitManager Success.", "fInitMultimediaComm async start.",
    "fInitCloudP2PManager async start."};

const std::vector<std::string> kReady = {"InitLogical Success.", "initDateTimeFormat Success.",
                                         "APP Init Success"};

const std::vector<std::string> kUnInit = {"CLPCClientPackage un.",
                                          "CLPCClientPackage un1.",
                                          "UNInit Preview Success.",
                                          "UNInit Playback Success.",
                                          "UninitGui Success.",
                                          "UninitBase Success.",
                                          "UnititLogical Success.",
                                          "UninitRemoteConfig Success.",
                                          "UninitVideoSystemManager Success.",
                                          "UninitSystemconfigUIManager Success.",
                                          "CReportManager releaseManager Success."};

const std::vector<std::string> kEnd = {"UNInitVantorApplication success", "Wait CrashAPIInit success"};

std::vector<std::string> Join(std::initializer_list<std::vector<std::string>> lists)
{
    std::vector<std::string> all;
    for (const auto& list : lists)
        all.insert(all.end(), list.begin(), list.end());
    return all;
}

const std::string kUntilReady = ComponentRun::kUntilReady;
const std::string kQuit = ComponentRun::kQuit;

TEST(TheComponent, StartsAndEndsInItsOrder)
{
    ComponentRun run;
    auto framework = std::async(std::launch::async, [&] {
        return run.Play(kUntilReady + R"({"expect_exit": 0, "within_ms": 60000})");
    });
    // Both come from threads of their own; the end is asked for when all is up.
    EXPECT_TRUE(run.WaitForLog("Register alarm success.", 30));
    EXPECT_TRUE(run.WaitForLog("APP Init Success", 30));
    run.Terminate();
    ASSERT_EQ(framework.get(), 0) << run.Output();
    EXPECT_THAT(run.MissingInOrder(Join({kParameters,
                                         kStagesBeforeDatabase,
                                         kLook,
                                         kStagesAfterDatabase,
                                         {"alarmRegisteredRet async start."},
                                         kReady,
                                         {"Start UnInit Video.C"},
                                         kUnInit,
                                         kEnd})),
                IsEmpty());
    EXPECT_THAT(run.MissingInOrder({"fInitDatabase async start.", "InitDatabase Success.",
                                    "m_fInitWinIDAndSystemManager async start.", "CWndIdManager init end",
                                    "CVideoSystemManager init end"}),
                IsEmpty());
    EXPECT_THAT(run.MissingInOrder({"fInitMultimediaComm async start.", "InitMultimediaComm Success.",
                                    "alarmRegisteredRet async start.", "Register alarm success."}),
                IsEmpty());
    EXPECT_THAT(run.MissingInOrder({"fInitCloudP2PManager async start.", "enableP2P(true)",
                                    "Init CCloudP2PManager Success.", "alarmRegisteredRet async start."}),
                IsEmpty());
    // Written after the logger was shut down, as everything behind it.
    EXPECT_THAT(run.LogMessages(), Not(Contains("CrashAPI UnInit success")));
    EXPECT_THAT(run.LogMessages(), Not(Contains("UninitLibxml2 Success.")));
    EXPECT_TRUE(std::filesystem::exists(run.DataPath() + "VideoSystem"));
    const auto bin = std::filesystem::path(run.Program()).parent_path();
    for (const char* package : {"VantorGUIToolKitBlackRedSkin.rcc", "ClientCommon.rcc", "Video.C.rcc"})
        EXPECT_THAT(run.Output(), HasSubstr("---scc--- LoadSkin = " +
                                            (bin / "../plugins/skins" / package).string() + " Success"));
    EXPECT_THAT(run.Output(), Not(HasSubstr("CVantorStyle")));
}

TEST(TheComponent, EndsWithMinusOneWhenItsDatabaseIsNotSound)
{
    ComponentRun run;
    std::ofstream(run.DataPath() + "VideoSystem") << std::string(8192, 'x');
    ASSERT_EQ(run.Play(R"({"expect_exit": 255, "within_ms": 20000})"), 0) << run.Output();
    EXPECT_THAT(run.MissingInOrder(Join({kParameters,
                                         kStagesBeforeDatabase,
                                         kLook,
                                         kUnInit,
                                         {"UnititLogical Success.", "UninitLibxml2 Success."}})),
                IsEmpty());
    EXPECT_THAT(run.MissingInOrder({"fInitDatabase async start.", "InitDatabase Failed."}), IsEmpty());
    EXPECT_THAT(run.LogMessages(), Contains(StartsWith("Failed to checkAndUpdateDB. [msg-")));
    for (const char* never : {"InitManager Success.", "APP Init Success", "Start UnInit Video.C",
                              "UNInitVantorApplication success"})
        EXPECT_THAT(run.LogMessages(), Not(Contains(never)));
    EXPECT_EQ(std::filesystem::file_size(run.DataPath() + "VideoSystem"), 8192u);
}

/// Runs the command behind a shell until the component is up, and kills that shell.
void RunAndKillTheParent(const ComponentRun& run, const std::string& command)
{
    const std::string parentFile = run.Path() + "parent";
    std::ofstream(run.Path() + "start.sh") << "echo $$ >" << parentFile << "; " << command << '\n';
    auto parent = std::async(std::launch::async, [&] { run.Shell("sh " + run.Path() + "start.sh"); });
    EXPECT_TRUE(run.WaitForLog("APP Init Success", 30));
    pid_t pid = 0;
    std::ifstream(parentFile) >> pid;
    ASSERT_GT(pid, 1);
    ::kill(pid, SIGKILL);
    parent.get();
    EXPECT_TRUE(run.WaitUntilEnded(10));
    EXPECT_THAT(run.MissingInOrder(Join({{"APP Init Success", "Start UnInit Video.C"}, kUnInit, kEnd})),
                IsEmpty());
    const auto messages = run.LogMessages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), "Start UnInit Video.C"), 1);
}

TEST(TheComponent, RunsOnWithoutAFrameworkAndEndsInOrderWithItsParent)
{
    ComponentRun run;
    RunAndKillTheParent(run, run.Component() + " & wait");
    EXPECT_THAT(run.LogMessages(), Contains("Failed to lpcclient::connectToServer. LastError: [1003]."));
    EXPECT_THAT(run.LogMessages(), Contains("Failed to send. LastError: [1005]."));
}

TEST(TheComponent, EndsInOrderWhenItsFrameworkIsKilled)
{
    ComponentRun run;
    const std::string script = run.Path() + "script.jsonl";
    std::ofstream(script) << kUntilReady << R"({"sleep_ms": 60000})";
    RunAndKillTheParent(run, "exec " + run.HostCommand(script));
}

/// A component that runs under a framework while the test starts further ones beside it.
class ASecondStart : public testing::Test
{
protected:
    ASecondStart()
        : m_first(
              [this] { m_firstResult = run.Play(kUntilReady + R"({"expect_exit": 0, "within_ms": 60000})"); })
    {
        EXPECT_TRUE(run.WaitForLog("APP Init Success", 20));
    }
    ~ASecondStart() override
    {
        run.Terminate();
        m_first.join();
        EXPECT_EQ(m_firstResult, 0) << run.Output();
        EXPECT_THAT(run.MissingInOrder(kEnd), IsEmpty());
    }

    int Start() const
    {
        return std::system(("timeout -s KILL 20 " + run.Component() + " >/dev/null 2>&1").c_str());
    }

    ComponentRun run;

private:
    int m_firstResult = -1;
    std::thread m_first;
};

TEST_F(ASecondStart, EndsWithZeroBeforeAnyInitialisation)
{
    EXPECT_EQ(Start(), 0);
    const auto messages = run.LogMessages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), "InitSysParameter:in0"), 2);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), "InitSysParameter:in1"), 1);
}

// Its worker that sets crash reports up is then still at work, and logs while the process exits.
TEST_F(ASecondStart, EndsWithZeroAlsoWhenCrashReportsCannotBeSetUp)
{
    std::filesystem::remove_all(run.DataPath() + "dump");
    std::ofstream(run.DataPath() + "dump") << "in the way";
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(Start(), 0);
}

// What a process that starts without the framework's settings, or with fewer of them, makes of them.
TEST(TheStartParameters, FallBackWhereTheyAreMissing)
{
    const std::pair<const char*, const char*> rows[] = {
        {"", "InitSysParameter:list-,skin-BlackRedSkin,lan-0,vers-0"},
        {"1 2 ''", "InitSysParameter:list-,skin-BlackRedSkin,lan-0,vers-0"},
        {"1 2 'GreyRedSkin 34'", "InitSysParameter:list-GreyRedSkin 34,skin-GreyRedSkin,lan-34,vers-0"},
        {"1 2 'BlueSkin x 7  9 9 9'", "InitSysParameter:list-BlueSkin x 7  9 9 9,skin-BlueSkin,lan-0,vers-7"},
    };
    for (const auto& [arguments, line] : rows) {
        ComponentRun run;
        const std::string command = run.Program() + " " + arguments;
        auto component = std::async(std::launch::async, [&] { return run.Shell(command); });
        EXPECT_TRUE(run.WaitForLog("APP Init Success", 20)) << command;
        EXPECT_THAT(run.LogMessages(), Contains(line));
        run.Terminate();
        EXPECT_EQ(component.get(), 0) << command;
    }
}

TEST(TheComponent, RepairsDamagedLayoutFiles)
{
    ComponentRun run;
    const std::string custom = run.DataPath() + "CustomWidgetLayout.xml";
    const std::string layout = run.DataPath() + "WidgetLayout.xml";
    std::ofstream(custom) << "<Config><";
    ASSERT_EQ(run.Play(kUntilReady + kQuit), 0) << run.Output();
    std::string text;
    EXPECT_TRUE(Base::FileUtil::ReadFile(custom, text));
    EXPECT_EQ(text, "<Config/>");
    EXPECT_TRUE(std::filesystem::exists(layout));
}

TEST(ThePages, SpeakTheLanguageOfTheStartParameters)
{
    ComponentRun run;
    EXPECT_EQ(run.PlayFile("window-handles.jsonl", "--language 3"), 0) << run.Output();
    EXPECT_THAT(run.LogMessages(), Contains("Made the page [MainView], titled [Hauptansicht]."));
}

// Notifications of the framework go to whoever registered for their type; others are dropped.
TEST(TheComponent, HandsTheFrameworksNotificationsOn)
{
    ComponentRun run;
    const std::string notify =
        R"({"notify": {"protocol": "websocket", "body": {"guid": "7", "type": "deviceAdd", "data": {}}}})"
        "\n"
        R"({"notify": {"protocol": "websocket", "body": {"guid": "8", "type": "alarmMessage", "data": {}}}})"
        "\n";
    ASSERT_EQ(run.Play(kUntilReady + notify + kQuit), 0) << run.Output();
    EXPECT_THAT(run.MissingInOrder({"Notification [deviceAdd] of [7].", "UninitBase Success."}), IsEmpty());
}

} // namespace
