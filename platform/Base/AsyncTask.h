#pragma once

#include "Base/ProcessUtil.h"

#include <future>
#include <string>
#include <utility>

namespace Base {

/// Runs work on a thread of its own that carries the name (at most 15 bytes are kept). Waiting for the
/// future, or destroying it, waits for the thread.
template<typename Work>
auto RunAsync(std::string name, Work work)
{
    return std::async(std::launch::async, [name = std::move(name), work = std::move(work)]() mutable {
        ProcessUtil::NameThisThread(name);
        return work();
    });
}

} // namespace Base
