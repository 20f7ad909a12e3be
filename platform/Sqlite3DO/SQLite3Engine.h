#pragma once

#include "Base/Noncopyable.h"
#include "Sqlite3DO/SQLite3Exception.h"
#include "Sqlite3DO/SQLite3Recordset.h"

#include <chrono>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace Sqlite3DO {

/// How long a statement waits for another process, or for another thread's transaction.
constexpr std::chrono::milliseconds kWaitLimit{10000};

/// One open database file, used by one thread at a time. Programs use CSQLite3Conn, which guards it; the
/// schema update, which must look at a file before it touches it, uses this class itself. Every failure is a
/// CSQLite3Exception.
class CSQLite3Engine : Base::CNoncopyable
{
public:
    enum class Mode {
        Inspect,    ///< the file must exist; opening it changes nothing but what a crash left in its log
        Existing,   ///< the file must exist
        Create,     ///< a file that does not exist is made
        CreateCopy, ///< the same with a roll-back journal, so that it is one whole file at any time
    };

    /// What a statement text may do.
    enum class Allowed {
        Everything, ///< the program's own fixed texts
        Statements, ///< no transaction, savepoint or attached file
        Script,     ///< the same, and no pragma
    };

    /// Opens the file of the path (UTF-8). key: 64 hexadecimal digits for an encrypted file, empty for a
    /// plain one. The first page is read, so that a wrong key (kErrorNotADatabase) and a broken file show
    /// here, with the file as it was. For Existing and Create the journal becomes a write-ahead log. Every
    /// commit reaches the disk (synchronous=FULL).
    CSQLite3Engine(const std::string& path, Mode mode, const std::string& key,
                   std::chrono::milliseconds waitLimit = kWaitLimit);
    ~CSQLite3Engine();

    /// Runs exactly one statement; what it returns is copied to rows.
    void Run(const std::string& sql, CSQLite3Recordset* rows = nullptr,
             Allowed allowed = Allowed::Everything);

    /// Runs the statements of a text one after the other, up to the first that fails.
    void RunScript(const std::string& script);

    /// The first column of the first row as a number; 0 without one.
    int QueryInt(const std::string& sql);

    /// Whether BEGIN was executed and neither a COMMIT nor a roll-back followed.
    bool InTransaction() const;

    /// Takes the transaction back; without one nothing happens.
    void Rollback() noexcept;

    /// Throws kErrorCorrupt when the engine's quick check finds a fault anywhere in the file.
    void RequireSound();

    /// Writes a consistent copy of this database to a file that does not exist, under the same key as this
    /// one.
    void CopyTo(const std::string& path, const std::string& key);

    /// Writes this plain database to a file that does not exist, encrypted with the key.
    void ExportEncrypted(const std::string& path, const std::string& key);

private:
    void SetKey(const std::string& key);
    void Prepare(Mode mode);
    void Execute(sqlite3_stmt* statement, CSQLite3Recordset* rows);

    static void AddRow(sqlite3_stmt* statement, CSQLite3Recordset& rows);
    static int Authorize(void* self, int action, const char*, const char*, const char*, const char*);

    sqlite3* m_db = nullptr;
    Allowed m_allowed = Allowed::Everything;
};

/// Whether the file begins as an unencrypted database does.
bool IsPlainDatabase(const std::string& path);

} // namespace Sqlite3DO
