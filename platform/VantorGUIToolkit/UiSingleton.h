#pragma once

#include <QCoreApplication>
#include <QMutex>
#include <QMutexLocker>
#include <QObject>
#include <QThread>

#include <atomic>
#include <mutex>
#include <type_traits>
#include <utility>

namespace VantorGUIToolkit {

/// The one process-wide object of a class, created on first use from any thread and never destroyed. T
/// befriends CUiSingleton<T> when its constructor is private.
template<typename T>
class CUiSingleton
{
public:
    static T& Instance()
    {
        static std::atomic<T*> instance{nullptr};
        T* object = instance.load(std::memory_order_acquire);
        if (object)
            return *object;
        static QMutex mutex;
        QMutexLocker lock(&mutex);
        object = instance.load(std::memory_order_acquire);
        if (!object) {
            object = new T();
            instance.store(object, std::memory_order_release);
        }
        return *object;
    }
};

/// The same for a QObject that lives on the GUI thread, whichever thread asks first, and that ends before the
/// application does. After DeleteInstance the next use creates a new object.
template<typename T>
class CObjectSingleton
{
    static_assert(std::is_base_of_v<QObject, T>,
                  "CObjectSingleton holds QObjects; use CUiSingleton for others");

public:
    /// The reference holds until DeleteInstance.
    static T& Instance()
    {
        std::lock_guard<std::mutex> lock(Mutex());
        if (!Object()) {
            Object() = new T();
            if (const QCoreApplication* application = QCoreApplication::instance())
                Object()->moveToThread(application->thread());
        }
        return *Object();
    }

    /// Destroys the object, when there is one. GUI thread.
    static void DeleteInstance()
    {
        T* object = nullptr;
        {
            std::lock_guard<std::mutex> lock(Mutex());
            std::swap(object, Object());
        }
        delete object;
    }

private:
    static std::mutex& Mutex()
    {
        static std::mutex mutex;
        return mutex;
    }
    static T*& Object()
    {
        static T* object = nullptr;
        return object;
    }
};

} // namespace VantorGUIToolkit
