#include "logical/Local/DatabaseSession/SharedCommit.h"

#include <chrono>
#include <utility>

namespace video {
namespace {

/// About what a flush of a common solid-state disk takes: 100 to 300 microseconds.
constexpr std::chrono::microseconds kLongestGathering{300};

} // namespace

bool CSharedCommit::Run(const std::function<void()>& write)
{
    if (m_connection.InTransaction()) {
        write();
        return true;
    }
    Waiting mine{write};
    std::unique_lock<std::mutex> lock(m_mutex);
    m_waiting.push_back(&mine);
    m_came.notify_one();
    m_ended.wait(lock, [&] { return mine.isDone || !m_isLed; });
    if (!mine.isDone)
        Lead(lock);
    if (mine.fault)
        std::rethrow_exception(mine.fault);
    return mine.isStored;
}

void CSharedCommit::Lead(std::unique_lock<std::mutex>& lock)
{
    m_isLed = true;
    m_came.wait_for(lock, kLongestGathering, [this] { return m_waiting.size() >= m_expected; });
    lock.unlock();
    Batch batch;
    bool stored = false;
    try {
        stored = WriteBatch(batch);
    } catch (...) {
        // The database failed, and its line could not be written: those who wait must be told all the same.
        if (batch.empty())
            batch = TakeBatch();
    }
    lock.lock();
    for (Waiting* each : batch) {
        each->isStored = stored;
        each->isDone = true;
    }
    m_expected = batch.size() + m_waiting.size();
    m_isLed = false;
    m_ended.notify_all();
}

// The batch is taken when the connection is ours: whoever came while it was waited for takes part.
bool CSharedCommit::WriteBatch(Batch& batch)
{
    CBaseDBTransaction transaction(m_connection, CBaseDBConn::OnFailure::KeepOthers);
    batch = TakeBatch();
    if (!transaction.HasBegun())
        return false;
    for (Waiting* each : batch) {
        try {
            each->write();
        } catch (...) {
            each->fault = std::current_exception();
        }
    }
    return transaction.Commit();
}

CSharedCommit::Batch CSharedCommit::TakeBatch()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_waiting, {});
}

} // namespace video
