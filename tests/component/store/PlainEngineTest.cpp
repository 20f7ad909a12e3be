// The engine's source on an engine that cannot encrypt: it does not know the pragma that tells of a cipher,
// and takes every key without a word.

#include <gtest/gtest.h>

#include <sqlcipher/sqlite3.h>

#include <cstring>

namespace {

int keysTaken = 0;

int PlainPrepare(sqlite3* db, const char* sql, int size, sqlite3_stmt** statement, const char** rest)
{
    if (!std::strstr(sql, "cipher_version"))
        return sqlite3_prepare_v2(db, sql, size, statement, rest);
    *rest = sql + std::strlen(sql);
    return sqlite3_prepare_v2(db, "PRAGMA unknown_to_it", -1, statement, nullptr);
}

int PlainKey(sqlite3*, const void*, int)
{
    ++keysTaken;
    return SQLITE_OK;
}

} // namespace

#define sqlite3_prepare_v2 PlainPrepare
#define sqlite3_key PlainKey
#include "Sqlite3DO/SQLite3Engine.cpp"

#include "StoreWorld.h"

TEST(AnEngineThatCannotEncrypt, IsNotTrustedWithAKey)
{
    const TestDataRoot root;
    const std::string path = root.Path() + "VideoSystem";
    for (const auto mode :
         {Sqlite3DO::CSQLite3Engine::Mode::Create, Sqlite3DO::CSQLite3Engine::Mode::CreateCopy}) {
        try {
            Sqlite3DO::CSQLite3Engine(path, mode, store::kKey);
            ADD_FAILURE() << "it was opened";
        } catch (const Sqlite3DO::CSQLite3Exception& error) {
            EXPECT_STREQ(error.what(), "the database engine cannot encrypt");
        }
    }
    EXPECT_EQ(keysTaken, 0);
    EXPECT_EQ(store::ReadAll(path), "");
    store::Write(path, "", "CREATE TABLE T (a)"); // plain files are no matter of keys
    EXPECT_TRUE(Sqlite3DO::IsPlainDatabase(path));
}
