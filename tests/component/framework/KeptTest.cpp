#include "component/framework/CoreWorld.h"

#include "Base/FileUtil.h"
#include "CommonMethod/DataEncryptionConfig.h"

#include <filesystem>
#include <fstream>

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

namespace fs = std::filesystem;

class Kept : public CoreTest
{
protected:
    void Spoil(const std::string& name, const std::string& content)
    {
        core.reset();
        ASSERT_TRUE(Base::FileUtil::WriteFileAtomically(Folder() + name, content));
    }

    void ChangeEverything()
    {
        framework::FrameworkChoices choices = core->Settings().Get();
        choices.skin = "BlueSkin";
        core->Settings().Set(choices);
        std::string error;
        ASSERT_TRUE(core->Users().Put({"Mia", {"liveView", "users"}}, "word-of-mia", error)) << error;
        ASSERT_TRUE(core->SwitchUser("Mia", "word-of-mia"));
        device = AddDevice("Yard", 8000, 3);
    }

    std::string device;
};

TEST_F(Kept, IsWhatTheUserEnteredAndNoSecretIsReadable)
{
    StartCore();
    ChangeEverything();
    core->RaiseAlarm(device, "Motion");
    StartCore();
    EXPECT_EQ(core->Settings().Get().skin, "BlueSkin");
    EXPECT_EQ(core->Users().Current().name, "Mia");
    framework::DeviceEntry entry;
    ASSERT_TRUE(core->Resources().EntryOf(device, entry));
    EXPECT_EQ(entry.password, kPassword);
    EXPECT_EQ(core->Resources().Channels(device)[2].name, "Camera 3");
    EXPECT_FALSE(core->Resources().Channels(device)[2].online);
    EXPECT_EQ(core->Notices().Entries().back().text, "Motion");
    const auto operations = core->Operations().Entries();
    ASSERT_GE(operations.size(), 2u);
    EXPECT_EQ(operations[operations.size() - 2].text, "Device \"Yard\" was added.");
    EXPECT_EQ(operations[operations.size() - 2].user, "Mia");
    EXPECT_EQ(operations.back().text, "Device \"Yard\" is online.");
    EXPECT_EQ(operations.back().user, "");
    for (const auto& file : fs::directory_iterator(Folder())) {
        std::string content;
        ASSERT_TRUE(Base::FileUtil::ReadFile(file.path(), content));
        for (const char* secret : {kUserName, kPassword, "word-of-mia"})
            EXPECT_THAT(content, Not(HasSubstr(secret))) << file.path();
        EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600)) << file.path();
    }
}

TEST_F(Kept, IsADamagedFileBesideANewOne)
{
    const struct
    {
        const char* name;
        const char* content;
    } rows[] = {{"settings.json", "{\"skin\":1}"},
                {"users.json", R"({"current":"nobody","users":[]})"},
                {"resources.json", "{\"devices\":["}};
    for (const auto& row : rows) {
        StartCore();
        ChangeEverything();
        for (const char* aside : {".damaged", ".damaged.2"}) {
            Spoil(row.name, row.content);
            const CapturedLog log;
            StartCore();
            EXPECT_EQ(log.Messages(Base::LogLevel::Error).size(), 1u) << row.name;
            std::string content;
            ASSERT_TRUE(Base::FileUtil::ReadFile(Folder() + row.name + aside, content)) << row.name;
            EXPECT_EQ(content, row.content);
            EXPECT_THAT(core->Notices().Entries().back().text, HasSubstr(row.name));
        }
        EXPECT_EQ(core->Settings().Get().skin == "BlueSkin", row.name != std::string("settings.json"));
        EXPECT_EQ(core->Users().Current().name == "Mia", row.name != std::string("users.json"));
        EXPECT_EQ(core->Resources().Devices().empty(), row.name == std::string("resources.json"));
        core.reset();
        fs::remove_all(Folder());
    }
}

TEST_F(Kept, IsAJournalWhoseLastLineWasCut)
{
    const std::string path = root.Path() + "journal";
    const auto write = [&](int count) {
        framework::CJournal journal(path, {});
        for (int i = 0; i < count; ++i)
            journal.Add("u", "k", "line " + std::to_string(i));
        return journal.Entries().size();
    };
    EXPECT_EQ(write(3), 3u);
    fs::resize_file(path, fs::file_size(path) - 5);
    EXPECT_EQ(write(1), 3u);
    EXPECT_EQ(write(0), 3u);
    EXPECT_EQ(write(5000), framework::CJournal::kKept);
    std::string content;
    ASSERT_TRUE(Base::FileUtil::ReadFile(path, content));
    EXPECT_LE(std::count(content.begin(), content.end(), '\n'),
              2 * static_cast<long>(framework::CJournal::kKept));
    EXPECT_EQ(write(0), framework::CJournal::kKept);
}

TEST_F(Kept, IsAJournalThatCouldNotBeWrittenForAWhile)
{
    const std::string path = root.Path() + "journal";
    {
        framework::CJournal journal(path, {});
        journal.Add("u", "k", "before");
        fs::rename(path, path + ".away");
        fs::create_symlink("/dev/full", path);
        journal.Add("u", "k", "meanwhile");
        journal.Add("u", "k", "after");
    }
    EXPECT_EQ(framework::CJournal(path, {}).Entries().size(), 3u);
}

