#include "Base/Error.h"

namespace Base::Error {

namespace {
thread_local int t_lastError = 0;
}

int GetLastError()
{
    return t_lastError;
}

void SetLastError(int error)
{
    t_lastError = error;
}

} // namespace Base::Error
