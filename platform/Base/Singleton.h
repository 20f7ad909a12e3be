#pragma once

namespace Base {

/// The one process-wide object of a class, created on first use from any thread.
///
/// It is never destroyed: a worker that still runs while the process exits may go on using it.
template<typename T>
class CSingleton
{
public:
    static T& Instance()
    {
        static T* const instance = new T();
        return *instance;
    }
};

} // namespace Base
