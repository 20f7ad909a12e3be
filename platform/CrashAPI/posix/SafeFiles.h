#pragma once

#include <array>
#include <cstddef>

namespace crash {

/// Reads a file line by line without heap or locks. A line that is longer than the buffer ends the reading.
class LineReader
{
public:
    explicit LineReader(const char* path);
    ~LineReader();
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    /// The next line without its end, which may be changed until the next call; null behind the last one.
    char* Next();

private:
    bool ReadMore();

    int m_file;
    std::array<char, 6000> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
};

/// Lists the names in a folder, in no order, without heap or locks.
class FolderReader
{
public:
    explicit FolderReader(const char* path);
    ~FolderReader();
    FolderReader(const FolderReader&) = delete;
    FolderReader& operator=(const FolderReader&) = delete;

    /// The next name, valid until the next call; null behind the last one.
    const char* Next();

    /// The folder itself, for calls that take a name in it; below 0 when it cannot be read.
    int Handle() const { return m_folder; }

private:
    int m_folder;
    alignas(8) std::array<char, 4096> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
};

} // namespace crash
