#include "XPR/XPR_Mutex.h"

#include <memory>

XPR_Mutex* XPR_CreateMutex()
{
    return std::make_unique<XPR_Mutex>().release();
}

void XPR_LockMutex(XPR_Mutex* mutex)
{
    mutex->native.lock();
}

void XPR_UnlockMutex(XPR_Mutex* mutex)
{
    mutex->native.unlock();
}

void XPR_DestroyMutex(XPR_Mutex* mutex)
{
    const std::unique_ptr<XPR_Mutex> owned(mutex);
}
