#include "simulator/abilities/AbilityWriter.h"

namespace simulator::abilities {

namespace {

std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char c : text) {
        if (c == '<')
            escaped += "&lt;";
        else if (c == '>')
            escaped += "&gt;";
        else if (c == '&')
            escaped += "&amp;";
        else
            escaped += c;
    }
    return escaped;
}

} // namespace

void CAbilityWriter::Open(const std::string& name, const std::string& attributes)
{
    Indent();
    m_xml += "<" + name + attributes + ">\n";
    ++m_depth;
}

void CAbilityWriter::Close(const char* name)
{
    --m_depth;
    Indent();
    m_xml += "</" + std::string(name) + ">\n";
}

void CAbilityWriter::Leaf(const char* name, const std::string& text)
{
    Indent();
    m_xml += "<" + std::string(name) + ">" + Escaped(text) + "</" + name + ">\n";
}

void CAbilityWriter::Write(const char* name, const std::optional<CapabilitySet::Range>& range)
{
    if (!range)
        return;
    Indent();
    m_xml += "<" + std::string(name) + " min=\"" + std::to_string(range->least) + "\" max=\"" +
             std::to_string(range->greatest) + "\"/>\n";
}

void CAbilityWriter::Write(const char* name, const CapabilitySet::Options& options)
{
    if (options.empty())
        return;
    Open(name);
    for (const CapabilitySet::Option& option : options)
        Leaf("option", std::to_string(option.index) + "-" + option.text);
    Close(name);
}

} // namespace simulator::abilities
