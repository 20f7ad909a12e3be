#include "Caches.h"

#include <fstream>

#include <fcntl.h>
#include <unistd.h>

namespace bench {

namespace {

void Forget(const std::string& path)
{
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return;
    posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
    close(file);
}

} // namespace

void CFileCache::Note(int process)
{
    std::ifstream maps("/proc/" + std::to_string(process) + "/maps");
    for (std::string line; std::getline(maps, line);)
        if (const auto path = line.find('/'); path != std::string::npos)
            m_files.insert(line.substr(path));
}

const char* CFileCache::Drop() const
{
    sync();
    std::ofstream all("/proc/sys/vm/drop_caches");
    if (all << "3" << std::flush)
        return "drop_caches";
    for (const std::string& path : m_files)
        Forget(path);
    return "fadvise";
}

} // namespace bench
