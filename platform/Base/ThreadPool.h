#pragma once

#include "Base/CancelableTask.h"
#include "Base/Noncopyable.h"

#include <cstddef>
#include <memory>
#include <string>

namespace Base {

/// Threads that run posted tasks. They start with the first task and carry the pool's name.
class CThreadPool : CNoncopyable
{
public:
    /// threads: 1 to 64.
    CThreadPool(const std::string& name, std::size_t threads);
    ~CThreadPool();

    /// False when the pool was stopped; the task is then dropped. An exception that leaves a task is logged
    /// and goes no further. Any thread.
    bool PostTask(Task task);

    /// Takes no more tasks, runs what is queued and waits for it. Calls after the first do nothing but wait.
    /// Called from within a task it waits for nothing; the threads then end by themselves.
    void Stop();

private:
    struct State;
    std::shared_ptr<State> m_state;
};

/// Stops streams of the play windows, which may take seconds for an unreachable device.
class CStopStreamThreadPool : public CThreadPool
{
public:
    CStopStreamThreadPool() : CThreadPool("stop-stream", 4) {}
};

/// Reads and writes device configuration.
class CDeviceConfigThreadPool : public CThreadPool
{
public:
    CDeviceConfigThreadPool() : CThreadPool("device-config", 4) {}
};

} // namespace Base
