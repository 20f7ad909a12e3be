#include "DeviceStructures/Text.h"

#include "DeviceStructures/MemberPath.h"

#include "Base/StringUtil.h"

#include <algorithm>
#include <cstring>

namespace devices {

namespace {

using Base::StringUtil::Format;

constexpr std::uint32_t kLongestHex = 32; ///< octets that are shown; of more only how many are set

struct Line
{
    std::string path;
    std::string value;
};

bool AllZero(const std::uint8_t* at, std::uint32_t size)
{
    return std::all_of(at, at + size, [](std::uint8_t byte) { return byte == 0; });
}

std::string NumberText(const Field& field, const std::uint8_t* at)
{
    const std::int64_t value = ReadNumber(field, at);
    const std::string_view name = ValueName(field, value);
    if (!name.empty())
        return std::string(name);
    return std::to_string(value) + (*field.unit ? " " : "") + field.unit;
}

std::string OctetsText(const Field& field, const std::uint8_t* at)
{
    if (field.size <= kLongestHex)
        return ReadHex(field, at);
    const auto zeros = std::count(at, at + field.size, std::uint8_t{0});
    return Format("%lld of %u octets set", static_cast<long long>(field.size - zeros), field.size);
}

std::string ValueText(const Field& field, const std::uint8_t* at)
{
    switch (field.kind) {
    case Kind::Text:
        return Visible(ReadText(field, at));
    case Kind::Octets:
        return OctetsText(field, at);
    case Kind::Numbers:
        return FormatNumbers(ReadNumbers(field, at));
    default:
        return NumberText(field, at);
    }
}

void AddStructure(const Layout& layout, const std::uint8_t* bytes, const std::string& path,
                  std::vector<Line>& lines);

void AddElements(const Field& field, const std::uint8_t* at, const std::string& path,
                 std::vector<Line>& lines)
{
    if (field.kind != Kind::Nested)
        lines.push_back({path, ValueText(field, at)});
    else if (AllZero(at, field.size))
        lines.push_back({path, "-"});
    else
        AddStructure(field.nested(), at, path + ".", lines);
}

void AddMember(const Field& field, const std::uint8_t* at, const std::string& path, std::vector<Line>& lines)
{
    if (field.count == 1)
        return AddElements(field, at, path, lines);
    for (std::uint32_t first = 0; first < field.count;) {
        std::uint32_t end = first + 1;
        while (end < field.count &&
               std::memcmp(at + first * field.size, at + end * field.size, field.size) == 0)
            ++end;
        const std::string span = end - first > 1 ? Format("[%u-%u]", first, end - 1) : Format("[%u]", first);
        AddElements(field, at + first * field.size, path + span, lines);
        first = end;
    }
}

void AddStructure(const Layout& layout, const std::uint8_t* bytes, const std::string& path,
                  std::vector<Line>& lines)
{
    for (const Field& field : layout)
        if (IsShown(field))
            AddMember(field, bytes + field.offset, path + field.name, lines);
}

} // namespace

std::string Visible(std::string_view text)
{
    std::string visible;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned code = static_cast<std::uint8_t>(text[i]);
        const unsigned next = i + 1 < text.size() ? static_cast<std::uint8_t>(text[i + 1]) : 0;
        const bool isHighControl = code == 0xC2 && next >= 0x80 && next < 0xA0;
        if (isHighControl) {
            code = next;
            ++i;
        }
        if (code < 0x20 || code == 0x7F || isHighControl)
            visible += Format("\\u%04x", code);
        else
            visible += text[i];
    }
    return visible;
}

std::string ToText(const Layout& layout, const std::uint8_t* bytes)
{
    std::vector<Line> lines;
    AddStructure(layout, bytes, "", lines);
    std::size_t width = 0;
    for (const Line& line : lines)
        width = std::max(width, line.path.size());
    std::string text;
    for (const Line& line : lines) {
        text += line.path;
        if (!line.value.empty())
            text += std::string(width + 2 - line.path.size(), ' ') + line.value;
        text += '\n';
    }
    return text;
}

} // namespace devices
