#include "DatabaseUpdate/EncryptFile.h"

#include "DatabaseUpdate/DatabaseFiles.h"
#include "Sqlite3DO/SQLite3Engine.h"

#include <vector>

namespace DatabaseUpdate {
namespace {

using Sqlite3DO::CSQLite3Engine;
using Sqlite3DO::CSQLite3Exception;
using Sqlite3DO::CSQLite3Recordset;

/// Everything that tells two databases apart short of their values: version, schema and number of rows of
/// each table.
std::vector<std::string> Outline(CSQLite3Engine& database)
{
    std::vector<std::string> outline{std::to_string(database.QueryInt("PRAGMA user_version"))};
    CSQLite3Recordset schema;
    database.Run(
        "SELECT type, name, sql FROM sqlite_master WHERE name NOT LIKE 'sqlite_%' ORDER BY type, name",
        &schema);
    while (schema.Next()) {
        std::string name = schema.GetString(1);
        outline.push_back(name + ' ' + schema.GetString(2));
        if (schema.GetString(0) != "table")
            continue;
        for (std::size_t at = name.find('"'); at != std::string::npos; at = name.find('"', at + 2))
            name.insert(at, 1, '"');
        outline.push_back(std::to_string(database.QueryInt("SELECT count(*) FROM \"" + name + '"')));
    }
    return outline;
}

// Takes the write-ahead log into the file and removes it: left behind, it would be taken for the encrypted
// file's log. From here on no other connection gets in until this one is closed.
void TakeAlone(CSQLite3Engine& database)
{
    database.Run("PRAGMA locking_mode = EXCLUSIVE");
    CSQLite3Recordset mode;
    database.Run("PRAGMA journal_mode = DELETE", &mode);
    if (!mode.Next() || mode.GetString(0) != "delete")
        throw CSQLite3Exception(Sqlite3DO::kErrorBusy, "the plain database file is in use");
    database.Run("BEGIN EXCLUSIVE");
    database.Run("COMMIT");
}

void WriteEncryptedCopy(const std::string& path, const std::string& copy, const std::string& key)
{
    CSQLite3Engine plain(path, CSQLite3Engine::Mode::Inspect, std::string());
    plain.RequireSound();
    TakeAlone(plain);
    plain.ExportEncrypted(copy, key);
    CSQLite3Engine encrypted(copy, CSQLite3Engine::Mode::Inspect, key);
    encrypted.RequireSound();
    if (Outline(plain) != Outline(encrypted))
        throw CSQLite3Exception(Sqlite3DO::kErrorGeneral,
                                "the encrypted copy differs from the plain database");
}

} // namespace

void EncryptFile(const std::string& path, const std::string& key)
{
    const std::string copy = path + ".encrypting";
    RemoveDatabaseFile(copy);
    try {
        WriteEncryptedCopy(path, copy, key);
        RemoveJournals(path);
        if (!ReplaceDatabaseFile(copy, path))
            throw CSQLite3Exception(Sqlite3DO::kErrorCantOpen,
                                    "the encrypted copy cannot take the file's place");
    } catch (...) {
        RemoveDatabaseFile(copy);
        throw;
    }
}

} // namespace DatabaseUpdate
