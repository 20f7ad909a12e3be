#include "Sqlite3DO/SQLite3Engine.h"

#include "Base/Encrypt.h"

#include <sqlcipher/sqlite3.h>

#include <climits>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

namespace Sqlite3DO {
namespace {

constexpr char kSetPageSize[] = "PRAGMA cipher_page_size = 4096";
/// In pages of the log, 16 MiB. A checkpoint holds up whoever writes, and writes a page once that was changed
/// many times since the last one.
constexpr char kSetCheckpoint[] = "PRAGMA wal_autocheckpoint = 4000";
constexpr char kPlainHeader[] = "SQLite format 3"; // with its zero byte: 16 bytes

struct Finalize
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, Finalize>;

/// Gives a member a value until the end of the block.
template<typename T>
class Restored
{
public:
    Restored(T& member, T value) : m_member(member), m_old(member) { member = value; }
    ~Restored() { m_member = m_old; }

private:
    T& m_member;
    T m_old;
};

/// The form in which the engine takes a raw key; wiped at the end.
class RawKey : Base::CNoncopyable
{
public:
    explicit RawKey(const std::string& key)
    {
        m_text.reserve(key.size() + 3); // growing would leave parts of the key behind
        m_text.append("x'").append(key).append("'");
    }
    ~RawKey() { Base::Encrypt::Wipe(m_text); }

    const char* Data() const { return m_text.data(); }
    int Size() const { return static_cast<int>(m_text.size()); }

private:
    std::string m_text;
};

int OpenFlags(CSQLite3Engine::Mode mode)
{
    using Mode = CSQLite3Engine::Mode;
    const int create = mode == Mode::Create || mode == Mode::CreateCopy ? SQLITE_OPEN_CREATE : 0;
    // One thread at a time is this class's rule; the engine's own lock at every column would only cost time.
    return SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | create;
}

[[noreturn]] void Fail(sqlite3* db, int code)
{
    throw CSQLite3Exception(code & 0xFF, sqlite3_errmsg(db));
}

/// Prepares the first statement at the position and moves the position behind it; null for blanks and
/// comments.
StatementHandle PrepareNext(sqlite3* db, const char*& position, const char* end)
{
    sqlite3_stmt* statement = nullptr;
    const int size = static_cast<int>(end - position) + 1;
    const int result = sqlite3_prepare_v2(db, position, size, &statement, &position);
    if (result != SQLITE_OK)
        Fail(db, result);
    return StatementHandle(statement);
}

bool HasStatement(sqlite3* db, const char* position, const char* end)
{
    while (position < end) {
        if (PrepareNext(db, position, end))
            return true;
    }
    return false;
}

void RequireText(const std::string& sql)
{
    if (sql.find('\0') != std::string::npos)
        throw CSQLite3Exception(kErrorMisuse, "the statement holds a zero byte");
    if (sql.size() > INT_MAX / 2)
        throw CSQLite3Exception(kErrorTooBig, "the statement is too long");
}

} // namespace

CSQLite3Engine::CSQLite3Engine(const std::string& path, Mode mode, const std::string& key,
                               std::chrono::milliseconds waitLimit)
{
    try {
        const int result = sqlite3_open_v2(path.c_str(), &m_db, OpenFlags(mode), nullptr);
        if (result != SQLITE_OK)
            Fail(m_db, result);
        sqlite3_busy_timeout(m_db, static_cast<int>(waitLimit.count()));
        if (!key.empty())
            SetKey(key);
        Prepare(mode);
        sqlite3_set_authorizer(m_db, &Authorize, this);
    } catch (...) {
        sqlite3_close(m_db);
        throw;
    }
}

CSQLite3Engine::~CSQLite3Engine()
{
    sqlite3_close(m_db);
}

void CSQLite3Engine::SetKey(const std::string& key)
{
    if (!Base::Encrypt::IsKeyText(key))
        throw CSQLite3Exception(kErrorMisuse, "the database key is not of 64 hexadecimal digits");
    // A plain engine takes any key without a word and writes the file unencrypted.
    CSQLite3Recordset version;
    Run("PRAGMA cipher_version", &version);
    if (!version.Next())
        throw CSQLite3Exception(kErrorMisuse, "the database engine cannot encrypt");
    const RawKey raw(key);
    const int result = sqlite3_key(m_db, raw.Data(), raw.Size());
    if (result != SQLITE_OK)
        Fail(m_db, result);
    Run(kSetPageSize);
}

void CSQLite3Engine::Prepare(Mode mode)
{
    QueryInt("SELECT count(*) FROM sqlite_master");
    Run("PRAGMA synchronous = FULL");
    if (mode == Mode::Inspect || mode == Mode::CreateCopy)
        return;
    Run("PRAGMA journal_mode = WAL");
    Run("PRAGMA journal_size_limit = 33554432");
    Run(kSetCheckpoint);
}

void CSQLite3Engine::Run(const std::string& sql, CSQLite3Recordset* rows, Allowed allowed)
{
    if (rows)
        rows->Reset();
    RequireText(sql);
    const Restored<Allowed> restored(m_allowed, allowed);
    const char* position = sql.c_str();
    const char* end = position + sql.size();
    const StatementHandle statement = PrepareNext(m_db, position, end);
    if (!statement)
        throw CSQLite3Exception(kErrorMisuse, "the text holds no statement");
    if (HasStatement(m_db, position, end))
        throw CSQLite3Exception(kErrorMisuse, "the text holds more than one statement");
    Execute(statement.get(), rows);
}

void CSQLite3Engine::RunScript(const std::string& script)
{
    RequireText(script);
    const Restored<Allowed> restored(m_allowed, Allowed::Script);
    const char* position = script.c_str();
    const char* end = position + script.size();
    while (position < end) {
        if (const StatementHandle statement = PrepareNext(m_db, position, end))
            Execute(statement.get(), nullptr);
    }
}

void CSQLite3Engine::Execute(sqlite3_stmt* statement, CSQLite3Recordset* rows)
{
    int result = sqlite3_step(statement);
    for (; result == SQLITE_ROW; result = sqlite3_step(statement)) {
        if (rows)
            AddRow(statement, *rows);
    }
    if (result == SQLITE_DONE)
        return;
    if (rows)
        rows->Reset();
    Fail(m_db, result);
}

// A column is looked up once, as a value that is then asked: every sqlite3_column_ call would look it up
// again.
void CSQLite3Engine::AddRow(sqlite3_stmt* statement, CSQLite3Recordset& rows)
{
    const int columns = sqlite3_column_count(statement);
    for (int column = 0; column < columns; ++column) {
        sqlite3_value* const value = sqlite3_column_value(statement, column);
        switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER:
            rows.AddInteger(sqlite3_value_int64(value));
            break;
        case SQLITE_FLOAT:
            rows.AddReal(sqlite3_value_double(value));
            break;
        case SQLITE_NULL:
            rows.AddNull();
            break;
        case SQLITE_TEXT: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
            rows.AddText(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
            break;
        }
        default: { // a blob, byte for byte
            const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
            rows.AddText(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value)));
        }
        }
    }
    rows.EndRow(static_cast<std::size_t>(columns));
}

