#include "idle/ProcessUse.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace bench {
namespace {

namespace fs = std::filesystem;

/// The number behind "name:" in a file of such lines; 0 when there is none.
std::int64_t NumberIn(const fs::path& file, const std::string& name)
{
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(name + ":", 0) == 0)
            return std::stoll(line.substr(name.size() + 1));
    return 0;
}

std::int64_t FirstNumberIn(const fs::path& file)
{
    std::int64_t number = 0;
    std::ifstream(file) >> number;
    return number;
}

fs::path Folder(int process)
{
    return fs::path("/proc") / std::to_string(process);
}

} // namespace

ProcessUse UseOf(int process)
{
    ProcessUse use;
    use.residentKiB = NumberIn(Folder(process) / "status", "VmRSS");
    use.shareKiB = NumberIn(Folder(process) / "smaps_rollup", "Pss");
    for (const auto& thread : fs::directory_iterator(Folder(process) / "task")) {
        ++use.threads;
        use.cpuNs += FirstNumberIn(thread.path() / "schedstat");
        use.wakeUps += NumberIn(thread.path() / "status", "voluntary_ctxt_switches");
    }
    return use;
}

std::vector<int> ChildrenOf(int process)
{
    std::vector<int> children;
    for (const auto& entry : fs::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        const bool isProcess = name.find_first_not_of("0123456789") == std::string::npos;
        if (isProcess && NumberIn(entry.path() / "status", "PPid") == process)
            children.push_back(std::stoi(name));
    }
    return children;
}

} // namespace bench
