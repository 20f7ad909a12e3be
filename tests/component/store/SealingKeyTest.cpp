#include "CommonMethod/DataEncryptionConfig.h"
#include "Keyring/Keyring.h"
#include "StoreWorld.h"
#include "support/CapturedLog.h"
#include "support/PrivateKeyring.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using comm_method::CDataEncryptionConfig;
using comm_method::DataEncryption;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using Service = PrivateKeyring::Service;

namespace {

class Keyring : public testing::Test
{
protected:
    std::string File() const { return m_root.Path() + "Framework.C/DESetup.xml"; }
    std::string KeyFile() const { return m_root.Path() + "Framework.C/DESetup.key"; }

    TestDataRoot m_root;
    PrivateKeyring m_session{m_root.Path()};
};

/// A bus that takes calls and never says a word.
class MuteBus
{
public:
    explicit MuteBus(const std::string& path) : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::listen(m_socket, 5), 0);
    }
    ~MuteBus() { ::close(m_socket); }

private:
    const int m_socket;
};

} // namespace

TEST_F(Keyring, KeepsASecretUnderANewNameUntilItIsRemoved)
{
    m_session.Start(Service::Unlocked);
    std::string why;
    ASSERT_TRUE(keyring::Store("one", "Of the test", "secret of one", why)) << why;
    ASSERT_TRUE(keyring::Store("two", "Of the test", std::string(keyring::kSecretLimit, 'x'), why)) << why;
    EXPECT_FALSE(keyring::Store("one", "Of the test", "another", why)) << "an entry was replaced";
    m_session.Start(Service::Unlocked);
    EXPECT_EQ(keyring::Load("one", why), "secret of one");
    EXPECT_TRUE(keyring::Remove("one", why)) << why;
    EXPECT_TRUE(keyring::Remove("one", why)) << why;
    EXPECT_EQ(keyring::Load("one", why), std::nullopt);
    EXPECT_EQ(why, "the keyring has no such entry");
    EXPECT_EQ(keyring::Load("two", why).value_or("").size(), keyring::kSecretLimit);
}

TEST_F(Keyring, ThatCannotBeUsedSaysWhyAndAsksNobody)
{
    const MuteBus mute(m_root.Path() + "mute");
    const std::string bus = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    const struct
    {
        const char* what;
        Service service;
        std::string choice;
        std::string bus;
        const char* why;
    } rows[] = {
        {"unlocked", Service::Unlocked, "", bus, "no such entry"},
        {"locked", Service::Locked, "", bus, "locked"},
        {"no service", Service::None, "", bus, "service"},
        {"not wanted", Service::None, "none", bus, "no keyring here"},
        {"no bus", Service::None, "", "autolaunch:", "no keyring here"},
        {"a bus that is gone", Service::None, "", "unix:path=" + m_root.Path() + "gone", "connect"},
        {"a mute bus", Service::None, "", "unix:path=" + m_root.Path() + "mute", "did not answer in time"},
    };
    for (const auto& row : rows) {
        setenv("VANTOR_KEYRING", row.choice.c_str(), 1);
        setenv("DBUS_SESSION_BUS_ADDRESS", row.bus.c_str(), 1);
        m_session.Start(row.service);
        std::string why;
        EXPECT_EQ(keyring::Load("name", why), std::nullopt) << row.what;
        EXPECT_THAT(why, HasSubstr(row.why)) << row.what;
        const bool isUnlocked = row.service == Service::Unlocked;
        why.clear();
        EXPECT_EQ(keyring::Store("name", "Of the test", "hidden", why), isUnlocked) << row.what;
        EXPECT_THAT(why, HasSubstr(isUnlocked ? "" : row.why)) << row.what;
        EXPECT_EQ(keyring::Remove("name", why), isUnlocked) << row.what;
        EXPECT_THAT(why, Not(HasSubstr("hidden")));
    }
}

