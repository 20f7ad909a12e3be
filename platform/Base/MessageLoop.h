#pragma once

#include "Base/CancelableTask.h"
#include "Base/ThreadPool.h"

#include <string>

namespace Base {

/// One thread that runs posted tasks one after the other, in the order in which they were posted.
///
/// The thread starts with the first task. Stop runs what is queued and ends the thread; see
/// CThreadPool::Stop.
class CMessageLoop : CNoncopyable
{
public:
    explicit CMessageLoop(const std::string& name) : m_thread(name, 1) {}

    /// False when the loop was stopped; the task is then dropped. Any thread.
    bool PostTask(Task task) { return m_thread.PostTask(std::move(task)); }

    void Stop() { m_thread.Stop(); }

private:
    CThreadPool m_thread;
};

/// Calls the observers of configurations, broadcast and notifications.
class CMessageLoopForNotify : public CMessageLoop
{
public:
    CMessageLoopForNotify() : CMessageLoop("notify") {}
};

/// Releases what must not be released where it was used.
class CMessageLoopForCleanUp : public CMessageLoop
{
public:
    CMessageLoopForCleanUp() : CMessageLoop("clean-up") {}
};

/// Runs what the device SDK's callbacks ask for.
class CMessageLoopForDeviceSDK : public CMessageLoop
{
public:
    CMessageLoopForDeviceSDK() : CMessageLoop("device-sdk") {}
};

} // namespace Base
