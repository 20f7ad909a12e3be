#include "DeviceStructures/Markdown.h"

#include "DeviceStructures/Commands.h"
#include "DeviceStructures/Values.h"

#include "Base/StringUtil.h"

namespace devices {

namespace {

using Base::StringUtil::Format;
using Base::StringUtil::Split;

std::string CommandNumber(std::uint32_t number)
{
    return number ? std::to_string(number) : "";
}

std::string ParameterTable()
{
    std::string text =
        "## Parameters\n\n| parameter | get | set | of | structure | bytes |\n|---|---|---|---|---|---|\n";
    for (const ConfigCommand& command : ConfigCommands())
        text += Format("| %s | %s | %s | %s | `%s` | %u |\n", command.parameter,
                       CommandNumber(command.get).c_str(), CommandNumber(command.set).c_str(),
                       ScopeName(command.scope), command.layout().name, command.layout().size);
    return text;
}

std::string KindName(const Field& field)
{
    switch (field.kind) {
    case Kind::Size:
    case Kind::U32:
        return "u32";
    case Kind::U8:
        return "u8";
    case Kind::U16:
        return "u16";
    case Kind::I32:
        return "i32";
    case Kind::Text:
        return "text";
    case Kind::Octets:
        return "octets";
    case Kind::Numbers:
        return "set";
    case Kind::Nested:
        return "`" + std::string(field.nested().name) + "`";
    default:
        return "";
    }
}

std::string ValueList(const Field& field)
{
    std::string text;
    const std::vector<std::string> names = Split(field.names, '|');
    for (std::size_t i = 0; i < names.size(); ++i)
        if (!names[i].empty())
            text += Format("%s%zu %s", text.empty() ? "" : ", ", i, names[i].c_str());
    return text;
}

std::string RangeText(const Layout& layout, const Field& field)
{
    if (field.kind == Kind::Size)
        return std::to_string(layout.size);
    if (field.kind == Kind::Reserved)
        return "0";
    if (field.kind == Kind::Text)
        return Format("at most %u bytes", field.size - 1);
    if (field.kind == Kind::Numbers)
        return Format("1 to %u", field.size * 8);
    if (field.kind == Kind::Nested)
        return "";
    if (*field.names)
        return ValueList(field);
    return Format("%lld to %lld", static_cast<long long>(field.min), static_cast<long long>(field.max));
}

std::string DefaultText(const Field& field)
{
    if (field.kind == Kind::Text)
        return field.initialText;
    return IsNumber(field) ? std::to_string(field.initial) : "";
}

std::string FieldRow(const Layout& layout, const Field& field)
{
    const std::string count = field.count > 1 ? Format("[%u]", field.count) : "";
    return Format("| %u | %u | %s%s | %s | %s | %s | %s | %s |\n", field.offset, field.Bytes(), field.name,
                  count.c_str(), KindName(field).c_str(), RangeText(layout, field).c_str(), field.unit,
                  DefaultText(field).c_str(), field.note);
}

std::string LayoutTable(const Layout& layout)
{
    std::string text = Format("### %s\n\n%s. %u bytes.\n\n", layout.name, layout.meaning, layout.size);
    text += "| offset | bytes | member | kind | values | unit | fresh | meaning "
            "|\n|---|---|---|---|---|---|---|---|\n";
    for (const Field& field : layout)
        text += FieldRow(layout, field);
    return text;
}

} // namespace

std::string StructureTables()
{
    std::string text = ParameterTable() + "\n## Structures\n";
    for (const Layout* layout : AllLayouts())
        text += "\n" + LayoutTable(*layout);
    return text;
}

} // namespace devices
