#include "CrashAPI/posix/Modules.h"

#include "CrashAPI/posix/MemoryMap.h"
#include "CrashAPI/posix/SafeText.h"

#include <cstring>

namespace crash {

void ModuleTable::Gather()
{
    m_count = m_leftOut = m_textBytes = 0;
    MemoryMap map;
    Mapping mapping;
    while (map.Next(mapping))
        Take(mapping);
}

void ModuleTable::Take(const Mapping& mapping)
{
    const char* const path = mapping.path;
    if (*path != '/' && std::strcmp(path, "[vdso]") != 0)
        return;
    const bool within = m_count > 0 && mapping.start < m_modules[m_count - 1].image.end &&
                        std::strcmp(path, m_modules[m_count - 1].path) == 0;
    if ((within || (mapping.offset == 0 && Add(mapping.start, path))) && mapping.runs)
        m_modules[m_count - 1].runs = true;
}

bool ModuleTable::Add(std::uint64_t start, const char* path)
{
    // One that turned out not to run gives its place to the next.
    if (m_count > 0 && !m_modules[m_count - 1].runs)
        --m_count;
    Module module;
    module.start = start;
    if (!ReadElfImage(start, module.image))
        return false;
    module.path = Keep(path);
    if (m_count == m_modules.size() || !module.path) {
        ++m_leftOut;
        return false;
    }
    m_modules[m_count++] = module;
    return true;
}

const char* ModuleTable::Keep(const char* text)
{
    const std::size_t bytes = std::strlen(text) + 1;
    if (bytes > m_texts.size() - m_textBytes)
        return nullptr;
    char* const kept = m_texts.data() + m_textBytes;
    std::memcpy(kept, text, bytes);
    m_textBytes += bytes;
    return kept;
}

const Module* ModuleTable::Find(std::uint64_t address) const
{
    for (std::size_t i = 0; i < m_count; ++i)
        if (m_modules[i].runs && address >= m_modules[i].start && address < m_modules[i].image.end)
            return &m_modules[i];
    return nullptr;
}

bool ModuleTable::WriteTo(int fd) const
{
    SafeText line;
    bool written = line.Add("\nmodules:\n").WriteTo(fd);
    for (std::size_t i = 0; i < m_count; ++i) {
        const Module& module = m_modules[i];
        if (!module.runs)
            continue;
        line.Add("  ").AddHex(module.start, 16).Add("-").AddHex(module.image.end, 16).Add(" ");
        line.AddBytes(module.image.buildId.data(), module.image.buildIdSize);
        line.Add(module.image.buildIdSize == 0 ? "no-build-id " : " ").Add(module.path).Add("\n");
        written = line.WriteTo(fd) && written;
    }
    if (m_leftOut > 0)
        written = line.Add("(").AddDecimal(static_cast<std::int64_t>(m_leftOut)).Add(" more)\n").WriteTo(fd);
    return written;
}

const char* FileName(const char* path)
{
    const char* const slash = std::strrchr(path, '/');
    return slash ? slash + 1 : path;
}

} // namespace crash
