#pragma once

#include "CrashAPI/posix/ElfImage.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace crash {

struct Mapping;

struct Module
{
    std::uint64_t start = 0;
    ElfImage image;
    const char* path = "";
    bool runs = false; ///< Has code in memory, unlike a file that is only looked at.
};

/// The program and the libraries that are loaded, found in the system's list of mapped memory: no lock of the
/// loader is needed, and those loaded a moment ago are there too. Safe in a signal handler.
class ModuleTable
{
public:
    void Gather();

    /// The module that the address lies in; null when there is none.
    const Module* Find(std::uint64_t address) const;

    /// One line each: addresses, build id, path.
    bool WriteTo(int fd) const;

private:
    void Take(const Mapping& mapping);
    bool Add(std::uint64_t start, const char* path);
    const char* Keep(const char* text);

    std::array<Module, 512> m_modules{};
    std::size_t m_count = 0;
    std::size_t m_leftOut = 0;
    std::array<char, 64 * 1024> m_texts{};
    std::size_t m_textBytes = 0;
};

/// The file's name without its folder.
const char* FileName(const char* path);

} // namespace crash
