#include "Base/FileUtil.h"
#include "CommonMethod/DataEncryptionConfig.h"
#include "SingleApplication/InstanceClaim.h"
#include "SingleApplication/ProcessStamp.h"
#include "Sqlite3DO/SQLite3Engine.h"
#include "support/WaitUntil.h"
#include "system/ClientRun.h"

#include <gtest/gtest.h>

#include <QJsonDocument>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <regex>
#include <set>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using Sqlite3DO::CSQLite3Engine;
using std::chrono::milliseconds;

const QString kGallery = QStringLiteral("ToolkitGallery");
/// What a run that was not killed does not leave: each under a name of its own that the next run uses again.
const std::set<std::string> kByKillsOnly = {"Framework.C/notices.jsonl",
                                            "Video.C/VideoSystem-shm",
                                            "Video.C/VideoSystem-wal",
                                            "Video.C/VideoSystem.backup-1",
                                            "vantor-#",
                                            "vantor/#"};
constexpr milliseconds kEndsByItself{10000};
constexpr int kFillerRows = 2000;

int Setting(const char* name, int otherwise)
{
    const char* value = std::getenv(name);
    return value ? std::atoi(value) : otherwise;
}

/// The processes that were started with this data root, or by such a one.
std::set<int> ProcessesOf(const std::string& root)
{
    std::set<int> processes;
    std::error_code ignored;
    for (const auto& process : fs::directory_iterator("/proc", ignored)) {
        std::string environment;
        if (Base::FileUtil::ReadFile(process.path() / "environ", environment) &&
            environment.find("VANTOR_USER_DATA=" + root.substr(0, root.size() - 1)) != std::string::npos)
            processes.insert(std::stoi(process.path().filename()));
    }
    return processes;
}

/// Relative to the folder, with "#" for the hash of the data root in the names of sockets and locks. A file
/// that was being written counts as the one that it was to become: the next writer uses its name again.
std::set<std::string> NamesIn(const fs::path& folder)
{
    static const std::regex hash("[0-9a-f]{16}");
    static const std::regex unfinished("\\.(writing|encrypting)(-journal)?$");
    std::set<std::string> names;
    std::error_code ignored;
    for (const auto& entry : fs::recursive_directory_iterator(folder, ignored))
        names.insert(std::regex_replace(
            std::regex_replace(fs::relative(entry.path(), folder).string(), hash, "#"), unfinished, ""));
    return names;
}

struct TestFolder
{
    const std::string path =
        fs::temp_directory_path() / ("vantor-test-copy-" + std::to_string(getpid())) / "";
    TestFolder() { fs::create_directories(path); }
    ~TestFolder() { fs::remove_all(path); }
};

/// Reference framework and component, killed at random moments. What is found wrong is one sentence each.
class KillRounds
{
public:
    explicit KillRounds(unsigned seed) : m_seed(seed) {}

    void Run(int rounds)
    {
        for (m_round = 0; m_round < rounds; ++m_round) {
            m_random.seed(m_seed * 1000003u + static_cast<unsigned>(m_round));
            try {
                Round();
            } catch (const std::exception& problem) {
                Fault(problem.what());
                m_client.Kill();
            }
        }
        LastStart();
    }

private:
    bool OneIn(unsigned number) { return m_random() % number == 0; }

    void Pause(int mostMs)
    {
        m_pauseMs = static_cast<int>(m_random() % static_cast<unsigned>(mostMs + 1));
        std::this_thread::sleep_for(milliseconds(m_pauseMs));
    }

    void Fault(const std::string& sentence)
    {
        ADD_FAILURE() << "seed " << m_seed << " round " << m_round << " (" << m_doing << ", after "
                      << m_pauseMs << " ms): " << sentence;
    }

    void Expect(bool isTrue, const std::string& otherwise)
    {
        if (!isTrue)
            Fault(otherwise);
    }

    /// One kill while everything starts; then a start that must succeed, and a kill some time after it.
    void Round()
    {
        if (OneIn(4))
            BeginAnew();
        Start();
        m_doing = "killed while starting";
        Pause(2500);
        KillSome();
        CheckAll();

        Start();
        m_doing = "start after a kill";
        m_client.AwaitEmbedded(kGallery);
        Expect(ProcessesOf(Root()).size() >= 2, "the processes are not where they are looked for");
        m_doing = "killed when started";
        Pause(600);
        if (OneIn(3)) {
            m_client.AskToEnd();
            m_doing = "killed while ending";
            Pause(500);
        }
        KillSome();
        CheckAll();
    }

    void Start()
    {
        m_client.Start(
            {"--skin", OneIn(2) ? "BlackRedSkin" : "BlueSkin", "--language", "1", "--open", kGallery});
    }

    /// A first start; every second time with a plain database that is to be encrypted.
    void BeginAnew()
    {
        NoteNames();
        for (const auto& entry : fs::directory_iterator(Root()))
            if (entry.path().filename() != "Video.C")
                fs::remove_all(entry.path());
        for (const auto& entry : fs::directory_iterator(Data()))
            if (entry.path().filename() != "log.properties")
                fs::remove_all(entry.path());
        m_hasFiller = OneIn(2);
        if (!m_hasFiller)
            return;
        CSQLite3Engine plain(Data() + "VideoSystem", CSQLite3Engine::Mode::Create, {});
        std::string script;
        const std::string first = "maintain/VideoSystem/0001_create_tables.sql";
        Base::FileUtil::ReadFile(Base::FileUtil::GetCurExeDir() + first, script);
        plain.RunScript(script);
        plain.Run("PRAGMA user_version = 1");
        plain.Run("CREATE TABLE filler AS WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n "
                  "LIMIT " +
                  std::to_string(kFillerRows) + ") SELECT i, randomblob(4000) AS noise FROM n");
    }

