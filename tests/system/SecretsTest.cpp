// One long life of a data root, with whatever goes wrong in it, and then a search for the secrets that were
// used in everything that is left of it.

#include "Base/Encrypt.h"
#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "ChildProcess/ChildProcess.h"
#include "CommonMethod/DataEncryptionConfig.h"
#include "component/framework/CoreWorld.h"
#include "support/FileContent.h"
#include "support/FileLog.h"
#include "support/WaitUntil.h"
#include "system/ComponentRun.h"
#include "system/SecretSearch.h"

#include <gmock/gmock.h>

#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>

void PrintTo(const Finding& finding, std::ostream* out)
{
    *out << finding.what << ", " << finding.form << ", in " << finding.file;
}

namespace {

namespace fs = std::filesystem;
using comm_method::CDataEncryptionConfig;
using testing::IsEmpty;

constexpr char kDeviceName[] = "Door of the secrets";
constexpr char kDeviceUser[] = "sekret-device-user";
constexpr char kDevicePassword[] = "sekret-device-pass-1";
constexpr char kNewDevicePassword[] = "sekret-device-pass-2";
constexpr char kUserPassword[] = "sekret-user-pass-1";
constexpr char kNewUserPassword[] = "sekret-user-pass-2";
constexpr char kWrongPassword[] = "sekret-wrong-pass";
constexpr char kSentPassword[] = "sekret-sent-pass";

class Secrets : public testing::Test
{
protected:
    Secrets()
    {
        fs::create_directories(run.DataPath() + "dump");
        std::ofstream(run.DataPath() + "dump/full-dump") << "";
        fs::create_directories(Folder());
        WriteLogSettings(Folder() + "log.properties", Folder() + "log/Framework.C.log", "%p %m%n");
    }

    std::string Folder() const { return run.Path() + "Framework.C/"; }
    std::string SetupFile() const { return Folder() + "DESetup.xml"; }
    std::string KeyFile() const { return Folder() + "DESetup.key"; }

    /// Keeps what every user of the machine can read of the process, and what its own user can.
    void LookAt(long long process)
    {
        for (const char* file : {"cmdline", "environ", "comm"})
            std::ofstream(run.Path() + "processes", std::ios::app)
                << std::ifstream("/proc/" + std::to_string(process) + "/" + file).rdbuf();
    }

    /// Only the newest report stays where it is written.
    void KeepReports(const std::string& name)
    {
        fs::create_directories(run.Path() + "reports/" + name);
        for (const auto& entry : fs::directory_iterator(run.DataPath() + "dump"))
            if (entry.path().extension() == ".txt")
                fs::rename(entry.path(), fs::path(run.Path() + "reports/" + name) / entry.path().filename());
    }

    std::size_t Reports() const
    {
        const fs::recursive_directory_iterator all(run.Path() + "reports");
        return static_cast<std::size_t>(
            std::count_if(all, {}, [](const auto& entry) { return entry.is_regular_file(); }));
    }

    /// How often a component has come up so far.
    std::ptrdiff_t TimesReady() const
    {
        const auto lines = run.LogMessages();
        return std::count(lines.begin(), lines.end(), "Register alarm success.");
    }

    void Enter(framework::CFrameworkCore& core);
    void ReceiveAsTheComponent();
    void SendBadBodies();
    void WorkAndCrash();
    void CrashWhileStarting();
    void RunTheFramework(int exitCode);
    std::vector<Secret> All() const;

