#pragma once

#include <sqlcipher/sqlite3.h>

#include <cstddef>
#include <functional>
#include <string>

namespace bench {

/// The engine's C interface used directly, with the settings that the component's connection has: what there
/// is to compare with. Whatever fails ends the program with a message.
class CBare
{
public:
    /// Opens a database that exists; key: 64 hexadecimal digits, or empty.
    CBare(const std::string& path, const std::string& key);
    ~CBare();
    CBare(const CBare&) = delete;
    CBare& operator=(const CBare&) = delete;

    /// Runs a statement and reads every column of every row as text; the number of bytes that they have.
    std::size_t Run(const std::string& sql);

    /// The same for a query of which only the first column of the first row is wanted; empty without a row.
    std::string RunForFirst(const std::string& sql);

    /// Runs an insert with parameters so often in one transaction; bind gives them their values.
    void InsertMany(const char* sql, int count,
                    const std::function<void(sqlite3_stmt* insert, int row)>& bind);

private:
    sqlite3_stmt* Prepare(const char* sql, std::size_t size);
    void Check(int result);

    sqlite3* m_db = nullptr;
};

/// Ends the program with a message.
[[noreturn]] void Fail(const std::string& reason);

} // namespace bench
