#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

/// The values that abilities are made of, and the list of an ability's fields. A structure has one static
/// function that names each member once, with the element of the document that carries it:
///
///     static constexpr auto Fields()
///     {
///         return std::make_tuple(Element("streamType", &RecordOptions::streamType, 255),
///                                Element("expiryDays", &RecordOptions::expiryDays));
///     }
///
/// Reading, comparing, the simulator's writing and the tests follow from it.
namespace CapabilitySet {

/// One of the values that a parameter takes. Documents write it "index-text": "1-5s", "7-0xffffffff".
struct Option
{
    std::uint32_t index = 0; ///< what the device's structures carry
    std::string text;        ///< 1 to 64 bytes together with index and dash; no control characters
};

/// In the order of the document, which is the order to offer them in; each index once. Empty: the parameter
/// is not offered.
using Options = std::vector<Option>;

/// Both ends are allowed values; least is not above greatest.
struct Range
{
    std::uint32_t least = 0;
    std::uint32_t greatest = 0;
};

template<typename T, typename M>
struct Field
{
    const char* name;
    M T::*member;
    std::uint32_t greatest;
};

/// greatest: of a number, of a range's end, of an option's index, or of how many structures a list has. A
/// member keeps its default value where the element is missing.
template<typename T, typename M>
constexpr Field<T, M> Element(const char* name, M T::*member,
                              std::uint32_t greatest = std::numeric_limits<std::uint32_t>::max())
{
    return {name, member, greatest};
}

template<typename T, typename = void>
struct HasFields : std::false_type
{};
template<typename T>
struct HasFields<T, std::void_t<decltype(T::Fields())>> : std::true_type
{};

/// Calls visit with each field of the structure type, in the order of its list.
template<typename T, typename Visitor>
constexpr void ForEachField(Visitor&& visit)
{
    std::apply([&](const auto&... field) { (visit(field), ...); }, T::Fields());
}

inline bool operator==(const Option& left, const Option& right)
{
    return left.index == right.index && left.text == right.text;
}

inline bool operator==(const Range& left, const Range& right)
{
    return left.least == right.least && left.greatest == right.greatest;
}

/// Structures are equal when all their fields are.
template<typename T, std::enable_if_t<HasFields<T>::value, int> = 0>
bool operator==(const T& left, const T& right)
{
    bool equal = true;
    ForEachField<T>([&](const auto& field) { equal = equal && left.*field.member == right.*field.member; });
    return equal;
}

} // namespace CapabilitySet
