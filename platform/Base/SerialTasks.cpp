#include "Base/SerialTasks.h"

namespace Base {

struct CSerialTasks::Queue
{
    std::mutex mutex;
    std::deque<Task> tasks;
    bool running = false; ///< a thread of the pool has taken on what is queued
};

CSerialTasks::CSerialTasks(std::function<bool(Task)> postToPool)
    : m_postToPool(std::move(postToPool)), m_queue(std::make_shared<Queue>())
{}

bool CSerialTasks::PostTask(Task task)
{
    std::lock_guard<std::mutex> lock(m_queue->mutex);
    if (!m_queue->running && !m_postToPool([queue = m_queue] { Drain(queue); }))
        return false;
    m_queue->running = true;
    m_queue->tasks.push_back(std::move(task));
    return true;
}

void CSerialTasks::Drain(const std::shared_ptr<Queue>& queue)
{
    std::unique_lock<std::mutex> lock(queue->mutex);
    while (!queue->tasks.empty()) {
        const Task task = std::move(queue->tasks.front());
        queue->tasks.pop_front();
        lock.unlock();
        RunGuarded(task);
        lock.lock();
    }
    queue->running = false;
}

} // namespace Base
