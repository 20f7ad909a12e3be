#pragma once

#include <sqlcipher/sqlite3.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>

/// The engine's C interface used directly, with the settings that the component's connection has: what there
/// is to compare with.
class Bare
{
public:
    Bare(const std::string& path, const std::string& key)
    {
        Check(sqlite3_open_v2(path.c_str(), &m_db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr));
        if (!key.empty()) {
            const std::string raw = "x'" + key + "'";
            Check(sqlite3_key(m_db, raw.data(), static_cast<int>(raw.size())));
            Run("PRAGMA cipher_page_size = 4096");
        }
        Run("PRAGMA journal_mode = WAL");
        Run("PRAGMA synchronous = FULL");
    }
    ~Bare() { sqlite3_close(m_db); }
    Bare(const Bare&) = delete;
    Bare& operator=(const Bare&) = delete;

    /// Runs a statement; gives the number of bytes in the columns of its rows.
    std::size_t Run(const std::string& sql)
    {
        sqlite3_stmt* statement = nullptr;
        Check(sqlite3_prepare_v2(m_db, sql.c_str(), static_cast<int>(sql.size()) + 1, &statement, nullptr));
        std::size_t bytes = 0;
        int result = 0;
        while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
            for (int column = 0; column < sqlite3_column_count(statement); ++column) {
                if (sqlite3_column_text(statement, column))
                    bytes += static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
            }
        }
        Check(sqlite3_finalize(statement));
        return bytes;
    }

private:
    void Check(int result)
    {
        if (result == SQLITE_OK)
            return;
        std::fprintf(stderr, "%s\n", sqlite3_errmsg(m_db));
        std::exit(1);
    }

    sqlite3* m_db = nullptr;
};