TEST_F(Kept, IsWhatWasBeforeAChangeThatCannotBeWritten)
{
    StartCore();
    const std::string device = AddDevice("Yard");
    TestClient component(lpc::kVideoComponentName);
    component.BecomeReady();
    Block("users.json");
    EXPECT_FALSE(core->SwitchUser("guest", ""));
    EXPECT_EQ(core->Users().Current().name, "admin");
    ASSERT_TRUE(component.received.Take("switchUserStopWorking"));
    EXPECT_TRUE(component.received.Take(
        R"(switchUserUpdateFrame {"method":"switchUserUpdateFrame","data":{"userName":"admin")"));
    Block("resources.json");
    EXPECT_EQ(component
                  .Request("PUT", "/vantor/v1/deviceManagement/groups",
                           R"({"modifyGroupCondition":{"allSmartRule":1}})")
                  .status,
              "500");
    const std::string output = core->Resources().AlarmOutputs(device)[0].guid;
    EXPECT_FALSE(core->Resources().SwitchOutput(device, output, true));
    EXPECT_FALSE(core->Resources().AlarmOutputs(device)[0].active);
}

TEST_F(Kept, IsADataEncryptionSetupThatCannotBeRead)
{
    const char kInKeyring[] = R"(<DESetup version="1" keyring="gone"><Sealed>AAAA</Sealed></DESetup>)";
    for (const char* setup : {"<DESetup", kInKeyring}) {
        StartCore();
        Spoil("DESetup.xml", setup);
        framework::CFrameworkCore again(events, {Folder(), {}, {}});
        std::string error;
        EXPECT_FALSE(again.Start(error));
        EXPECT_THAT(error, HasSubstr("DESetup.xml\" cannot be read"));
        std::string content;
        ASSERT_TRUE(Base::FileUtil::ReadFile(Folder() + "DESetup.xml", content));
        EXPECT_EQ(content, setup);
        fs::remove(Folder() + "DESetup.xml");
    }
}

TEST_F(Kept, IsADatabaseWhoseDataEncryptionSetupIsGone)
{
    const std::string database = root.Path() + "Video.C/VideoSystem";
    fs::create_directories(root.Path() + "Video.C");
    for (const auto& [content, mayStart] : {std::pair<std::string, bool>{std::string(4096, 'x'), false},
                                            {std::string("SQLite format 3\0 and so on", 26), true},
                                            {"", true}}) {
        ASSERT_TRUE(Base::FileUtil::WriteFileAtomically(database, content));
        framework::CFrameworkCore started(events, {Folder(), {}, {}});
        std::string error;
        EXPECT_EQ(started.Start(error), mayStart) << error;
        EXPECT_EQ(fs::exists(Folder() + "DESetup.xml"), mayStart);
        fs::remove(Folder() + "DESetup.xml");
    }
}

TEST_F(Kept, IsTheDataEncryptionSetupOfAnOlderRelease)
{
    const auto older = comm_method::CDataEncryptionConfig::Generate();
    ASSERT_TRUE(comm_method::CDataEncryptionConfig(root.Path() + "ClientDESetup.xml").Write(older));
    StartCore();
    const auto taken = comm_method::CDataEncryptionConfig(Folder() + "DESetup.xml").Read();
    ASSERT_TRUE(taken);
    EXPECT_TRUE(*taken == older);
}

TEST_F(Kept, AreDevicesWithSoundEntriesOnly)
{
    StartCore();
    AddDevice("Yard");
    const framework::DeviceEntry good{"Gate", "gate.example", 1, "", "", false};
    const struct
    {
        const char* word; ///< of the reason
        std::function<void(framework::DeviceEntry&)> spoil;
    } rows[] = {{"name", [](auto& entry) { entry.name = ""; }},
                {"name", [](auto& entry) { entry.name = std::string(65, 'x'); }},
                {"name", [](auto& entry) { entry.name = "a\nb"; }},
                {"address", [](auto& entry) { entry.address = "a b"; }},
                {"port", [](auto& entry) { entry.port = 65536; }},
                {"password", [](auto& entry) { entry.password = std::string(128, 'x'); }},
                {"another device", [](auto& entry) { entry = {"Z", "192.0.2.1", 8000, "", "", false}; }}};
    for (const auto& row : rows) {
        framework::DeviceEntry entry = good;
        row.spoil(entry);
        std::string error;
        EXPECT_EQ(core->Resources().Add(entry, error), "");
        EXPECT_THAT(error, HasSubstr(row.word));
    }
    std::string error;
    EXPECT_NE(core->Resources().Add(good, error), "") << error;
}

TEST_F(Kept, IsSomebodyWhoMayManageUsers)
{
    StartCore();
    framework::CUsers& users = core->Users();
    std::string error;
    EXPECT_FALSE(users.Put({"admin", {"liveView"}}, std::nullopt, error));
    EXPECT_FALSE(users.Remove("admin", error));
    EXPECT_FALSE(users.Put({"", {}}, std::nullopt, error));
    EXPECT_FALSE(users.Put({"x", {"flying"}}, std::nullopt, error));
    EXPECT_TRUE(users.Put({"guest", {"users"}}, "new", error)) << error;
    EXPECT_FALSE(users.Login("guest", ""));
    EXPECT_FALSE(users.Login("nobody", ""));
    EXPECT_TRUE(users.Login("guest", "new"));
    EXPECT_TRUE(users.Remove("admin", error)) << error;
    EXPECT_FALSE(users.Put({"guest", {}}, std::nullopt, error));
}

} // namespace
