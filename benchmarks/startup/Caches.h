#pragma once

#include <set>
#include <string>

namespace bench {

/// Makes the next start of a program read its files from the disk again.
class CFileCache
{
public:
    /// Notes the files that a process has mapped at the moment.
    void Note(int process);

    /// Drops the system's page cache, or, where only an administrator may, the pages of the noted files as
    /// far as no process uses them. Gives the name of the way.
    const char* Drop() const;

private:
    std::set<std::string> m_files;
};

} // namespace bench
