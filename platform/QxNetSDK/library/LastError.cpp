#include "QxNetSDK/library/LastError.h"

namespace sdk {

namespace {

thread_local Failure t_failure;

} // namespace

const Failure& LastFailure()
{
    return t_failure;
}

void KeepFailure(const Failure& failure)
{
    t_failure = failure;
}

} // namespace sdk
