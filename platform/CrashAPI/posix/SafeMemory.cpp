#include "CrashAPI/posix/SafeMemory.h"

#include <fcntl.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>

namespace crash {

namespace {

/// Where a container forbids the call below.
ssize_t ReadByFile(std::uint64_t address, void* to, std::size_t size)
{
    const int memory = ::open("/proc/self/mem", O_RDONLY | O_CLOEXEC);
    if (memory < 0)
        return -1;
    const ssize_t got = ::pread(memory, to, size, static_cast<off_t>(address));
    ::close(memory);
    return got;
}

} // namespace

bool ReadMemory(std::uint64_t address, void* to, std::size_t size)
{
    iovec own{to, size};
    iovec source{reinterpret_cast<void*>(static_cast<std::uintptr_t>(address)), size};
    ssize_t got = ::process_vm_readv(::getpid(), &own, 1, &source, 1, 0);
    if (got < 0 && (errno == EPERM || errno == ENOSYS))
        got = ReadByFile(address, to, size);
    return got == static_cast<ssize_t>(size);
}

} // namespace crash
