#include "CrashAPI/CrashSettings.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <list>
#include <mutex>
#include <vector>

namespace crash {

namespace {

namespace fs = std::filesystem;

constexpr int kDefaultMaxCount = 10;
/// With data segments, full memory, indirectly referenced memory, private read-write memory.
constexpr unsigned kMemoryFlags = 0x0001 | 0x0002 | 0x0040 | 0x0200;

std::atomic<const char*> g_dumpPath{nullptr};
std::atomic<const char*> g_toReplace{nullptr};
std::atomic<unsigned> g_type{0};

/// Guards the rest, and writing to the above. Never destroyed, as a crash may come late.
struct Guarded
{
    std::mutex mutex;
    int maxCount = kDefaultMaxCount;
    std::list<std::string> texts;
};

Guarded& State()
{
    static Guarded* const state = new Guarded();
    return *state;
}

/// The text in a place where a handler may read it for ever.
const char* Keep(const std::string& text)
{
    auto& texts = State().texts;
    const auto known = std::find(texts.begin(), texts.end(), text);
    return known != texts.end() ? known->c_str() : texts.emplace_back(text).c_str();
}

/// Names hold the time, so that their order is that of the reports.
std::vector<fs::path> ReportsOldestFirst(const fs::path& folder)
{
    std::vector<fs::path> reports;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const std::string extension = entry->path().extension().string();
        if (entry->path().filename().string().rfind("crash-", 0) == 0 &&
            (extension == ".txt" || extension == ".dmp"))
            reports.push_back(entry->path());
    }
    std::sort(reports.begin(), reports.end());
    return reports;
}

void RemoveSurplus()
{
    g_toReplace = nullptr;
    if (!g_dumpPath)
        return;
    std::vector<fs::path> reports = ReportsOldestFirst(g_dumpPath.load());
    const auto limit = static_cast<std::size_t>(State().maxCount);
    std::error_code ignored;
    const std::size_t surplus = reports.size() > limit ? reports.size() - limit : 0;
    for (std::size_t i = 0; i < surplus; ++i)
        fs::remove(reports[i], ignored);
    if (reports.size() >= limit)
        g_toReplace = Keep(reports[surplus].string());
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

const char* ReportToReplace()
{
    return g_toReplace;
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
    std::lock_guard<std::mutex> lock(State().mutex);
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
    std::lock_guard<std::mutex> lock(State().mutex);
    State().maxCount = count;
    RemoveSurplus();
}

} // namespace crash
