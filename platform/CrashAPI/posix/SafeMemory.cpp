#include "CrashAPI/posix/SafeMemory.h"

#include <sys/uio.h>
#include <unistd.h>

namespace crash {

bool ReadMemory(std::uint64_t address, void* to, std::size_t size)
{
    iovec own{to, size};
    iovec source{reinterpret_cast<void*>(static_cast<std::uintptr_t>(address)), size};
    return ::process_vm_readv(::getpid(), &own, 1, &source, 1, 0) == static_cast<ssize_t>(size);
}

} // namespace crash
