#include "Sqlite3DO/SQLite3Conn.h"
#include "StoreWorld.h"

#include <gtest/gtest.h>

using namespace Sqlite3DO;
using store::ErrorOf;
using store::kKey;
using store::kOtherKey;

namespace {

constexpr char kMarker[] = "a text that nobody else writes";

class Keys : public testing::Test
{
protected:
    ~Keys() override { CSQLite3Conn::SetStaticKey(""); }

    std::string Path() const { return m_root.Path() + "VideoSystem"; }

    void MakeKeyed()
    {
        store::Write(Path(), kKey,
                     std::string("CREATE TABLE T (s); INSERT INTO T VALUES ('") + kMarker + "');");
    }

    TestDataRoot m_root;
};

} // namespace

TEST_F(Keys, LeaveNothingReadableInTheFileOrItsLog)
{
    CSQLite3Conn::SetStaticKey(kKey);
    CSQLite3Conn conn;
    conn.Open(Path(), true, "");
    conn.Execute("CREATE TABLE T (s)");
    conn.Execute(std::string("INSERT INTO T VALUES ('") + kMarker + "')");
    for (const std::string& name : store::NamesIn(m_root.Path())) {
        const std::string content = store::ReadAll(m_root.Path() + name);
        EXPECT_EQ(content.find(kMarker), std::string::npos) << name;
        EXPECT_EQ(content.find("CREATE TABLE"), std::string::npos) << name;
        EXPECT_EQ(content.find(kKey), std::string::npos) << name;
    }
    ASSERT_TRUE(conn.Close());
    EXPECT_FALSE(IsPlainDatabase(Path()));
    EXPECT_EQ(store::Query(Path(), kKey, "SELECT s FROM T"), kMarker);
}

TEST_F(Keys, OfTheCallComeBeforeTheStaticOne)
{
    CSQLite3Conn::SetStaticKey(kOtherKey);
    MakeKeyed();
    CSQLite3Conn conn;
    EXPECT_TRUE(conn.Open(Path(), false, kKey));
}

TEST_F(Keys, ThatDoNotFitAreRefusedAndLeaveTheFileUntouched)
{
    MakeKeyed();
    const std::string before = store::ReadAll(Path());
    const struct
    {
        const char* what;
        std::string key;
        int code;
    } rows[] = {
        {"another key", kOtherKey, kErrorNotADatabase},
        {"no key", "", kErrorNotADatabase},
        {"a short key", kKey.substr(1), kErrorMisuse},
        {"a long key", kKey + "a", kErrorMisuse},
        {"a passphrase", std::string(64, 'x'), kErrorMisuse},
        {"an injected key", std::string(60, 'a') + "';--", kErrorMisuse},
    };
    for (const auto& row : rows) {
        CSQLite3Conn conn;
        try {
            conn.Open(Path(), true, row.key);
            ADD_FAILURE() << row.what << " opened it";
        } catch (const CSQLite3Exception& error) {
            EXPECT_EQ(error.Code(), row.code) << row.what << ": " << error.what();
            EXPECT_TRUE(row.key.empty() || std::string(error.what()).find(row.key) == std::string::npos);
        }
        EXPECT_EQ(ErrorOf([&] { conn.Execute("CREATE TABLE Made (a)"); }), kErrorCantOpen) << row.what;
        EXPECT_EQ(store::ReadAll(Path()), before) << row.what;
    }
    EXPECT_EQ(store::NamesIn(m_root.Path()), std::vector<std::string>{"VideoSystem"});
    EXPECT_EQ(store::Query(Path(), kKey, "SELECT s FROM T"), kMarker);
}

TEST_F(Keys, ThatAreWrongLoseNothingOfALogLeftByACrash)
{
    {
        CSQLite3Engine crashed(Path(), CSQLite3Engine::Mode::Create, kKey);
        crashed.Run("CREATE TABLE T (s)");
        crashed.Run("INSERT INTO T VALUES ('kept')");
        for (const char* suffix : {"", "-wal"})
            std::filesystem::copy_file(Path() + suffix, m_root.Path() + "Crashed" + suffix);
    }
    const std::string path = m_root.Path() + "Crashed";
    ASSERT_GT(store::ReadAll(path + "-wal").size(), 0u);
    EXPECT_EQ(ErrorOf([&] { CSQLite3Conn().Open(path, true, kOtherKey); }), kErrorNotADatabase);
    EXPECT_EQ(ErrorOf([&] { CSQLite3Conn().Open(path, true, ""); }), kErrorNotADatabase);
    EXPECT_EQ(store::Query(path, kKey, "SELECT s FROM T"), "kept");
}

TEST_F(Keys, DoNotOpenAPlainFile)
{
    store::Write(Path(), "", "CREATE TABLE T (s)");
    const std::string before = store::ReadAll(Path());
    EXPECT_TRUE(IsPlainDatabase(Path()));
    EXPECT_EQ(ErrorOf([&] { CSQLite3Conn().Open(Path(), true, kKey); }), kErrorNotADatabase);
    EXPECT_EQ(store::ReadAll(Path()), before);
}
