#pragma once

namespace crash {

/// Runs work(argument), which a fault of this thread ends early instead of ending the process. False then.
/// What work holds at that moment, locks included, is held for ever, so that this serves a process that is
/// about to end. One thread at a time, and not within itself.
bool RunGuarded(void (*work)(void*), void* argument);

/// For the signal handler, on the thread that runs guarded work: ends that work and does not return. Returns
/// when none is under way.
void LeaveGuarded();

} // namespace crash
