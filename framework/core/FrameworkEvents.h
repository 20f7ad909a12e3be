#pragma once

#include "framework/core/Journal.h"

#include <string>

namespace framework {

/// How the component's process stands.
enum class ComponentState {
    Stopped,  ///< not started yet, or ended on purpose
    Starting, ///< runs, but has not announced "initFinish"
    Ready,    ///< its windows can be asked for
    Waiting,  ///< ended by itself; will be started again after a pause
    GivenUp,  ///< ended too often; started again only when asked to
};

/// "stopped", "starting", "ready", "waiting", "given up".
const char* NameOf(ComponentState state);

/// What happens in the framework's core, for its window. Called on threads of the core, one call at a time;
/// must not wait for anything.
class IFrameworkEvents
{
public:
    virtual ~IFrameworkEvents() = default;

    /// detail says why in one English sentence, for example "The component ended with exit code 134.".
    virtual void OnComponentState(ComponentState state, const std::string& detail) = 0;

    /// Devices, channels, groups, alarm inputs or outputs changed.
    virtual void OnResourcesChanged() = 0;

    /// The current user, or the list of users, changed.
    virtual void OnUsersChanged() = 0;

    virtual void OnNotice(const JournalEntry& entry) = 0;
    virtual void OnOperation(const JournalEntry& entry) = 0;

    /// The component wishes another size for an embedded window (pixels).
    virtual void OnFrameResize(const std::string& window, int width, int height) = 0;
};

} // namespace framework
