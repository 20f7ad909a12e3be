#include "framework/ui/parts/DiskLook.h"

namespace framework {

QThreadPool& DiskThreads()
{
    constexpr int kMost = 8; ///< some may be stuck
    static QThreadPool* const threads = [] {
        auto* made = new QThreadPool; // with an owner it would wait for its threads
        made->setMaxThreadCount(kMost);
        return made;
    }();
    return *threads;
}

void EndDiskLooks()
{
    constexpr int kLongestWaitMs = 1000;
    DiskThreads().clear();
    DiskThreads().waitForDone(kLongestWaitMs);
}

} // namespace framework
