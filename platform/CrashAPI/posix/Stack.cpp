#include "CrashAPI/posix/Stack.h"

#include "CrashAPI/posix/Guard.h"
#include "CrashAPI/posix/MemoryMap.h"
#include "CrashAPI/posix/SafeMemory.h"
#include "CrashAPI/posix/SafeText.h"

#include <execinfo.h>
#include <pthread.h>

#include <algorithm>
#include <cstring>

namespace crash {

namespace {

constexpr std::size_t kMostFrames = 128;
constexpr std::uint64_t kContentBytes = 64 * 1024;
constexpr std::uint64_t kPage = 4096;

/// Filled one by one, so that what was found before a fault is there. Not on the handler's small stack.
void* g_frames[kMostFrames];

void Collect(void*)
{
    ::backtrace(g_frames, kMostFrames);
}

/// The frames of the program, without those of the handler: the first one is where it crashed.
struct Frames
{
    std::size_t first = 0;
    std::size_t end = 0;
};

Frames FindFrames(std::uint64_t programCounter)
{
    Frames found;
    while (found.end < kMostFrames && g_frames[found.end])
        ++found.end;
    const auto crashed = std::find(g_frames, g_frames + found.end, reinterpret_cast<void*>(programCounter));
    found.first = static_cast<std::size_t>(crashed - g_frames);
    return found;
}

class FrameWriter
{
public:
    FrameWriter(int fd, const ModuleTable& modules) : m_fd(fd), m_modules(modules) {}

    void Write(std::uint64_t address)
    {
        m_line.Add("  #").AddDecimal(m_count++).Add(" ").AddHex(address, 16);
        if (const Module* module = m_modules.Find(address))
            AddPlace(*module, address);
        m_written = m_line.Add("\n").WriteTo(m_fd) && m_written;
    }
    void WriteCall(std::uint64_t returnAddress) { Write(returnAddress - 1); }

    void Say(const char* text) { m_written = m_line.Add(text).WriteTo(m_fd) && m_written; }

    bool Written() const { return m_written; }

private:
    void AddPlace(const Module& module, std::uint64_t address)
    {
        m_line.Add(" ").Add(FileName(module.path)).Add("+").AddHex(address - module.image.bias);
        FunctionName function;
        if (FindFunction(module.image, address, function))
            m_line.Add(" (").Add(function.text.data()).Add("+").AddHex(function.offset).Add(")");
    }

    int m_fd;
    const ModuleTable& m_modules;
    SafeText m_line;
    int m_count = 0;
    bool m_written = true;
};

/// For a stack that the unwinder cannot follow, such as after a call of a wild function pointer: that call's
/// return address, and the chain of frame pointers, which this system's own code keeps.
void WriteChain(FrameWriter& writer, const ProgramPlace& place, const ModuleTable& modules)
{
    std::uint64_t caller = 0;
    if (!modules.Find(place.programCounter) && ReadReturnAddress(place, caller) && modules.Find(caller - 1))
        writer.WriteCall(caller);
    std::uint64_t frame = place.framePointer;
    for (std::size_t i = 0; i < kMostFrames; ++i) {
        std::uint64_t link[2];
        if (frame % sizeof frame != 0 || !ReadMemory(frame, link) || !modules.Find(link[1] - 1))
            return;
        writer.WriteCall(link[1]);
        if (link[0] <= frame)
            return;
        frame = link[0];
    }
}

/// Where the calling thread's stack ends when the address lies in it; else 0. What comes behind it is often
/// the heap of another thread. The C library keeps its own record of a thread at the end of its stack, and of
/// the first thread elsewhere.
std::uint64_t EndOfStack(std::uint64_t address)
{
    const auto record = static_cast<std::uint64_t>(::pthread_self());
    MemoryMap map;
    Mapping mapping;
    while (map.Next(mapping)) {
        if (address < mapping.start || address >= mapping.end)
            continue;
        if (record >= address && record < mapping.end)
            return record;
        return std::strcmp(mapping.path, "[stack]") == 0 ? mapping.end : 0;
    }
    return 0;
}

} // namespace

bool WriteStack(int fd, const ProgramPlace& place, const ModuleTable& modules)
{
    FrameWriter writer(fd, modules);
    writer.Say("\nstack:\n");
    writer.Write(place.programCounter);
    std::fill(std::begin(g_frames), std::end(g_frames), nullptr);
    const bool followed = RunGuarded(Collect, nullptr);
    const Frames frames = FindFrames(place.programCounter);
    for (std::size_t i = frames.first + 1; i < frames.end; ++i)
        writer.WriteCall(reinterpret_cast<std::uint64_t>(g_frames[i]));
    if (frames.end == kMostFrames)
        writer.Say("(more frames are not shown)\n");
    if (!followed)
        writer.Say("(the stack is damaged and could not be followed further)\n");
    if (frames.first + 1 >= frames.end) {
        writer.Say("(by the chain of frame pointers)\n");
        WriteChain(writer, place, modules);
    }
    return writer.Written();
}

void WriteStackContents(int fd, std::uint64_t stackPointer)
{
    constexpr std::size_t kWords = 4;
    SafeText line;
    line.Add("\nstack contents:\n").WriteTo(fd);
    std::uint64_t words[kWords];
    std::uint64_t at = stackPointer / sizeof words * sizeof words;
    // After an overflow the pointer is in the closed page below the stack.
    for (int i = 0; i < 4 && !ReadMemory(at, words); ++i)
        at = (at / kPage + 1) * kPage;
    const std::uint64_t stackEnd = EndOfStack(at);
    const std::uint64_t end = std::min(at + kContentBytes, stackEnd);
    for (; at < end && ReadMemory(at, words); at += sizeof words) {
        line.Add("  ").AddHex(at, 16).Add(":");
        for (const std::uint64_t word : words)
            line.Add(" ").AddHex(word, 16);
        if (!line.Add("\n").WriteTo(fd))
            return;
    }
    line.Add(at < stackEnd ? "(the rest is not shown)\n" : "(there is no more of the stack)\n").WriteTo(fd);
}

} // namespace crash
