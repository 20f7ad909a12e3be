#include "Sqlite3DO/SQLite3Conn.h"

#include "Base/Encrypt.h"

#include <atomic>
#include <utility>

namespace Sqlite3DO {
namespace {

/// A number that no other thread ever has, unlike a thread's identifier, which is given again.
std::uint64_t ThisThread()
{
    static std::atomic<std::uint64_t> last{0};
    thread_local const std::uint64_t number = ++last;
    return number;
}

struct StaticKey
{
    std::mutex mutex;
    std::string key;
};

StaticKey& TheStaticKey()
{
    static StaticKey* const instance = new StaticKey();
    return *instance;
}

} // namespace

void CSQLite3Conn::SetStaticKey(const std::string& key)
{
    StaticKey& shared = TheStaticKey();
    std::lock_guard<std::mutex> lock(shared.mutex);
    Base::Encrypt::Wipe(shared.key);
    shared.key = key;
}

bool CSQLite3Conn::Open(const std::string& path, bool create, const std::string& key)
{
    StaticKey& shared = TheStaticKey();
    std::lock_guard<std::mutex> keyLock(shared.mutex);
    Lock lock(m_mutex);
    if (m_engine)
        throw CSQLite3Exception(kErrorMisuse, "the connection is open already");
    const auto mode = create ? CSQLite3Engine::Mode::Create : CSQLite3Engine::Mode::Existing;
    m_engine = std::make_unique<CSQLite3Engine>(path, mode, key.empty() ? shared.key : key, m_waitLimit);
    return true;
}

bool CSQLite3Conn::Execute(const std::string& sql)
{
    return Execute(sql, nullptr);
}

bool CSQLite3Conn::Execute(const std::string& sql, CSQLite3Recordset& rows)
{
    rows = CSQLite3Recordset(); // also when the statement never runs
    return Execute(sql, &rows);
}

bool CSQLite3Conn::Execute(const std::string& sql, CSQLite3Recordset* rows)
{
    const Lock lock = Enter();
    RequireTransactionAlive();
    try {
        m_engine->Run(sql, rows, CSQLite3Engine::Allowed::Statements);
    } catch (...) {
        m_mustTakeBack = m_onFailure == OnFailure::TakeAllBack;
        throw;
    }
    return true;
}

bool CSQLite3Conn::Begin(OnFailure onFailure) const
{
    const Lock lock = Enter();
    if (m_owner == ThisThread())
        throw CSQLite3Exception(kErrorMisuse, "this thread's transaction is open already");
    m_engine->Run("BEGIN IMMEDIATE");
    m_owner = ThisThread();
    m_onFailure = onFailure;
    m_mustTakeBack = false;
    return true;
}

bool CSQLite3Conn::Commit() const
{
    const Lock lock(m_mutex);
    RequireOpen();
    if (m_owner != ThisThread())
        throw CSQLite3Exception(kErrorMisuse, "this thread has no open transaction");
    try {
        if (m_mustTakeBack || !m_engine->InTransaction())
            throw CSQLite3Exception(kErrorAbort,
                                    "a statement of the transaction failed, everything is taken back");
        m_engine->Run("COMMIT");
    } catch (...) {
        EndTransaction();
        throw;
    }
    EndTransaction();
    return true;
}

// No other thread makes this one the owner or ends its transaction, so that its answer needs no lock.
bool CSQLite3Conn::InTransaction() const
{
    return m_owner == ThisThread();
}

void CSQLite3Conn::Rollback() const noexcept
{
    const Lock lock(m_mutex);
    if (m_engine && m_owner == ThisThread())
        EndTransaction();
}

bool CSQLite3Conn::Close()
{
    const Lock lock(m_mutex, std::try_to_lock);
    if (!lock.owns_lock() || m_owner != 0)
        return false;
    m_engine.reset();
    return true;
}

CSQLite3Conn::Lock CSQLite3Conn::Enter() const
{
    Lock lock(m_mutex);
    const bool entered =
        m_ended.wait_for(lock, m_waitLimit, [this] { return m_owner == 0 || m_owner == ThisThread(); });
    if (!entered)
        throw CSQLite3Exception(kErrorBusy, "another thread's transaction does not end");
    RequireOpen();
    return lock;
}

void CSQLite3Conn::RequireOpen() const
{
    if (!m_engine)
        throw CSQLite3Exception(kErrorCantOpen, "the database is not open");
}

// After an error such as a full disk the engine takes the transaction back by itself; a statement of the
// bracket that came later would then stand, and be acknowledged, for itself.
void CSQLite3Conn::RequireTransactionAlive() const
{
    if (m_owner != 0 && !m_engine->InTransaction())
        throw CSQLite3Exception(kErrorAbort, "the transaction was taken back after an error");
}

void CSQLite3Conn::EndTransaction() const noexcept
{
    m_engine->Rollback();
    m_owner = 0;
    m_ended.notify_all();
}

} // namespace Sqlite3DO