TEST_F(Keyring, HoldsTheSealingKeyOfANewSetup)
{
    m_session.Start(Service::Unlocked);
    const CDataEncryptionConfig config(File());
    const DataEncryption encryption = CDataEncryptionConfig::Generate();
    ASSERT_TRUE(config.Write(encryption));
    EXPECT_THAT(store::NamesIn(m_root.Path() + "Framework.C"), ElementsAre("DESetup.xml"));
    EXPECT_TRUE(config.Read() == encryption);
    const DataEncryption second = CDataEncryptionConfig::Generate();
    ASSERT_TRUE(config.Write(second)) << "written anew under the same key";
    const std::string setup = store::ReadAll(File());

    for (const Service service : {Service::Locked, Service::None}) {
        m_session.Start(service);
        const CapturedLog log;
        EXPECT_FALSE(config.Read());
        const auto lines = log.Messages(Base::LogLevel::Error);
        ASSERT_EQ(lines.size(), 2u);
        EXPECT_EQ(lines[0].rfind("The sealing key of [" + File() + "] cannot be had from the keyring, [", 0),
                  0u);
        EXPECT_EQ(lines[1], "Faild to decryption config file [" + File() + "].");
    }
    m_session.Start(Service::Unlocked);
    EXPECT_TRUE(config.Read() == second);
    std::filesystem::rename(m_root.Path() + "Framework.C", m_root.Path() + "moved");
    const CDataEncryptionConfig moved(m_root.Path() + "moved/DESetup.xml");
    ASSERT_TRUE(config.Write(encryption)) << "another one where it was";
    EXPECT_TRUE(moved.Read() == second);
    moved.Remove();
    store::WriteAll(m_root.Path() + "moved/DESetup.xml", setup);
    EXPECT_FALSE(moved.Read()) << "its key is still in the keyring";
}

TEST_F(Keyring, DoesNotTakeOverAKeyThatLiesInAFile)
{
    const DataEncryption encryption = CDataEncryptionConfig::Generate();
    ASSERT_TRUE(CDataEncryptionConfig(File()).Write(encryption)) << "without a service";
    EXPECT_TRUE(store::Exists(KeyFile()));
    m_session.Start(Service::Unlocked);
    ASSERT_TRUE(CDataEncryptionConfig(File()).Write(encryption));
    EXPECT_THAT(store::ReadAll(File()), Not(HasSubstr("keyring")));
    EXPECT_TRUE(CDataEncryptionConfig(File()).Read() == encryption);
}

TEST(SealingKeyFile, IsTakenFromOthersAndNotTakenOfOthers)
{
    const TestDataRoot root;
    const std::string file = root.Path() + "DESetup.xml";
    const std::string keyFile = root.Path() + "DESetup.key";
    ASSERT_TRUE(CDataEncryptionConfig(file).Write(CDataEncryptionConfig::Generate()));
    using std::filesystem::perms;
    std::filesystem::permissions(keyFile, perms(0644));
    const CapturedLog log;
    EXPECT_TRUE(CDataEncryptionConfig(file).Read());
    EXPECT_TRUE(CDataEncryptionConfig(file).Read());
    EXPECT_EQ(std::filesystem::status(keyFile).permissions(), perms(0600));
    EXPECT_THAT(log.Messages(Base::LogLevel::Warn),
                ElementsAre("Other users had access to the file [" + keyFile + "]; they have no more."));
    if (::geteuid() != 0)
        return; // nobody else can give files away
    ASSERT_EQ(::chown(keyFile.c_str(), 12345, 12345), 0);
    EXPECT_FALSE(CDataEncryptionConfig(file).Read());
    EXPECT_THAT(log.Messages(Base::LogLevel::Error), Contains(HasSubstr("belongs to another user")));
}

TEST(SealingKeyFile, ThatIsDamagedIsKeptWhenANewOneIsMade)
{
    const TestDataRoot root;
    for (const char* damaged : {"first", "second"}) {
        std::filesystem::remove(root.Path() + "DESetup.xml");
        store::WriteAll(root.Path() + "DESetup.key", damaged);
        ASSERT_TRUE(
            CDataEncryptionConfig(root.Path() + "DESetup.xml").Write(CDataEncryptionConfig::Generate()));
    }
    EXPECT_EQ(store::ReadAll(root.Path() + "DESetup.key.damaged"), "first");
    EXPECT_EQ(store::ReadAll(root.Path() + "DESetup.key.damaged.2"), "second");
}
