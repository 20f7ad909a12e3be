#pragma once

#include "Base/Noncopyable.h"

#include <mutex>

/// A recursive lock. It can be a member, or be made and given back with XPR_CreateMutex and XPR_DestroyMutex.
struct XPR_Mutex : Base::CNoncopyable
{
    std::recursive_mutex native;
};

/// A new, open lock, owned by the caller; never null.
[[nodiscard]] XPR_Mutex* XPR_CreateMutex();

/// Waits until no other thread holds it. The holder may lock again and must unlock as often.
void XPR_LockMutex(XPR_Mutex* mutex);

/// Only by the thread that holds it.
void XPR_UnlockMutex(XPR_Mutex* mutex);

/// Gives a lock of XPR_CreateMutex back; nobody may hold it. Null does nothing.
void XPR_DestroyMutex(XPR_Mutex* mutex);

/// Holds a lock for as long as the object lives.
class XPR_MutexGuard : Base::CNoncopyable
{
public:
    explicit XPR_MutexGuard(XPR_Mutex& mutex) : m_mutex(mutex) { XPR_LockMutex(&m_mutex); }
    ~XPR_MutexGuard() { XPR_UnlockMutex(&m_mutex); }

private:
    XPR_Mutex& m_mutex;
};