int CSQLite3Engine::QueryInt(const std::string& sql)
{
    CSQLite3Recordset rows;
    Run(sql, &rows);
    rows.Next();
    return rows.GetInt(0);
}

bool CSQLite3Engine::InTransaction() const
{
    return sqlite3_get_autocommit(m_db) == 0;
}

void CSQLite3Engine::Rollback() noexcept
{
    if (!InTransaction())
        return;
    try {
        Run("ROLLBACK");
    } catch (const CSQLite3Exception&) {
        // The engine has taken the transaction back by itself, or does so when the file is closed.
    }
}

void CSQLite3Engine::RequireSound()
{
    CSQLite3Recordset rows;
    Run("PRAGMA quick_check(1)", &rows);
    if (!rows.Next() || rows.GetString(0) != "ok")
        throw CSQLite3Exception(kErrorCorrupt, "the database file is damaged");
}

void CSQLite3Engine::CopyTo(const std::string& path, const std::string& key)
{
    CSQLite3Engine target(path, Mode::CreateCopy, key);
    sqlite3_backup* backup = sqlite3_backup_init(target.m_db, "main", m_db, "main");
    if (!backup)
        Fail(target.m_db, sqlite3_errcode(target.m_db));
    const int result = sqlite3_backup_step(backup, -1);
    sqlite3_backup_finish(backup);
    if (result != SQLITE_DONE)
        throw CSQLite3Exception(result & 0xFF, sqlite3_errstr(result));
}

void CSQLite3Engine::ExportEncrypted(const std::string& path, const std::string& key)
{
    CSQLite3Engine(path, Mode::CreateCopy, key); // attaching a file makes none
    const char* position = "ATTACH DATABASE ?1 AS target KEY ?2";
    const StatementHandle attach = PrepareNext(m_db, position, position + std::strlen(position));
    const RawKey raw(key);
    sqlite3_bind_text(attach.get(), 1, path.data(), static_cast<int>(path.size()), SQLITE_STATIC);
    sqlite3_bind_text(attach.get(), 2, raw.Data(), raw.Size(), SQLITE_STATIC);
    Execute(attach.get(), nullptr);
    Run("PRAGMA target.cipher_page_size = 4096");
    const int version = QueryInt("PRAGMA user_version");
    Run("SELECT sqlcipher_export('target')");
    Run("PRAGMA target.user_version = " + std::to_string(version));
    Run("DETACH DATABASE target");
}

int CSQLite3Engine::Authorize(void* self, int action, const char*, const char*, const char*, const char*)
{
    const Allowed allowed = static_cast<CSQLite3Engine*>(self)->m_allowed;
    switch (action) {
    case SQLITE_TRANSACTION:
    case SQLITE_SAVEPOINT:
    case SQLITE_ATTACH:
    case SQLITE_DETACH:
        return allowed == Allowed::Everything ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_PRAGMA:
        return allowed == Allowed::Script ? SQLITE_DENY : SQLITE_OK;
    default:
        return SQLITE_OK;
    }
}

bool IsPlainDatabase(const std::string& path)
{
    std::ifstream file(std::filesystem::u8path(path), std::ios::binary);
    char header[sizeof kPlainHeader] = {};
    return file.read(header, sizeof header) && std::memcmp(header, kPlainHeader, sizeof header) == 0;
}

} // namespace Sqlite3DO
