#pragma once

/// What the system offers to catch a crash; one file for each system.
namespace crash {

/// From here on a crash writes a report as CrashSettings says. Not twice without RemoveHandlers between.
bool InstallHandlers();

/// Puts back what was there before, unless somebody else has taken its place since.
void RemoveHandlers();

/// A stack for the handlers on the calling thread, until it ends. May be called again.
bool PrepareThread();

} // namespace crash
