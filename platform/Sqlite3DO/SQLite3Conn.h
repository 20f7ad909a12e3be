#pragma once

#include "Base/Noncopyable.h"
#include "Sqlite3DO/SQLite3Engine.h"
#include "Sqlite3DO/SQLite3Exception.h"
#include "Sqlite3DO/SQLite3Recordset.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

namespace Sqlite3DO {

/// A connection to one database file that any number of threads may use at once; statements run one after the
/// other.
///
/// Begin gives the connection to the calling thread until its Commit or Rollback. Statements and Begins of
/// other threads wait meanwhile, so that none of them is acknowledged and then taken back with somebody
/// else's transaction. A wait longer than the wait limit fails with kErrorBusy, also when the owner never
/// ends its transaction. A thread must not end, and an exception must not leave the bracket, without Commit
/// or Rollback; CSQLite3Transaction sees to that.
///
/// Every failure is a CSQLite3Exception; no text of one holds a key.
class CSQLite3Conn : Base::CNoncopyable
{
public:
    explicit CSQLite3Conn(std::chrono::milliseconds waitLimit = kWaitLimit) : m_waitLimit(waitLimit) {}
    ~CSQLite3Conn() = default;

    /// The key, 64 hexadecimal digits, of all files that are opened with an empty key from here on; empty:
    /// they are plain.
    static void SetStaticKey(const std::string& key);

    /// Opens the file of a path in UTF-8. create: a file that does not exist is made. key: 64 hexadecimal
    /// digits; empty for the static key. After a failure the file is as it was, and the connection stays
    /// closed.
    bool Open(const std::string& path, bool create, const std::string& key);

    /// Runs exactly one statement, which must not begin or end a transaction. True, or an exception.
    bool Execute(const std::string& sql);

    /// The same for a query; rows is filled before the call returns, and empty when it fails.
    bool Execute(const std::string& sql, CSQLite3Recordset& rows);

    /// What a statement that fails does to the transaction that it is part of.
    enum class OnFailure {
        TakeAllBack, ///< Commit takes everything back and fails
        KeepOthers,  ///< the other statements stand
    };

    /// Starts a transaction that may write. A second Begin by the same thread fails at once (kErrorMisuse).
    bool Begin(OnFailure onFailure = OnFailure::TakeAllBack) const;

    /// Ends the calling thread's transaction. When a failed statement demands it, or the commit itself fails,
    /// everything since Begin is taken back and the call fails.
    bool Commit() const;

    /// Whether the calling thread is between Begin and the end of its transaction. Never waits.
    bool InTransaction() const;

    /// Takes back the calling thread's transaction; nothing happens when it has none.
    void Rollback() const noexcept;

    /// Closes the file if no statement or transaction is going on; false if one is. Later statements fail.
    bool Close();

private:
    using Lock = std::unique_lock<std::mutex>;

    bool Execute(const std::string& sql, CSQLite3Recordset* rows);
    Lock Enter() const;
    void RequireOpen() const;
    void RequireTransactionAlive() const;
    void EndTransaction() const noexcept;

    const std::chrono::milliseconds m_waitLimit;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_ended;
    std::unique_ptr<CSQLite3Engine> m_engine;
    mutable std::atomic<std::uint64_t> m_owner{0}; // the thread of the open transaction; 0: none is open
    mutable OnFailure m_onFailure = OnFailure::TakeAllBack;
    mutable bool m_mustTakeBack = false;
};

/// A transaction from here to the end of the block, taken back unless Commit was reached.
class CSQLite3Transaction : Base::CNoncopyable
{
public:
    explicit CSQLite3Transaction(const CSQLite3Conn& connection) : m_connection(connection)
    {
        m_connection.Begin();
    }
    ~CSQLite3Transaction()
    {
        if (!m_ended)
            m_connection.Rollback();
    }

    void Commit()
    {
        m_ended = true;
        m_connection.Commit();
    }

private:
    const CSQLite3Conn& m_connection;
    bool m_ended = false;
};

} // namespace Sqlite3DO
