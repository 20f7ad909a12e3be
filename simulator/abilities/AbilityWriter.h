#pragma once

#include "CapabilitySet/Documents/Fields.h"

/// From an ability to its document, following the structure's list of fields.
namespace simulator::abilities {

/// An XML document that grows element by element, indented.
class CAbilityWriter
{
public:
    CAbilityWriter() : m_xml("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n") {}

    const std::string& Text() const { return m_xml; }

    void Open(const std::string& name, const std::string& attributes = {});
    void Close(const char* name);

    void Write(const char* name, bool value) { Leaf(name, value ? "true" : "false"); }
    void Write(const char* name, std::uint32_t value) { Leaf(name, std::to_string(value)); }
    void Write(const char* name, const std::optional<CapabilitySet::Range>& range);
    void Write(const char* name, const CapabilitySet::Options& options);

    template<typename T, std::enable_if_t<CapabilitySet::HasFields<T>::value, int> = 0>
    void Write(const char* name, const std::optional<T>& structure)
    {
        if (structure)
            WriteGroup(name, *structure);
    }

    template<typename T, std::enable_if_t<CapabilitySet::HasFields<T>::value, int> = 0>
    void Write(const char* name, const std::vector<T>& list)
    {
        if (list.empty())
            return;
        Open(name);
        for (const T& structure : list)
            WriteGroup(T::kElement, structure);
        Close(name);
    }

    template<typename T>
    void WriteGroup(const char* name, const T& structure, const std::string& attributes = {})
    {
        Open(name, attributes);
        CapabilitySet::ForEachField<T>(
            [&](const auto& field) { Write(field.name, structure.*field.member); });
        Close(name);
    }

private:
    void Leaf(const char* name, const std::string& text);
    void Indent() { m_xml.append(2 * m_depth, ' '); }

    std::string m_xml;
    std::size_t m_depth = 0;
};

/// The whole document of an ability.
template<typename Ability>
std::string WriteAbility(const Ability& ability)
{
    CAbilityWriter writer;
    writer.WriteGroup(Ability::kRoot, ability, " version=\"1\"");
    return writer.Text();
}

} // namespace simulator::abilities
