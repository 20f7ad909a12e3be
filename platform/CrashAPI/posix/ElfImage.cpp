#include "CrashAPI/posix/ElfImage.h"

#include "CrashAPI/posix/SafeMemory.h"

#include <elf.h>
#include <link.h>

#include <algorithm>
#include <cstring>

namespace crash {

namespace {

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);
using Note = ElfW(Nhdr);
using Dynamic = ElfW(Dyn);
using Symbol = ElfW(Sym);

constexpr std::size_t kMostSegments = 32;
constexpr std::size_t kMostNotes = 16;
constexpr std::size_t kMostDynamics = 128;
constexpr std::size_t kMostSymbols = 500000;
constexpr std::uint64_t kPage = 4096;

std::uint64_t Aligned(std::uint64_t size, std::uint64_t alignment)
{
    const std::uint64_t step = alignment == 8 ? 8 : 4;
    return (size + step - 1) / step * step;
}

bool TakeBuildId(std::uint64_t content, const Note& note, ElfImage& image)
{
    if (note.n_descsz > image.buildId.size() || !ReadMemory(content, image.buildId.data(), note.n_descsz))
        return false;
    image.buildIdSize = note.n_descsz;
    return true;
}

void ReadNotes(const Segment& segment, ElfImage& image)
{
    std::uint64_t at = image.bias + segment.p_vaddr;
    const std::uint64_t end = at + segment.p_memsz;
    Note note;
    for (std::size_t i = 0; i < kMostNotes && at + sizeof note <= end && ReadMemory(at, note); ++i) {
        const std::uint64_t content = at + sizeof note + Aligned(note.n_namesz, segment.p_align);
        std::array<char, 4> owner{};
        if (note.n_type == NT_GNU_BUILD_ID && note.n_namesz == owner.size() &&
            ReadMemory(at + sizeof note, owner) && std::memcmp(owner.data(), "GNU", owner.size()) == 0 &&
            TakeBuildId(content, note, image))
            return;
        at = content + Aligned(note.n_descsz, segment.p_align);
    }
}

struct SymbolTable
{
    std::uint64_t symbols = 0;
    std::uint64_t texts = 0;
    std::uint64_t textBytes = 0;
};

/// The loader writes the addresses of most images in, but not those of the kernel's own.
std::uint64_t InMemory(const ElfImage& image, std::uint64_t address)
{
    return address < image.bias ? address + image.bias : address;
}

bool ReadSymbolTable(const ElfImage& image, SymbolTable& table)
{
    Dynamic entry;
    for (std::size_t i = 0; i < kMostDynamics; ++i) {
        if (!ReadMemory(image.dynamic + i * sizeof entry, entry) || entry.d_tag == DT_NULL)
            break;
        if (entry.d_tag == DT_SYMTAB)
            table.symbols = InMemory(image, entry.d_un.d_ptr);
        else if (entry.d_tag == DT_STRTAB)
            table.texts = InMemory(image, entry.d_un.d_ptr);
        else if (entry.d_tag == DT_STRSZ)
            table.textBytes = entry.d_un.d_val;
    }
    return table.symbols != 0 && table.texts > table.symbols;
}

bool Holds(const Symbol& symbol, std::uint64_t address)
{
    const unsigned type = symbol.st_info & 0xf;
    return (type == STT_FUNC || type == STT_GNU_IFUNC) && symbol.st_shndx != SHN_UNDEF &&
           address >= symbol.st_value && address - symbol.st_value < symbol.st_size;
}

bool ReadName(const SymbolTable& table, const Symbol& symbol, FunctionName& name)
{
    if (symbol.st_name >= table.textBytes)
        return false;
    const std::size_t size = std::min<std::size_t>(name.text.size() - 1, table.textBytes - symbol.st_name);
    return ReadMemory(table.texts + symbol.st_name, name.text.data(), size);
}

} // namespace

bool ReadElfImage(std::uint64_t start, ElfImage& image)
{
    Header header;
    if (!ReadMemory(start, header) || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 ||
        header.e_phentsize != sizeof(Segment) || header.e_phnum > kMostSegments)
        return false;
    std::array<Segment, kMostSegments> segments;
    if (!ReadMemory(start + header.e_phoff, segments.data(), header.e_phnum * sizeof(Segment)))
        return false;
    const Segment* const last = segments.data() + header.e_phnum;
    const Segment* const first =
        std::find_if(segments.cbegin(), last, [](const Segment& each) { return each.p_type == PT_LOAD; });
    if (first == last)
        return false;
    image.bias = start - first->p_vaddr / kPage * kPage;
    for (const Segment* segment = segments.data(); segment != last; ++segment) {
        if (segment->p_type == PT_LOAD)
            image.end = std::max<std::uint64_t>(image.end, image.bias + segment->p_vaddr + segment->p_memsz);
        else if (segment->p_type == PT_DYNAMIC)
            image.dynamic = image.bias + segment->p_vaddr;
        else if (segment->p_type == PT_NOTE && image.buildIdSize == 0)
            ReadNotes(*segment, image);
    }
    return image.end > start;
}

/// The table of exported symbols has no count; the linkers write their texts directly behind it.
bool FindFunction(const ElfImage& image, std::uint64_t address, FunctionName& name)
{
    SymbolTable table;
    if (image.dynamic == 0 || !ReadSymbolTable(image, table))
        return false;
    const std::size_t count =
        std::min<std::size_t>((table.texts - table.symbols) / sizeof(Symbol), kMostSymbols);
    std::array<Symbol, 128> some;
    for (std::size_t i = 0; i < count; i += some.size()) {
        const std::size_t part = std::min(some.size(), count - i);
        if (!ReadMemory(table.symbols + i * sizeof(Symbol), some.data(), part * sizeof(Symbol)))
            return false;
        for (std::size_t j = 0; j < part; ++j) {
            if (!Holds(some[j], address - image.bias))
                continue;
            name.offset = address - image.bias - some[j].st_value;
            return ReadName(table, some[j], name);
        }
    }
    return false;
}

} // namespace crash
