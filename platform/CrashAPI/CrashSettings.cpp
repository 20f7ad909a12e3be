#include "CrashAPI/CrashSettings.h"

#include "CrashAPI/Retention.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <list>
#include <mutex>

namespace crash {

namespace {

namespace fs = std::filesystem;

constexpr int kDefaultMaxCount = 10;
/// With data segments, full memory, indirectly referenced memory, private read-write memory.
constexpr unsigned kMemoryFlags = 0x0001 | 0x0002 | 0x0040 | 0x0200;

std::atomic<const char*> g_dumpPath{nullptr};
std::atomic<unsigned> g_type{0};
std::atomic<int> g_maxCount{kDefaultMaxCount};

/// Texts that are never freed, as a crash may come late.
struct Texts
{
    std::mutex mutex;
    std::list<std::string> all;
};

/// The text in a place where a handler may read it for ever.
const char* Keep(const std::string& text)
{
    static Texts* const texts = new Texts();
    std::lock_guard<std::mutex> lock(texts->mutex);
    const auto known = std::find(texts->all.begin(), texts->all.end(), text);
    return known != texts->all.end() ? known->c_str() : texts->all.emplace_back(text).c_str();
}

void RemoveSurplus()
{
    if (const char* folder = g_dumpPath)
        KeepNewestReports(folder, g_maxCount);
}

bool CanWriteIn(const std::string& folder)
{
    const std::string probe = folder + ".probe";
    const bool written = static_cast<bool>(std::ofstream(probe) << "");
    std::error_code ignored;
    fs::remove(probe, ignored);
    return written;
}

} // namespace

const char* DumpPath()
{
    return g_dumpPath;
}

bool WantsMemory()
{
    return (g_type & kMemoryFlags) != 0;
}

unsigned DumpType()
{
    return g_type;
}

int MaxCount()
{
    return g_maxCount;
}

bool SetDumpPath(const std::string& path)
{
    std::error_code error;
    std::string folder = path.empty() ? path : fs::absolute(path, error).generic_string();
    if (folder.empty() || folder.size() >= kPathLimit)
        return false;
    if (folder.back() != '/')
        folder += '/';
    fs::create_directories(folder, error);
    if (!CanWriteIn(folder))
        return false;
    g_dumpPath = Keep(folder);
    RemoveSurplus();
    return true;
}

void SetDumpType(unsigned type)
{
    g_type = type;
}

void SetMaxCount(int count)
{
    g_maxCount = count;
    RemoveSurplus();
}

} // namespace crash
