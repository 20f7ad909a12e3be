#include "Base/ThreadPool.h"

#include "Base/Log.h"
#include "Base/ProcessUtil.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>

#include <algorithm>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace Base {

/// Shared by the pool and its threads, so that a pool stopped from within a task can be destroyed before its
/// threads end.
struct CThreadPool::State
{
    using WorkGuard = boost::asio::executor_work_guard<boost::asio::io_context::executor_type>;

    State(std::string poolName, std::size_t threadCount)
        : name(std::move(poolName)), count(std::clamp<std::size_t>(threadCount, 1, 64)),
          context(static_cast<int>(count)), work(boost::asio::make_work_guard(context))
    {}

    const std::string name;
    const std::size_t count;
    boost::asio::io_context context;

    std::mutex mutex; ///< guards what follows
    std::optional<WorkGuard> work;
    std::vector<std::thread> threads;
    bool stopped = false;
};

namespace {

/// The state of the pool that the current thread belongs to.
thread_local const void* t_ownPool = nullptr;

} // namespace

void RunGuarded(const Task& task)
{
    try {
        task();
    } catch (const std::exception& error) {
        BASE_ERROR("A task failed: %s.", error.what());
    }
}

CThreadPool::CThreadPool(const std::string& name, std::size_t threads)
    : m_state(std::make_shared<State>(name, threads))
{}

CThreadPool::~CThreadPool()
{
    Stop();
}

bool CThreadPool::PostTask(Task task)
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    if (m_state->stopped)
        return false;
    while (m_state->threads.size() < m_state->count) {
        m_state->threads.emplace_back([state = m_state] {
            t_ownPool = state.get();
            ProcessUtil::NameThisThread(state->name);
            state->context.run();
        });
    }
    boost::asio::post(m_state->context, [work = std::move(task)] { RunGuarded(work); });
    return true;
}

void CThreadPool::Stop()
{
    const bool fromWithin = t_ownPool == m_state.get();
    std::vector<std::thread> threads;
    {
        std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->stopped = true;
        m_state->work.reset();
        threads.swap(m_state->threads);
    }
    for (std::thread& thread : threads) {
        if (fromWithin)
            thread.detach();
        else
            thread.join();
    }
}

} // namespace Base
