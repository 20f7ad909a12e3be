#include "CommonMethod/DataEncryptionConfig.h"
#include "StoreWorld.h"
#include "support/CapturedLog.h"

#include <gtest/gtest.h>

#include <functional>

using comm_method::CDataEncryptionConfig;
using comm_method::DataEncryption;

namespace {

class DataEncryptionConfig : public testing::Test
{
protected:
    std::string File() const { return m_root.Path() + "Framework.C/DESetup.xml"; }
    std::string KeyFile() const { return m_root.Path() + "Framework.C/DESetup.key"; }

    TestDataRoot m_root;
};

std::string Sealed(const std::string& keyHex, const std::string& plain)
{
    const auto params = Base::Encrypt::ParamsOf(keyHex, "Vantor.DESetup.1").value();
    return "<DESetup version=\"1\"><Sealed>" + Base::Encrypt::Seal(params, plain) + "</Sealed></DESetup>";
}

} // namespace

TEST_F(DataEncryptionConfig, ReadsWhatItWrote)
{
    const CDataEncryptionConfig config(File());
    const DataEncryption encryption = CDataEncryptionConfig::Generate();
    EXPECT_FALSE(config.Exists());
    ASSERT_TRUE(config.Write(encryption));
    EXPECT_TRUE(config.Exists());
    const auto read = config.Read();
    ASSERT_TRUE(read);
    EXPECT_TRUE(*read == encryption);
    const auto key = read->Params().key;
    EXPECT_EQ(Base::Encrypt::ToHex(*key), encryption.dataKey);
}

TEST_F(DataEncryptionConfig, GeneratesDifferentKeysEachTime)
{
    const DataEncryption one = CDataEncryptionConfig::Generate();
    const DataEncryption two = CDataEncryptionConfig::Generate();
    EXPECT_TRUE(Base::Encrypt::IsKeyText(one.databaseKey));
    EXPECT_NE(one.databaseKey, one.dataKey);
    EXPECT_NE(one.databaseKey, two.databaseKey);
    EXPECT_NE(one.dataKey, two.dataKey);
    EXPECT_NE(one.id, two.id);
}

TEST_F(DataEncryptionConfig, KeepsItsFilesToTheUserAndItsSecretsSealed)
{
    const DataEncryption encryption = CDataEncryptionConfig::Generate();
    ASSERT_TRUE(CDataEncryptionConfig(File()).Write(encryption));
    using std::filesystem::perms;
    for (const std::string& file : {File(), KeyFile()}) {
        EXPECT_EQ(std::filesystem::status(file).permissions(), perms::owner_read | perms::owner_write)
            << file;
        for (const std::string& secret : {encryption.databaseKey, encryption.dataKey})
            EXPECT_EQ(store::ReadAll(file).find(secret), std::string::npos) << file;
    }
}

TEST_F(DataEncryptionConfig, KeepsTheSealingKeyWhenItWritesAnew)
{
    const CDataEncryptionConfig config(File());
    ASSERT_TRUE(config.Write(CDataEncryptionConfig::Generate()));
    const std::string key = store::ReadAll(KeyFile());
    const DataEncryption second = CDataEncryptionConfig::Generate();
    ASSERT_TRUE(config.Write(second));
    EXPECT_EQ(store::ReadAll(KeyFile()), key);
    EXPECT_TRUE(config.Read() == second);
}

TEST_F(DataEncryptionConfig, SaysInOneLineWhyASetupCannotBeUsed)
{
    const std::string key(64, '1');
    const std::string lines = "key=" + std::string(64, 'a') + "\ndata=" + std::string(64, 'b') + "\n";
    const std::string good = Sealed(key, "id=I\n" + lines);
    const std::string unreadable = "Failed to read xml file [" + File() + "].";
    const std::string notLoaded = "Faild to load config file [" + File() + "].";
    const std::string notOpened = "Faild to decryption config file [" + File() + "].";
    const struct
    {
        const char* what;
        std::string setup;
        std::string key;
        std::string line;
    } rows[] = {
        {"empty", "", key, unreadable},
        {"no XML", "noise", key, unreadable},
        {"cut off", good.substr(0, good.size() - 4), key, unreadable},
        {"too large", good + std::string(64 * 1024, ' '), key, unreadable},
        {"nested too deep",
         [] {
             std::string text;
             for (int depth = 0; depth < 5000; ++depth)
                 text += "<a>";
             return text;
         }(),
         key, unreadable},
        {"another root", "<Setup version=\"1\"><Sealed>AAAA</Sealed></Setup>", key, notLoaded},
        {"no version", "<DESetup><Sealed>AAAA</Sealed></DESetup>", key, notLoaded},
        {"another version", "<DESetup version=\"2\"><Sealed>AAAA</Sealed></DESetup>", key, notLoaded},
        {"no sealed text", "<DESetup version=\"1\"/>", key, notLoaded},
        {"another element", "<DESetup version=\"1\"><Open>AAAA</Open></DESetup>", key, notLoaded},
        {"no entry of a keyring", "<DESetup version=\"1\" keyring=\"\"><Sealed>AAAA</Sealed></DESetup>", key,
         notLoaded},
        {"a path as the entry", "<DESetup version=\"1\" keyring=\"../a\"><Sealed>AAAA</Sealed></DESetup>",
         key, notLoaded},
        {"a document type", "<!DOCTYPE DESetup [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>" + good, key,
         notLoaded},
        {"no base64", "<DESetup version=\"1\"><Sealed>?</Sealed></DESetup>", key, notOpened},
        {"a short sealed text", "<DESetup version=\"1\"><Sealed>AAAA</Sealed></DESetup>", key, notOpened},
        {"another sealing key", good, std::string(64, '2'), notOpened},
        {"a damaged sealing key", good, key.substr(1) + "x", notOpened},
        {"a long sealing key", good, key + "1", notOpened},
        {"a missing line", Sealed(key, "id=I\n"), key, notOpened},
        {"a line too many", Sealed(key, "id=I\n" + lines + "more"), key, notOpened},
        {"a short database key", Sealed(key, "id=I\nkey=aa\ndata=" + std::string(64, 'b') + "\n"), key,
         notOpened},
        {"no id", Sealed(key, "id=\n" + lines), key, "DESetup id empty."},
    };
    for (const auto& row : rows) {
        store::WriteAll(File(), row.setup);
        store::WriteAll(KeyFile(), row.key);
        const CapturedLog log;
        EXPECT_FALSE(CDataEncryptionConfig(File()).Read()) << row.what;
        EXPECT_EQ(log.Messages(Base::LogLevel::Error), std::vector<std::string>{row.line}) << row.what;
    }
    store::WriteAll(File(), good);
    store::WriteAll(KeyFile(), key);
    EXPECT_TRUE(CDataEncryptionConfig(File()).Read()) << "the rows must fail for their own reason";
    std::filesystem::remove(KeyFile());
    EXPECT_FALSE(CDataEncryptionConfig(File()).Read());
}

TEST_F(DataEncryptionConfig, ReportsAFolderThatCannotBeWritten)
{
    store::WriteAll(m_root.Path() + "Framework.C", "a file in its place");
    const CapturedLog log;
    EXPECT_FALSE(CDataEncryptionConfig(File()).Write(CDataEncryptionConfig::Generate()));
    EXPECT_EQ(log.Messages(Base::LogLevel::Error).size(), 1u);
}
