#pragma once

#include "QxNetSDK/library/Failure.h"

#include <new>

namespace sdk {

/// The calling thread's last failure, as NET_DVR_GetLastError gives it.
const Failure& LastFailure();
void KeepFailure(const Failure& failure);

/// The body of a function of the C interface: 1 when the work succeeds; otherwise 0, and the thread's error
/// pair is its failure. Nothing is thrown.
template<typename Work>
int Outcome(Work&& work) noexcept
{
    Failure failure;
    try {
        failure = work();
    } catch (const std::exception&) {
        // Nothing that is called throws but for want of memory, or of threads.
        failure = {QXNET_ERROR_MEMORY};
    }
    if (!failure)
        return 1;
    KeepFailure(failure);
    return 0;
}

} // namespace sdk