    ComponentRun run;
    Events events;
    std::string device;
    comm_method::DataEncryption setup;
    std::string sealingKey;
};

void Secrets::Enter(framework::CFrameworkCore& core)
{
    std::string error;
    framework::DeviceEntry entry{kDeviceName, "192.0.2.1", 8000, kDeviceUser, kDevicePassword, false};
    device = core.Resources().Add(entry, error);
    ASSERT_NE(device, "") << error;
    entry.password = kNewDevicePassword;
    ASSERT_TRUE(core.Resources().Edit(device, entry, error)) << error;
    entry.port = 0;
    EXPECT_FALSE(core.Resources().Edit(device, entry, error));
    for (const char* password : {kUserPassword, kNewUserPassword}) {
        ASSERT_TRUE(core.Users().Put({"Mia", {"liveView", "users"}}, password, error)) << error;
        EXPECT_FALSE(core.SwitchUser("Mia", kWrongPassword));
        ASSERT_TRUE(core.SwitchUser("Mia", password));
        ASSERT_TRUE(core.SwitchUser("admin", ""));
    }
}

void Secrets::ReceiveAsTheComponent()
{
    TestClient component(lpc::kVideoComponentName);
    component.BecomeReady();
    const auto answer = component.Request("GET", "/vantor/v1/deviceManagement/devices");
    EXPECT_EQ(answer.status, "200");
    EXPECT_THAT(answer.body, testing::HasSubstr(kDeviceName));
}

// To the framework, and through it to the component.
void Secrets::SendBadBodies()
{
    const std::string secret = std::string("\"") + kSentPassword + "\"";
    const std::string bodies[] = {
        "{\"device\":{\"password\":" + secret,
        "{\"password\":" + secret + "}",
        "{\"data\":{\"userPassword\":" + secret + ",}}",
        "[{\"passwd\":" + secret + "}",
        "{\"a\":{\"token\": " + secret + "}} more",
        "{'password':'" + std::string(kSentPassword) + "'}",
        "{\"password\":\"\\ud800\",\"pwd\":" + secret + "}",
        "{\"data\":\"{\\\"password\\\":\\\"" + std::string(kSentPassword) + "\\\"\"}",
        "{\"password\":[" + secret + "," + secret,
    };
    TestClient client("Secrets.Test");
    for (const std::string& body : bodies) {
        EXPECT_NE(client.Request("PUT", "/vantor/v1/deviceManagement/groups", body).status, "200") << body;
        for (const char* method : {"getWndHandle", "showWnd", "switchUserUpdateFrame"})
            EXPECT_TRUE(lpcclient::Notify({{{"method", method}}, body}));
        for (const char* url : {"/vantor/v1/internal/video/localFileQuery", "getWndHandle"}) {
            constexpr std::uint32_t kShortMs = 300; // not all of them are answered
            lpc::Message answer;
            lpc::RequestId id = 0;
            (void)lpcclient::SendEx(answer, {{{"protocol", "http"}, {"method", "POST"}, {"url", url}}, body},
                                    id, kShortMs);
        }
    }
}

void Secrets::WorkAndCrash()
{
    ASSERT_TRUE(Base::CLog::Instance().InitLog(Folder() + "log.properties"));
    std::string error;
    {
        framework::CFrameworkCore core(events, {Folder(), {}, {}});
        ASSERT_TRUE(core.Start(error)) << error;
        setup = CDataEncryptionConfig(SetupFile()).Read().value();
        sealingKey = FileContent(KeyFile());
        Enter(core);
        ReceiveAsTheComponent();
    }
    {
        framework::CFrameworkCore core(events, {Folder(), run.Program(), run.Path() + "output.component"});
        ASSERT_TRUE(core.Start(error)) << error;
        core.StartComponent();
        ASSERT_TRUE(run.WaitForLog("Register alarm success.", 20));
        SendBadBodies();
        LookAt(run.ProcessId());
        ::kill(run.ProcessId(), SIGSEGV);
        EXPECT_TRUE(events.texts.Take("state waiting")) << "it has not ended";
        KeepReports("at work");
    }
    Base::CLog::Instance().UninitLog();
    EXPECT_EQ(Reports(), 1u);
}

/// The tasks of a process, the newest last.
std::vector<int> TasksOf(long long process)
{
    std::vector<int> tasks;
    std::error_code gone;
    for (const auto& task : fs::directory_iterator("/proc/" + std::to_string(process) + "/task", gone))
        tasks.push_back(std::stoi(task.path().filename()));
    std::sort(tasks.begin(), tasks.end());
    return tasks;
}

/// Whether the process has come so far that its crashes are reported.
bool HandlesCrashes(long long process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("SigCgt:", 0) == 0)
            return std::stoull(line.substr(7), nullptr, 16) >> (SIGSEGV - 1) & 1;
    return false;
}

// The key is handled soon after that, by one of the first threads.
void Secrets::CrashWhileStarting()
{
    for (int moment = 0; moment < 12; ++moment) {
        CChildProcess component;
        std::string error;
        ASSERT_TRUE(component.Start({run.Program(), "1", "2", "BlackRedSkin 1 0 0 0 0"},
                                    run.Path() + "output.crashed", error))
            << error;
        EXPECT_TRUE(WaitUntil([&] { return HandlesCrashes(component.Id()); }, std::chrono::seconds(20)));
        component.WaitForExit(2 + 8 * moment);
        const auto tasks = TasksOf(component.Id());
        if (!tasks.empty())
            ::syscall(SYS_tgkill, component.Id(), tasks[static_cast<std::size_t>(moment) % tasks.size()],
                      SIGSEGV);
        EXPECT_TRUE(component.WaitForExit(20000));
        KeepReports("starting " + std::to_string(moment));
    }
    EXPECT_GT(Reports(), 4u) << "hardly any crash was reported";
}

