#pragma once

#include "CapabilitySet/Documents/Document.h"
#include "CapabilitySet/Documents/Fields.h"

/// From an ability document to its structure, following the structure's list of fields.
namespace CapabilitySet {

constexpr std::size_t kMostOptions = 256;
constexpr std::size_t kMostOptionBytes = 64;

namespace parsing {

/// The reason, and the elements that lead to where it was found.
struct Problem
{
    std::string path;
    std::string reason;
};

/// Notes the reason and returns false.
bool Refuse(Problem& problem, std::string reason);
/// Puts the element in front of the path and returns false.
bool RefuseIn(const char* element, Problem& problem);

/// The only child of the name, nullptr when there is none; false when there are several.
bool OnlyChild(const XmlTree::Element& parent, const char* name, const XmlTree::Element*& child,
               Problem& problem);
/// Whether the document's outermost element is the one wanted, in a version that is understood.
bool IsRoot(const XmlTree::Element& root, const char* name, Problem& problem);

bool Read(const XmlTree::Element& element, std::uint32_t greatest, bool& value, Problem& problem);
bool Read(const XmlTree::Element& element, std::uint32_t greatest, std::uint32_t& value, Problem& problem);
bool Read(const XmlTree::Element& element, std::uint32_t greatest, std::optional<Range>& range,
          Problem& problem);
bool Read(const XmlTree::Element& element, std::uint32_t greatest, Options& options, Problem& problem);

template<typename T>
bool ReadFields(const XmlTree::Element& element, T& structure, Problem& problem);

template<typename T, std::enable_if_t<HasFields<T>::value, int> = 0>
bool Read(const XmlTree::Element& element, std::uint32_t, std::optional<T>& structure, Problem& problem)
{
    return ReadFields(element, structure.emplace(), problem);
}

template<typename T, std::enable_if_t<HasFields<T>::value, int> = 0>
bool Read(const XmlTree::Element& element, std::uint32_t greatest, std::vector<T>& list, Problem& problem)
{
    for (const XmlTree::Element& child : element.children) {
        if (child.name != T::kElement)
            continue;
        if (list.size() >= greatest)
            return Refuse(problem, "more than " + std::to_string(greatest) + " elements");
        if (!ReadFields(child, list.emplace_back(), problem))
            return RefuseIn(T::kElement, problem);
    }
    return true;
}

template<typename T, typename M>
bool ReadField(const XmlTree::Element& element, const Field<T, M>& field, T& structure, Problem& problem)
{
    const XmlTree::Element* child = nullptr;
    if (!OnlyChild(element, field.name, child, problem))
        return false;
    return !child || Read(*child, field.greatest, structure.*field.member, problem) ||
           RefuseIn(field.name, problem);
}

template<typename T>
bool ReadFields(const XmlTree::Element& element, T& structure, Problem& problem)
{
    bool good = true;
    ForEachField<T>([&](const auto& field) { good = good && ReadField(element, field, structure, problem); });
    return good;
}

} // namespace parsing

/// Reads an ability of the type asked for. Elements and attributes that are not known are passed over. False
/// when the document is refused or carries another ability, or a value is malformed, out of its range or
/// there twice: then problem says what and where, and ability is as it was. Any thread.
template<typename Ability>
[[nodiscard]] bool ParseAbility(std::string_view document, Ability& ability, std::string& problem)
{
    XmlTree::Element root;
    if (!ReadDocument(document, root, problem))
        return false;
    Ability fresh;
    parsing::Problem found;
    if (!parsing::IsRoot(root, Ability::kRoot, found) || !parsing::ReadFields(root, fresh, found)) {
        problem = Ability::kRoot + found.path + ": " + found.reason;
        return false;
    }
    ability = std::move(fresh);
    return true;
}

} // namespace CapabilitySet
