#include "CommonMethodLib/WorkerPool.h"

#include "Base/Singleton.h"

#include <algorithm>
#include <thread>

namespace comm_methodlib {

namespace {

/// More than processors: a write waits for the disk and for others that share its commit.
constexpr std::size_t kFewest = 8;
constexpr std::size_t kMost = 16;

} // namespace

CWorkerPool& CWorkerPool::Instance()
{
    return Base::CSingleton<CWorkerPool>::Instance();
}

CWorkerPool::CWorkerPool()
    : CThreadPool("worker", std::clamp<std::size_t>(std::thread::hardware_concurrency(), kFewest, kMost))
{}

} // namespace comm_methodlib
