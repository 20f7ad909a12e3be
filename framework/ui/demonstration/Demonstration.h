#pragma once

#include "framework/core/FrameworkCore.h"
#include "framework/ui/demonstration/SimulatedDevices.h"

#include <functional>
#include <future>
#include <string>
#include <vector>

namespace framework {

/// Fills a fresh data root, once: simulated devices, pictures and clips of their cameras in the default
/// folders, and the records of these, which are reported to the component one after the other. A root that
/// has devices of its own is left alone. What was interrupted is taken up where it ended. GUI thread, but for
/// the callback.
class CDemonstration
{
public:
    /// folder: where the state is kept, ends in "/". onReported is called on a thread of its own after a run
    /// that reported something. files: how many pictures and clips there are in the end.
    CDemonstration(CFrameworkCore& core, const std::string& folder, std::function<void()> onReported,
                   int files = 60);
    /// Waits for the run, which ends soon after the core is stopped.
    ~CDemonstration();

    /// Whether simulated devices are to be played: the root is fresh, or has them from an earlier time.
    bool WantsDevices() const;
    /// The ports that they had; empty at first.
    std::vector<std::int32_t> Ports() const;
    /// The devices play: adds them to a fresh root; tells the others of their new ports.
    void TakeDevices(const SimulatorReady& ready);

    /// To be called whenever the component is ready, or devices were taken. Returns at once; does nothing
    /// before both are so.
    void Run();

private:
    struct State;
    std::shared_ptr<State> m_state;
    std::future<void> m_run;
};

} // namespace framework
