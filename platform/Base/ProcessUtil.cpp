#include "Base/ProcessUtil.h"

#include "Base/ThreadName.h"

#include <atomic>

namespace Base::ProcessUtil {

namespace {

std::atomic<void (*)()> g_prepare{nullptr};

} // namespace

void NameThisThread(const std::string& name)
{
    ShowThreadName(name);
    if (const auto prepare = g_prepare.load())
        prepare();
}

void OnThreadStart(void (*prepare)())
{
    g_prepare = prepare;
}

} // namespace Base::ProcessUtil
