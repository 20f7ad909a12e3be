#pragma once

#include "framework/core/FrameworkCore.h"

#include <functional>
#include <future>
#include <string>

namespace framework {

/// Fills a fresh data root, once: devices, pictures and clips in the default folders, and their records,
/// which are reported to the component one after the other. A root that has devices of its own is left alone.
/// What was interrupted is taken up where it ended. GUI thread, but for the callback.
class CDemonstration
{
public:
    /// folder: where the state is kept, ends in "/". onReported is called on a thread of its own after a run
    /// that reported something.
    CDemonstration(CFrameworkCore& core, const std::string& folder, std::function<void()> onReported);
    /// Waits for the run, which ends soon after the core is stopped.
    ~CDemonstration();

    /// To be called whenever the component is ready. Returns at once.
    void Run();

private:
    struct State;
    std::shared_ptr<State> m_state;
    std::future<void> m_run;
};

} // namespace framework
