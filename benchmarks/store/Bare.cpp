#include "store/Bare.h"

#include <cstdio>
#include <cstdlib>

namespace bench {

CBare::CBare(const std::string& path, const std::string& key)
{
    Check(sqlite3_open_v2(path.c_str(), &m_db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr));
    if (!key.empty()) {
        const std::string raw = "x'" + key + "'";
        Check(sqlite3_key(m_db, raw.data(), static_cast<int>(raw.size())));
        Run("PRAGMA cipher_page_size = 4096");
    }
    Run("PRAGMA synchronous = FULL");
    Run("PRAGMA journal_mode = WAL");
    Run("PRAGMA journal_size_limit = 33554432");
    Run("PRAGMA wal_autocheckpoint = 4000");
}

CBare::~CBare()
{
    sqlite3_close(m_db);
}

std::size_t CBare::Run(const std::string& sql)
{
    sqlite3_stmt* const statement = Prepare(sql.c_str(), sql.size());
    std::size_t bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            if (sqlite3_column_text(statement, column))
                bytes += static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
        }
    }
    Check(sqlite3_finalize(statement));
    return bytes;
}

std::string CBare::RunForFirst(const std::string& sql)
{
    sqlite3_stmt* const statement = Prepare(sql.c_str(), sql.size());
    std::string first;
    if (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = sqlite3_column_count(statement) - 1; column >= 0; --column) {
            if (const unsigned char* text = sqlite3_column_text(statement, column); text && column == 0)
                first = reinterpret_cast<const char*>(text);
        }
    }
    Check(sqlite3_finalize(statement));
    return first;
}

void CBare::InsertMany(const char* sql, int count,
                       const std::function<void(sqlite3_stmt* insert, int row)>& bind)
{
    Run("PRAGMA cache_size = -1500000"); // KiB: indexes are filled in no order
    Run("BEGIN");
    sqlite3_stmt* const insert = Prepare(sql, std::string(sql).size());
    for (int row = 0; row < count; ++row) {
        bind(insert, row);
        sqlite3_step(insert);
        Check(sqlite3_reset(insert));
    }
    Check(sqlite3_finalize(insert));
    Run("COMMIT");
    Run("PRAGMA wal_checkpoint(TRUNCATE)");
}

sqlite3_stmt* CBare::Prepare(const char* sql, std::size_t size)
{
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(m_db, sql, static_cast<int>(size) + 1, &statement, nullptr));
    return statement;
}

void CBare::Check(int result)
{
    if (result != SQLITE_OK)
        Fail(sqlite3_errmsg(m_db));
}

void Fail(const std::string& reason)
{
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(1);
}

} // namespace bench