    void KillSome()
    {
        const auto component = m_client.component.ProcessId();
        const unsigned what = m_random() % 3;
        if (what != 1 && component != 0)
            ::kill(component, SIGKILL);
        if (what == 0 && component != 0 && m_doing == "killed when started")
            return ExpectStartedAgain();
        m_client.Kill();
        Expect(WaitUntil([&] { return ProcessesOf(Root()).empty(); }, kEndsByItself), "processes are left");
    }

    /// The framework starts a component again that was killed, and its page comes back.
    void ExpectStartedAgain()
    {
        m_doing = "component killed alone";
        m_client.Await({{"event", "component"}, {"state", "waiting"}});
        m_client.Await({{"event", "component"}, {"state", "ready"}}, 2);
        m_client.AwaitEmbedded(kGallery, 2);
        m_client.End();
    }

    void CheckAll()
    {
        for (const int process : ProcessesOf(Root())) {
            Fault("process " + std::to_string(process) + " is left");
            ::kill(process, SIGKILL);
        }
        CheckDatabase();
        CheckFiles();
    }

    // On a copy, so that the next start finds what the kill has left.
    void CheckDatabase()
    {
        const TestFolder folder;
        const std::string& copy = folder.path;
        for (const char* name : {"VideoSystem", "VideoSystem-wal", "VideoSystem-journal"})
            if (fs::exists(Data() + name))
                fs::copy_file(Data() + name, copy + name);
        std::error_code ignored;
        if (fs::file_size(copy + "VideoSystem", ignored) == 0 || ignored)
            return Expect(!m_hasFiller, "the database is gone");
        try {
            CheckContent(copy + "VideoSystem");
        } catch (const std::exception& problem) {
            Fault(std::string("the database is not sound: ") + problem.what());
        }
    }

    void CheckContent(const std::string& path)
    {
        std::string key;
        if (!Sqlite3DO::IsPlainDatabase(path)) {
            const auto setup =
                comm_method::CDataEncryptionConfig(Root() + comm_method::kFrameworkSetup).Read();
            if (!setup)
                return Fault("the database is encrypted, and its setup cannot be read");
            key = setup->databaseKey;
        }
        CSQLite3Engine database(path, CSQLite3Engine::Mode::Existing, key);
        Sqlite3DO::CSQLite3Recordset result;
        database.Run("PRAGMA integrity_check", &result);
        Expect(result.Next() && result.GetString(0) == "ok", "the database fails its integrity check");
        if (m_hasFiller)
            Expect(database.QueryInt("SELECT count(*) FROM filler") == kFillerRows, "rows are gone");
    }

    void CheckFiles()
    {
        for (const auto& entry : fs::recursive_directory_iterator(Root())) {
            const fs::path& path = entry.path();
            const std::string name = path.filename().string();
            std::string text;
            if (path.extension() == ".json" && Base::FileUtil::ReadFile(path, text))
                Expect(!QJsonDocument::fromJson(QByteArray::fromStdString(text)).isNull(),
                       name + " is damaged");
            Expect(name.find(".damaged") == std::string::npos, name + " was found damaged");
            Expect(name.rfind("crash-", 0) != 0, "there is the crash report " + name);
        }
    }

    /// Everything works, ends in order, and nothing has piled up that an undisturbed run does not have.
    void LastStart()
    {
        m_doing = "last start";
        Start();
        m_client.AwaitSeen(m_client.AwaitEmbedded(kGallery));
        const std::string claim = "/dev/shm/vantor-" + InstanceKey("Vantor V3.0 video Application",
                                                                   InstanceSystem::UserIdentity(), Root());
        Expect(fs::exists(claim), "the claim to be the only component is not where it is looked for");
        m_client.End();
        Expect(!fs::exists(claim), "shared memory is left");
        CheckAll();
        NoteNames();
        ClientRun undisturbed(PrivateDisplay::WindowManager::None);
        undisturbed.Start({"--skin", "BlueSkin", "--language", "1", "--open", kGallery});
        undisturbed.AwaitEmbedded(kGallery);
        undisturbed.End();
        const auto usual = NamesIn(undisturbed.component.Path());
        for (const std::string& name : m_names)
            Expect(usual.count(name) || kByKillsOnly.count(name), name + " was left in the data root");
    }

    /// Between two runs.
    void NoteNames() { m_names.merge(NamesIn(Root())); }

    std::string Root() const { return m_client.component.Path(); }
    std::string Data() const { return m_client.component.DataPath(); }

    const unsigned m_seed;
    std::mt19937 m_random;
    ClientRun m_client{PrivateDisplay::WindowManager::None};
    std::set<std::string> m_names; ///< names seen in the data root
    std::string m_doing;
    int m_round = 0;
    int m_pauseMs = 0;
    bool m_hasFiller = false;
};

// VANTOR_KILL_ROUNDS and VANTOR_KILL_SEED ask for more of them, or for others; see ./test --kill-rounds.
TEST(TheClient, StartsSoundAfterKillsAtRandomMoments)
{
    const auto seed = static_cast<unsigned>(Setting("VANTOR_KILL_SEED", 1));
    KillRounds(seed).Run(Setting("VANTOR_KILL_ROUNDS", 4));
}

} // namespace
