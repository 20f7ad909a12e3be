#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

/// The layouts of the device SDK's structures as lists of fields. From them follow the values of a fresh
/// device, the check of what a device or user sends, the structures as JSON and as text, and their document.
///
/// Layouts are constants; everything here may be called on any thread.
namespace devices {

struct Layout;

enum class Kind : std::uint8_t {
    Size, ///< the structure's own size in bytes, its first member
    U8,
    U16,
    U32,
    I32,
    Text,    ///< UTF-8 with a zero byte; what follows the zero is zero
    Octets,  ///< bytes without further meaning, each within the range
    Numbers, ///< a set of numbers from 1: number n is bit (n - 1) % 8 of byte (n - 1) / 8
    Nested,
    Reserved,
};

/// One member of a structure. Ranges and defaults are of each element.
struct Field
{
    const char* name = "";
    Kind kind = Kind::U8;
    std::uint32_t offset = 0;
    std::uint32_t size = 0;              ///< of an element, in bytes
    std::uint32_t count = 1;             ///< elements; texts, octets and sets are one
    const Layout& (*nested)() = nullptr; ///< for Kind::Nested
    std::int64_t min = 0;
    std::int64_t max = 0;
    std::int64_t initial = 0; ///< of a fresh device
    const char* initialText = "";
    const char* unit = "";
    const char* names =
        ""; ///< of the values from 0 on, with "|" between them; empty where they are plain numbers
    const char* note = "";
    bool secret = false; ///< is sent, but never shown

    constexpr Field Range(std::int64_t low, std::int64_t high) const
    {
        Field field = *this;
        field.min = low;
        field.max = high;
        field.initial = low > 0 ? low : 0;
        return field;
    }
    constexpr Field In(const char* text) const
    {
        Field field = *this;
        field.unit = text;
        return field;
    }
    constexpr Field Default(std::int64_t value) const
    {
        Field field = *this;
        field.initial = value;
        return field;
    }
    constexpr Field Default(const char* text) const
    {
        Field field = *this;
        field.initialText = text;
        return field;
    }
    /// The values are 0, 1, ... with these names, "first|second|third".
    constexpr Field Named(const char* list) const
    {
        std::int64_t last = 0;
        for (const char* at = list; *at; ++at)
            last += *at == '|';
        Field field = Range(0, last);
        field.names = list;
        return field;
    }
    constexpr Field Flag() const { return Named("no|yes"); }
    constexpr Field Numbers() const
    {
        Field field = *this;
        field.kind = Kind::Numbers;
        return field;
    }
    constexpr Field Secret() const
    {
        Field field = *this;
        field.secret = true;
        return field;
    }
    /// What the name and range do not say, for the document.
    constexpr Field Note(const char* text) const
    {
        Field field = *this;
        field.note = text;
        return field;
    }

    constexpr std::uint32_t Bytes() const { return size * count; }
};

/// A structure: its name in C, what it is, and its fields in the order of their offsets, without gaps.
struct Layout
{
    const char* name;
    const char* meaning;
    std::uint32_t size;
    const Field* first;
    std::size_t count;

    const Field* begin() const { return first; }
    const Field* end() const { return first + count; }
    const Field* Find(std::string_view member) const;
};

/// The layout of a structure; declared for those that several families share, else used in its family's file
/// only. Others find layouts through ConfigCommands.
template<typename Structure>
const Layout& LayoutOf();

template<typename Member>
constexpr Kind KindOf()
{
    using Element = std::remove_extent_t<Member>;
    if (std::is_class_v<Element>)
        return Kind::Nested;
    if (std::is_same_v<Element, char>)
        return Kind::Text;
    if (std::is_same_v<Element, std::uint8_t>)
        return std::is_array_v<Member> ? Kind::Octets : Kind::U8;
    if (std::is_same_v<Element, std::uint16_t>)
        return Kind::U16;
    return std::is_same_v<Element, std::int32_t> ? Kind::I32 : Kind::U32;
}

template<typename Member>
constexpr Field MakeField(std::string_view name, std::size_t offset)
{
    using Element = std::remove_extent_t<Member>;
    constexpr bool kArray = std::is_array_v<Member> && sizeof(Element) > 1;
    Field field;
    field.name = name.data();
    field.kind = KindOf<Member>();
    field.offset = static_cast<std::uint32_t>(offset);
    field.size = kArray ? sizeof(Element) : sizeof(Member);
    field.count = sizeof(Member) / field.size;
    field.max = sizeof(Element) == 1 ? 0xFF : sizeof(Element) == 2 ? 0xFFFF : 0xFFFFFFFF;
    if constexpr (std::is_class_v<Element>)
        field.nested = &LayoutOf<Element>;
    if (name == "size")
        field.kind = Kind::Size;
    if (name.substr(0, 8) == "reserved")
        field.kind = Kind::Reserved;
    return field;
}

} // namespace devices

/// The layout of a structure, written in the namespace devices: what it is, and a line a member.
#define QXNET_LAYOUT(Structure, meaning, ...)                                                                \
    template<>                                                                                               \
    const Layout& LayoutOf<Structure>()                                                                      \
    {                                                                                                        \
        using Self = Structure;                                                                              \
        static constexpr Field fields[] = {__VA_ARGS__};                                                     \
        static constexpr Layout layout{#Structure, meaning, sizeof(Self), fields,                            \
                                       sizeof(fields) / sizeof(*fields)};                                    \
        return layout;                                                                                       \
    }

/// A member of the structure of the surrounding QXNET_LAYOUT. "size" and "reserved..." are known by their
/// names.
#define QXNET_FIELD(member) MakeField<decltype(Self::member)>(#member, offsetof(Self, member))
