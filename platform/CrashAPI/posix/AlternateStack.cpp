#include "CrashAPI/CrashHandler.h"

#include <sys/mman.h>
#include <unistd.h>

#include <csignal>

namespace crash {

namespace {

/// Room for the largest signal frame (about 12 KiB with all vector registers), the unwinder and a report's
/// texts.
constexpr std::size_t kStackBytes = 128 * 1024;

/// The calling thread's stack for signal handlers. A large enough one that is already there is kept.
class AlternateStack
{
public:
    AlternateStack()
    {
        if (::sigaltstack(nullptr, &m_before) != 0)
            return;
        m_ready = IsLargeEnough(m_before) || (Map() && Install());
    }
    ~AlternateStack()
    {
        if (!m_memory)
            return;
        if (m_ready)
            ::sigaltstack(&m_before, nullptr);
        ::munmap(m_memory, m_bytes);
    }
    AlternateStack(const AlternateStack&) = delete;
    AlternateStack& operator=(const AlternateStack&) = delete;

    bool IsReady() const { return m_ready; }

private:
    static bool IsLargeEnough(const stack_t& stack)
    {
        return !(stack.ss_flags & SS_DISABLE) && stack.ss_size >= kStackBytes;
    }

    /// The lowest page stays closed, so that a handler that needs more fails instead of writing elsewhere.
    bool Map()
    {
        m_page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
        m_bytes = m_page + kStackBytes;
        void* memory =
            ::mmap(nullptr, m_bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_STACK, -1, 0);
        if (memory == MAP_FAILED)
            return false;
        m_memory = static_cast<char*>(memory);
        return ::mprotect(m_memory, m_page, PROT_NONE) == 0;
    }

    bool Install()
    {
        stack_t own{};
        own.ss_sp = m_memory + m_page;
        own.ss_size = kStackBytes;
        return ::sigaltstack(&own, nullptr) == 0;
    }

    stack_t m_before{};
    char* m_memory = nullptr;
    std::size_t m_page = 0;
    std::size_t m_bytes = 0;
    bool m_ready = false;
};

} // namespace

bool PrepareThread()
{
    thread_local const AlternateStack stack;
    return stack.IsReady();
}

} // namespace crash
