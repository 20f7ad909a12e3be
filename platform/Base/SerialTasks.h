#pragma once

#include "Base/CancelableTask.h"
#include "Base/Noncopyable.h"

#include <deque>
#include <functional>
#include <memory>
#include <mutex>

namespace Base {

/// Runs tasks one after the other, in the order in which they were posted, on the threads of a pool that is
/// shared with others. Tasks that are queued when this object goes away still run.
class CSerialTasks : CNoncopyable
{
public:
    /// postToPool gives work to the pool; false when the pool was stopped.
    explicit CSerialTasks(std::function<bool(Task)> postToPool);

    /// False when the pool was stopped; the task is then dropped. Any thread.
    bool PostTask(Task task);

private:
    struct Queue;

    static void Drain(const std::shared_ptr<Queue>& queue);

    std::function<bool(Task)> m_postToPool;
    std::shared_ptr<Queue> m_queue;
};

} // namespace Base