/// With the component; exitCode 0: it is asked to end when the component is ready.
void Secrets::RunTheFramework(int exitCode)
{
    const std::string output = run.Path() + "output.framework" + std::to_string(exitCode);
    const auto before = TimesReady();
    CChildProcess framework;
    std::string error;
    const std::string program = Base::FileUtil::GetCurExeDir() + "Vantor.Framework";
    ASSERT_TRUE(framework.Start({program, "--skin", "BlackRedSkin", "--language", "1"}, output, error))
        << error;
    if (exitCode == 0) {
        EXPECT_TRUE(WaitUntil([&] { return TimesReady() > before; }, std::chrono::seconds(40)))
            << FileContent(output);
        LookAt(framework.Id());
        LookAt(run.ProcessId());
        framework.Signal(SIGTERM);
    }
    EXPECT_EQ(framework.WaitForExit(20000).value_or(-1000), exitCode) << FileContent(output);
}

std::vector<Secret> Secrets::All() const
{
    return {{"the device's user", kDeviceUser},
            {"the device's password", kDevicePassword},
            {"the device's new password", kNewDevicePassword},
            {"the user's password", kUserPassword},
            {"the user's new password", kNewUserPassword},
            {"the wrong password", kWrongPassword},
            {"the password that was sent", kSentPassword},
            {"the database key", setup.databaseKey, true},
            {"the data key", setup.dataKey, true},
            {"the sealing key", sealingKey, true}};
}

} // namespace

TEST_F(Secrets, AreNowhereInWhatARunLeaves)
{
    ASSERT_NO_FATAL_FAILURE(WorkAndCrash());
    ASSERT_NO_FATAL_FAILURE(CrashWhileStarting());
    ASSERT_NO_FATAL_FAILURE(RunTheFramework(0));
    const std::string good = FileContent(SetupFile());
    ASSERT_TRUE(Base::FileUtil::WriteFileAtomically(SetupFile(), good.substr(0, good.size() / 2)));
    ASSERT_NO_FATAL_FAILURE(RunTheFramework(1));
    EXPECT_EQ(run.Play(R"({"expect_exit": 255, "within_ms": 20000})"), 0) << run.Output();

    EXPECT_THAT(FindSecretsBelow(All(), run.Path(), KeyFile()), IsEmpty());
    // What is no secret is found, so secrets would be.
    const std::vector<Secret> known{{"name", kDeviceName}, {"key file", sealingKey, true}};
    std::vector<std::string> files;
    for (const Finding& finding : FindSecretsBelow(known, run.Path()))
        files.push_back(finding.file);
    EXPECT_THAT(files, testing::IsSupersetOf(
                           {Folder() + "resources.json", Folder() + "operations.jsonl", KeyFile()}));
    EXPECT_THAT(FindSecretsBelow({{"arguments", "BlackRedSkin"}}, run.Path()), testing::Not(IsEmpty()));
}

TEST(ASearchForSecrets, FindsThemInEveryForm)
{
    using Base::Encrypt::FromHex;
    using Base::Encrypt::ToHex;
    const std::string key = "00112233445566778899aabbccddeeff0f1e2d3c4b5a69788796a5b4c3d2e1f0";
    const std::string bytes = FromHex(key).value();
    const std::vector<Secret> secrets{{"password", "sekret-word"}, {"key", key, true}};
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"nothing", "no sekret, no word", ""},
        {"as it is", "a sekret-word!", "password"},
        {"base64", "x" + Base64("sekret-word"), "password"},
        {"UTF-16", std::string("s\0e\0k\0r\0e\0t\0-\0w\0o\0r\0d\0", 22), "password"},
        {"hex dump", "73 65 6B 72 65 74 2D 77 6F 72 64", "password"},
        {"memory in words", "  0x00007fff00001000: 0x2d7465726b6573ff 0x0000000064726f77\n", "password"},
        {"the key's bytes", "--" + bytes, "key"},
        {"the key's digits", "KEY=" + key, "key"},
        {"upper case and blanks", "00 11 22 33 44 55 66 77 88 99 AA BB CC DD EE FF", "key"},
        {"a half of the key", key.substr(32), "key"},
        {"the key in base64", Base64(bytes), "key"},
        {"a quarter", key.substr(0, 16), ""},
    };
    for (const auto& [what, content, found] : rows) {
        const auto findings = FindSecrets(secrets, "file", content);
        EXPECT_EQ(findings.empty() ? "" : findings[0].what, found) << what;
    }
}
