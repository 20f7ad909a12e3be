#pragma once

#include <tuple>
#include <type_traits>

/// The list of a structure's fields. A structure has one static function that names each member once:
///
///     static constexpr auto Fields()
///     {
///         return std::make_tuple(Must("guid", &Camera::guid), May("name", &Camera::name));
///     }
///
/// Reading, writing, comparing and the tests of every message follow from it.
namespace protocol {

template<typename T, typename M>
struct Field
{
    const char* key;
    M T::*member;
    bool mandatory;
};

/// The one member of a structure whose JSON is that member itself, for example a list.
template<typename T, typename M>
struct WholeField
{
    M T::*member;
};

/// A field without which a structure is not read.
template<typename T, typename M>
constexpr Field<T, M> Must(const char* key, M T::*member)
{
    return {key, member, true};
}

/// A field that keeps its default value where the key is missing or null. (A std::optional member also tells
/// whether the key was there.)
template<typename T, typename M>
constexpr Field<T, M> May(const char* key, M T::*member)
{
    return {key, member, false};
}

template<typename T, typename M>
constexpr WholeField<T, M> Whole(M T::*member)
{
    return {member};
}

template<typename T, typename = void>
struct HasFields : std::false_type
{};
template<typename T>
struct HasFields<T, std::void_t<decltype(T::Fields())>> : std::true_type
{};

template<typename Fields>
struct IsWhole : std::false_type
{};
template<typename T, typename M>
struct IsWhole<WholeField<T, M>> : std::true_type
{};

/// Calls visit with each field of the structure type, in the order of its list.
template<typename T, typename Visitor>
constexpr void ForEachField(Visitor&& visit)
{
    if constexpr (IsWhole<decltype(T::Fields())>::value)
        visit(T::Fields());
    else
        std::apply([&](const auto&... field) { (visit(field), ...); }, T::Fields());
}

/// Structures are equal when all their fields are.
template<typename T, std::enable_if_t<HasFields<T>::value, int> = 0>
bool operator==(const T& left, const T& right)
{
    bool equal = true;
    ForEachField<T>([&](const auto& field) { equal = equal && left.*field.member == right.*field.member; });
    return equal;
}

template<typename T, std::enable_if_t<HasFields<T>::value, int> = 0>
bool operator!=(const T& left, const T& right)
{
    return !(left == right);
}

} // namespace protocol
