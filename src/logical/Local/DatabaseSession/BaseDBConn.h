#pragma once

#include "Base/Noncopyable.h"
#include "Sqlite3DO/SQLite3Conn.h"

#include <string>
#include <vector>

namespace video {

/// The shared connection to one of the component's databases. Any thread; see Sqlite3DO::CSQLite3Conn for how
/// statements and transactions of several threads take turns.
///
/// Every call is guarded: a database error gives one fatal line with its code and text, of a flood not each,
/// and the result false, and goes no further. A database that did not open fails every later call the same
/// way.
class CBaseDBConn : Base::CNoncopyable
{
public:
    using OnFailure = Sqlite3DO::CSQLite3Conn::OnFailure;

    /// Opens, or makes, the database in the component's data folder with the process-wide key.
    explicit CBaseDBConn(const std::string& dbName);

    /// The same in another folder, which is in the local code page and ends in a separator.
    CBaseDBConn(const std::string& folder, const std::string& dbName);

    /// Runs a statement that returns no rows.
    bool Execute(const std::string& sql);

    /// Runs a query; rows is empty when it fails.
    bool Execute(const std::string& sql, Sqlite3DO::CSQLite3Recordset& rows);

    /// Runs statements that reach the disk together, even if the process is killed between them; those of
    /// other threads come before or after. One that fails takes back nothing but itself, and the rest still
    /// runs. Inside the calling thread's Begin and Commit they are part of that transaction and its rules.
    /// False when one failed.
    bool ExecuteTogether(const std::vector<std::string>& statements);

    /// Gives the connection to the calling thread until Commit; not reentrant. After a Begin that failed the
    /// statements stand for themselves. CBaseDBTransaction ends the transaction on every path.
    bool Begin(OnFailure onFailure = OnFailure::TakeAllBack);

    /// False when the transaction was taken back: the commit failed, or a statement since a Begin with
    /// OnFailure::TakeAllBack.
    bool Commit();

    /// Whether the calling thread is between Begin and the end of its transaction.
    bool InTransaction() const { return m_connection.InTransaction(); }

    /// Takes back the calling thread's transaction, if it has one.
    void Rollback() { m_connection.Rollback(); }

    /// Closes the file unless something is going on in it; for the end of the process.
    bool Close() { return m_connection.Close(); }

private:
    Sqlite3DO::CSQLite3Conn m_connection;
};

/// Brackets the writes of a block: what was written is taken back unless Commit was reached.
class CBaseDBTransaction : Base::CNoncopyable
{
public:
    explicit CBaseDBTransaction(CBaseDBConn& connection,
                                CBaseDBConn::OnFailure onFailure = CBaseDBConn::OnFailure::TakeAllBack)
        : m_connection(connection), m_begun(connection.Begin(onFailure))
    {}
    ~CBaseDBTransaction()
    {
        if (m_begun)
            m_connection.Rollback();
    }

    /// False when the transaction did not begin; nothing should be written then.
    bool HasBegun() const { return m_begun; }

    bool Commit()
    {
        const bool begun = m_begun;
        m_begun = false;
        return begun && m_connection.Commit();
    }

private:
    CBaseDBConn& m_connection;
    bool m_begun;
};

} // namespace video
