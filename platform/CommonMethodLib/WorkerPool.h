#pragma once

#include "Base/ThreadPool.h"

namespace comm_methodlib {

/// The component's threads for short work that must not hold up the thread it comes from: dispatch of
/// requests above all. One thread for each processor, at least 8 and at most 16, so that requests that wait
/// for the disk do not block the others.
///
/// PostTask and Stop are the pool's: tasks run in no particular order; Stop drains, may be called twice and
/// from within a task. Stop it before the logger, since tasks log.
class CWorkerPool : public Base::CThreadPool
{
public:
    static CWorkerPool& Instance();
    CWorkerPool();
};

} // namespace comm_methodlib
