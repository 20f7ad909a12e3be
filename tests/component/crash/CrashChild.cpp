#include "Base/ProcessUtil.h"
#include "Base/ThreadPool.h"
#include "CrashAPI/CrashAPI.h"

#include <dlfcn.h>
#include <link.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <future>
#include <stdexcept>
#include <string>
#include <thread>

/// crash_child WAY FOLDER [OPTION...]: sets up as the component does and crashes. The functions that crash
/// are exported, so that reports name them.

#define CRASH_FUNCTION                                                                                       \
    extern "C" __attribute__((visibility("default"), noinline, no_sanitize("address", "undefined")))

namespace {

volatile int g_zero = 0;
volatile int g_sum = 0;

} // namespace

CRASH_FUNCTION void WriteToNull()
{
    *reinterpret_cast<volatile int*>(static_cast<std::uintptr_t>(g_zero)) = 1;
}

CRASH_FUNCTION void WriteToConstant()
{
    void* page = ::mmap(nullptr, 4096, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    *static_cast<volatile char*>(page) = 1;
}

CRASH_FUNCTION void CallAbort()
{
    std::abort();
}

CRASH_FUNCTION void ThrowUncaught()
{
    throw std::runtime_error("nobody catches this");
}

CRASH_FUNCTION void DivideByZero()
{
    g_sum = 42 / g_zero;
}

CRASH_FUNCTION void RunIllegalInstruction()
{
    __builtin_trap();
}

CRASH_FUNCTION int OverflowStack(int depth)
{
    volatile char frame[4096];
    if (g_zero != 0)
        return 0;
    frame[0] = static_cast<char>(depth);
    g_sum = g_sum + OverflowStack(depth + 1) + frame[0];
    return g_sum;
}

CRASH_FUNCTION void SendTrap()
{
    std::raise(SIGTRAP);
}

CRASH_FUNCTION void CallNull()
{
    void (*volatile wild)() = nullptr;
    wild();
    g_sum = g_sum + 1;
}

/// An illegal instruction while the stack pointer points nowhere, so that following the stack faults too. It
/// keeps a frame of its own, by which the caller can be found.
CRASH_FUNCTION void LoseStack()
{
#if defined(__x86_64__)
    asm volatile("mov $0x1000, %rsp; ud2");
#elif defined(__aarch64__)
    asm volatile("mov x9, #0x1000; mov sp, x9; udf #0");
#endif
}

CRASH_FUNCTION void CallLoseStack()
{
    LoseStack();
    g_sum = g_sum + 1;
}

CRASH_FUNCTION void WriteToNullBesideAMarker()
{
    volatile std::uint64_t marker = 0x5ca1ab1e0ddba110;
    WriteToNull();
    g_sum = static_cast<int>(marker);
}

/// On a thread whose stack has memory with markers directly behind it.
CRASH_FUNCTION void WriteToNullBelowMarkers()
{
    constexpr std::size_t kStack = 512 * 1024;
    constexpr std::size_t kMarkers = 8 * 1024;
    void* memory = ::mmap(nullptr, kStack + kMarkers * sizeof(std::uint64_t), PROT_READ | PROT_WRITE,
                          MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    auto* const markers = reinterpret_cast<std::uint64_t*>(static_cast<char*>(memory) + kStack);
    std::fill(markers, markers + kMarkers, 0x5ca1ab1e0ddba110);
    pthread_attr_t attributes;
    ::pthread_attr_init(&attributes);
    ::pthread_attr_setstack(&attributes, memory, kStack);
    pthread_t thread;
    const auto crash = [](void*) -> void* {
        WriteToNull();
        return nullptr;
    };
    ::pthread_create(&thread, &attributes, crash, nullptr);
    ::pthread_join(thread, nullptr);
}

CRASH_FUNCTION void WriteToNullWithTheLoaderLocked()
{
    std::atomic<bool> locked{false};
    const auto holdForEver = [](dl_phdr_info*, std::size_t, void* flag) {
        *static_cast<std::atomic<bool>*>(flag) = true;
        return ::pause();
    };
    std::thread holder([&] { ::dl_iterate_phdr(holdForEver, &locked); });
    while (!locked)
        std::this_thread::yield();
    WriteToNull();
    holder.join();
}

CRASH_FUNCTION void WriteToNullInALateLibrarysProcess()
{
    if (::dlopen("libresolv.so.2", RTLD_NOW))
        WriteToNull();
}

namespace {

void OverflowStackHere()
{
    OverflowStack(0);
}

struct Way
{
    const char* name;
    void (*crash)();
};
constexpr Way kWays[] = {
    {"null-write", WriteToNull},
    {"constant-write", WriteToConstant},
    {"abort", CallAbort},
    {"throw", ThrowUncaught},
    {"divide", DivideByZero},
    {"illegal", RunIllegalInstruction},
    {"overflow", OverflowStackHere},
    {"trap", SendTrap},
    {"null-call", CallNull},
    {"lost-stack", CallLoseStack},
    {"marker", WriteToNullBesideAMarker},
    {"markers-behind", WriteToNullBelowMarkers},
    {"loader-locked", WriteToNullWithTheLoaderLocked},
    {"late-library", WriteToNullInALateLibrarysProcess},
};

void RunOn(const char* name, bool prepared, void (*crash)())
{
    std::thread([&] {
        ::pthread_setname_np(::pthread_self(), name);
        if (prepared && !CrashAPI_PrepareThread())
            std::_Exit(2);
        crash();
    }).join();
}

/// The pool's own thread, which nothing but its name prepares.
void RunInPool(void (*crash)())
{
    Base::CThreadPool pool("pool-thread", 1);
    pool.PostTask(crash);
    for (;;)
        ::pause();
}

/// Files of this process stay as small as on a full disk.
void FillDisk()
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{300, 300};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

/// Both threads crash as nearly at once as can be.
void CrashTwice(void (*crash)())
{
    std::atomic<int> ready{0};
    const auto together = [&] {
        ++ready;
        while (ready < 2)
            ;
        crash();
    };
    std::thread first(together), second(together);
    first.join();
    second.join();
}

bool Has(int argc, char** argv, const char* option)
{
    for (int i = 3; i < argc; ++i)
        if (std::strcmp(argv[i], option) == 0)
            return true;
    return false;
}

/// As the component does it: on a thread that ends soon.
bool SetUp(const std::string& folder, bool full)
{
    return std::async(std::launch::async,
                      [&] {
                          const bool pathTaken = folder.empty() || CrashAPI_SetDumpPath(folder.c_str());
                          return CrashAPI_Init() && pathTaken && CrashAPI_SetDumpType(full ? 0x9B67 : 0) &&
                                 CrashAPI_SetDumpMaxCount(1);
                      })
        .get();
}

extern "C" void SayGoodbye(int)
{
    (void)!::write(STDOUT_FILENO, "goodbye\n", 8);
    std::_Exit(7);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return 2;
    void (*crash)() = nullptr;
    for (const Way& way : kWays)
        if (std::strcmp(way.name, argv[1]) == 0)
            crash = way.crash;
    if (Has(argc, argv, "own-handler"))
        std::signal(SIGSEGV, SayGoodbye);
    if (!crash || !SetUp(argv[2], Has(argc, argv, "full")) || !CrashAPI_PrepareThread())
        return 2;
    Base::ProcessUtil::OnThreadStart([] { CrashAPI_PrepareThread(); });
    if (Has(argc, argv, "disk-full"))
        FillDisk();
    if (Has(argc, argv, "twice-on"))
        CrashAPI_Init();
    if (Has(argc, argv, "uninit") && !(CrashAPI_Uninit() && CrashAPI_Uninit()))
        return 2;
    if (Has(argc, argv, "again") && !CrashAPI_Init())
        return 2;

    if (Has(argc, argv, "in-worker"))
        RunOn("worker-7", true, crash);
    else if (Has(argc, argv, "in-plain-thread"))
        RunOn("plain", false, crash);
    else if (Has(argc, argv, "in-pool"))
        RunInPool(crash);
    else if (Has(argc, argv, "in-two-threads"))
        CrashTwice(crash);
    else
        crash();
    return 0;
}
