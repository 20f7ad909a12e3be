#pragma once

#include "logical/Local/DatabaseSession/BaseDBConn.h"

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <vector>

namespace video {

/// Brings the writes that several threads ask for at the same time to the disk with one commit, as the flush
/// of a commit takes most of the time of a write. Any thread.
///
/// One of the threads writes for all that wait, in the order in which they came. A thread that is alone
/// writes at once; while several are at work, the one that writes first waits for the others, but not for
/// longer than a flush takes.
class CSharedCommit : Base::CNoncopyable
{
public:
    /// connection must outlive the object.
    explicit CSharedCommit(CBaseDBConn& connection) : m_connection(connection) {}

    /// Runs the write, on this or another thread, in a transaction in which a statement that fails takes back
    /// nothing but itself. Returns when the transaction has ended; false when it was taken back, or did not
    /// begin and the write was not run. What the write throws is thrown here.
    ///
    /// Between the calling thread's own Begin and Commit the write is run at once, as part of that
    /// transaction. The calling thread must hold no lock that a write takes.
    bool Run(const std::function<void()>& write);

private:
    struct Waiting
    {
        const std::function<void()>& write;
        bool isDone = false;
        bool isStored = false;
        std::exception_ptr fault{};
    };
    using Batch = std::vector<Waiting*>;

    void Lead(std::unique_lock<std::mutex>& lock);
    bool WriteBatch(Batch& batch);
    Batch TakeBatch();

    CBaseDBConn& m_connection;
    std::mutex m_mutex; ///< guards what follows; never held while writing
    std::condition_variable m_came;
    std::condition_variable m_ended;
    Batch m_waiting;
    std::size_t m_expected = 1; ///< as many as were at work when the last transaction ended
    bool m_isLed = false;       ///< a thread is writing for the others
};

} // namespace video
