#include "CrashAPI/posix/Registers.h"

#include "CrashAPI/posix/SafeMemory.h"

#include <ucontext.h>

namespace crash {

#if defined(__x86_64__)

std::size_t ReadRegisters(const void* context, Register (&registers)[kMostRegisters])
{
    struct Place
    {
        const char* name;
        int index;
    };
    constexpr Place kPlaces[] = {
        {"rip", REG_RIP}, {"rsp", REG_RSP}, {"rbp", REG_RBP},    {"rax", REG_RAX}, {"rbx", REG_RBX},
        {"rcx", REG_RCX}, {"rdx", REG_RDX}, {"rsi", REG_RSI},    {"rdi", REG_RDI}, {"r8", REG_R8},
        {"r9", REG_R9},   {"r10", REG_R10}, {"r11", REG_R11},    {"r12", REG_R12}, {"r13", REG_R13},
        {"r14", REG_R14}, {"r15", REG_R15}, {"eflags", REG_EFL}, {"err", REG_ERR}, {"trapno", REG_TRAPNO},
    };
    const mcontext_t& machine = static_cast<const ucontext_t*>(context)->uc_mcontext;
    std::size_t count = 0;
    for (const Place& place : kPlaces)
        registers[count++] = {place.name, static_cast<std::uint64_t>(machine.gregs[place.index])};
    return count;
}

ProgramPlace ReadPlace(const void* context)
{
    const auto& registers = static_cast<const ucontext_t*>(context)->uc_mcontext.gregs;
    const auto value = [&](int index) { return static_cast<std::uint64_t>(registers[index]); };
    return {value(REG_RIP), value(REG_RSP), value(REG_RBP), 0};
}

#elif defined(__aarch64__)

std::size_t ReadRegisters(const void* context, Register (&registers)[kMostRegisters])
{
    constexpr const char* kNames[] = {"x0",  "x1",  "x2",  "x3",  "x4",  "x5",  "x6",  "x7",
                                      "x8",  "x9",  "x10", "x11", "x12", "x13", "x14", "x15",
                                      "x16", "x17", "x18", "x19", "x20", "x21", "x22", "x23",
                                      "x24", "x25", "x26", "x27", "x28", "fp",  "lr"};
    const mcontext_t& machine = static_cast<const ucontext_t*>(context)->uc_mcontext;
    std::size_t count = 0;
    registers[count++] = {"pc", machine.pc};
    registers[count++] = {"sp", machine.sp};
    for (std::size_t i = 0; i < sizeof(kNames) / sizeof(kNames[0]); ++i)
        registers[count++] = {kNames[i], machine.regs[i]};
    registers[count++] = {"pstate", machine.pstate};
    return count;
}

ProgramPlace ReadPlace(const void* context)
{
    const mcontext_t& machine = static_cast<const ucontext_t*>(context)->uc_mcontext;
    return {machine.pc, machine.sp, machine.regs[29], machine.regs[30]};
}

#else

std::size_t ReadRegisters(const void*, Register (&)[kMostRegisters])
{
    return 0;
}

ProgramPlace ReadPlace(const void*)
{
    return {};
}

#endif

bool ReadReturnAddress(const ProgramPlace& place, std::uint64_t& address)
{
    address = place.linkRegister;
    return address != 0 || ReadMemory(place.stackPointer, address);
}

} // namespace crash
