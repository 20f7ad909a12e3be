#pragma once

#include "Base/Noncopyable.h"

#include <atomic>

namespace video {

/// The component's stores as a whole: opened at start-up, ready until shut-down. Any thread.
class CVideoSystemManager : Base::CNoncopyable
{
public:
    static CVideoSystemManager& Instance();

    /// Start-up on a worker thread, after the databases were checked: opens the component database, so that
    /// the first request does not wait for it.
    void Init();

    /// May be called again.
    void UnInit() { m_ready = false; }

    bool IsReady() const { return m_ready; }

private:
    std::atomic<bool> m_ready{false};
};

} // namespace video
