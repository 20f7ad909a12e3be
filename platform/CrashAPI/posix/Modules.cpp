#include "CrashAPI/posix/Modules.h"

#include "CrashAPI/posix/SafeFiles.h"
#include "CrashAPI/posix/SafeText.h"

#include <cstring>

namespace crash {

namespace {

/// Takes one hexadecimal number and the character behind it.
std::uint64_t TakeHex(const char*& text)
{
    std::uint64_t value = 0;
    for (; *text; ++text) {
        const char* const digits = "0123456789abcdef";
        const char* const digit = std::strchr(digits, *text);
        if (!digit)
            return ++text, value;
        value = value * 16 + static_cast<std::uint64_t>(digit - digits);
    }
    return value;
}

const char* BehindField(const char* text)
{
    while (*text && *text != ' ')
        ++text;
    while (*text == ' ')
        ++text;
    return text;
}

} // namespace

void ModuleTable::Gather()
{
    m_count = m_leftOut = m_textBytes = 0;
    LineReader map("/proc/self/maps");
    while (char* line = map.Next())
        Take(line);
}

/// A line: "start-end rwxp offset device inode  path".
void ModuleTable::Take(char* line)
{
    const char* at = line;
    const std::uint64_t start = TakeHex(at);
    TakeHex(at);
    const bool runs = std::strlen(at) > 3 && at[2] == 'x';
    at = BehindField(at);
    const std::uint64_t offset = TakeHex(at);
    const char* const path = BehindField(BehindField(at));
    if (*path != '/' && std::strcmp(path, "[vdso]") != 0)
        return;
    const bool within = m_count > 0 && start < m_modules[m_count - 1].image.end &&
                        std::strcmp(path, m_modules[m_count - 1].path) == 0;
    if ((within || (offset == 0 && Add(start, path))) && runs)
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
