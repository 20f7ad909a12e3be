#include "CapabilitySet/Documents/Parse.h"

#include <algorithm>
#include <charconv>

namespace CapabilitySet::parsing {

namespace {

/// Decimal digits only, and no value above greatest.
bool ReadNumber(std::string_view text, std::uint32_t greatest, std::uint32_t& value, Problem& problem)
{
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || stop != end || error == std::errc::invalid_argument)
        return Refuse(problem, "not a decimal number");
    if (error != std::errc() || number > greatest)
        return Refuse(problem, "above " + std::to_string(greatest));
    value = number;
    return true;
}

bool HasControls(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; });
}

bool ReadOption(std::string_view text, std::uint32_t greatest, Option& option, Problem& problem)
{
    const std::size_t dash = text.find('-');
    if (text.size() > kMostOptionBytes)
        return Refuse(problem, "longer than " + std::to_string(kMostOptionBytes) + " bytes");
    if (dash == std::string_view::npos || dash + 1 == text.size() || HasControls(text))
        return Refuse(problem, "not of the form index-text");
    option.text = text.substr(dash + 1);
    return ReadNumber(text.substr(0, dash), greatest, option.index, problem);
}

bool HasIndex(const Options& options, std::uint32_t index)
{
    return std::any_of(options.begin(), options.end(),
                       [&](const Option& option) { return option.index == index; });
}

bool AddOption(const XmlTree::Element& element, std::uint32_t greatest, Options& options, Problem& problem)
{
    Option option;
    if (options.size() >= kMostOptions)
        return Refuse(problem, "more than " + std::to_string(kMostOptions));
    if (!ReadOption(element.text, greatest, option, problem))
        return false;
    if (HasIndex(options, option.index))
        return Refuse(problem, "index " + std::to_string(option.index) + " is there twice");
    options.push_back(std::move(option));
    return true;
}

bool ReadEnd(const XmlTree::Element& element, const char* name, std::uint32_t greatest, std::uint32_t& value,
             Problem& problem)
{
    const auto attribute = element.attributes.find(name);
    if (attribute == element.attributes.end())
        return Refuse(problem, std::string(name) + " is missing");
    return ReadNumber(attribute->second, greatest, value, problem);
}

} // namespace

bool Refuse(Problem& problem, std::string reason)
{
    problem.reason = std::move(reason);
    return false;
}

bool RefuseIn(const char* element, Problem& problem)
{
    problem.path = std::string("/") + element + problem.path;
    return false;
}

bool OnlyChild(const XmlTree::Element& parent, const char* name, const XmlTree::Element*& child,
               Problem& problem)
{
    child = nullptr;
    for (const XmlTree::Element& candidate : parent.children) {
        if (candidate.name != name)
            continue;
        if (child)
            return Refuse(problem, std::string(name) + " is there twice");
        child = &candidate;
    }
    return true;
}

bool IsRoot(const XmlTree::Element& root, const char* name, Problem& problem)
{
    if (root.name != name)
        return Refuse(problem, "the document is another one");
    return root.Attribute("version") == "1" || Refuse(problem, "not version 1");
}

bool Read(const XmlTree::Element& element, std::uint32_t, bool& value, Problem& problem)
{
    if (element.text != "true" && element.text != "false")
        return Refuse(problem, "neither true nor false");
    value = element.text == "true";
    return true;
}

bool Read(const XmlTree::Element& element, std::uint32_t greatest, std::uint32_t& value, Problem& problem)
{
    return ReadNumber(element.text, greatest, value, problem);
}

bool Read(const XmlTree::Element& element, std::uint32_t greatest, std::optional<Range>& range,
          Problem& problem)
{
    Range ends;
    if (!ReadEnd(element, "min", greatest, ends.least, problem) ||
        !ReadEnd(element, "max", greatest, ends.greatest, problem))
        return false;
    if (ends.least > ends.greatest)
        return Refuse(problem, "min is above max");
    range = ends;
    return true;
}

bool Read(const XmlTree::Element& element, std::uint32_t greatest, Options& options, Problem& problem)
{
    for (const XmlTree::Element& child : element.children) {
        if (child.name == "option" && !AddOption(child, greatest, options, problem))
            return RefuseIn("option", problem);
    }
    return true;
}

} // namespace CapabilitySet::parsing
