#pragma once

#include "CrashAPI/posix/Modules.h"
#include "CrashAPI/posix/Registers.h"

namespace crash {

/// The place of the crash and of the calls that led there: number, address, module and offset in its file,
/// and the exported function if it is one. A caller's address is that of the last byte of its call, since the
/// return address may belong to the next function already. A stack that cannot be followed gives what could
/// be. Safe in a signal handler. False when the file takes no more.
bool WriteStack(int fd, const ProgramPlace& place, const ModuleTable& modules);

/// The calling thread's stack from the stack pointer upward, as words of the processor; nothing when the
/// pointer points elsewhere.
void WriteStackContents(int fd, std::uint64_t stackPointer);

} // namespace crash
