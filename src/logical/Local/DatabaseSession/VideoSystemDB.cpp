#include "logical/Local/DatabaseSession/VideoSystemDB.h"

#include <atomic>
#include <cstdlib>
#include <mutex>

namespace video {
namespace {

std::atomic<CBaseDBConn*> g_instance{nullptr};

} // namespace

CBaseDBConn& VideoSystemDB::Instance()
{
    static std::mutex* const creation = new std::mutex();
    CBaseDBConn* instance = g_instance.load(std::memory_order_acquire);
    if (instance)
        return *instance;
    std::lock_guard<std::mutex> lock(*creation);
    instance = g_instance.load(std::memory_order_relaxed);
    if (!instance) {
        instance = new CBaseDBConn("VideoSystem");
        g_instance.store(instance, std::memory_order_release);
        std::atexit([] { g_instance.load()->Close(); });
    }
    return *instance;
}

} // namespace video
