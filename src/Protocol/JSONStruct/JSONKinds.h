#pragma once

#include "Protocol/JSONStruct/JSONFields.h"
#include "Protocol/JSONStruct/JSONTree.h"

#include <cstdint>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// The kinds of field: text, bool, integers, double, enumerations, Seconds, RawJSON, std::optional,
/// std::vector, NamedValues, and structures that have a list of fields themselves.
namespace protocol {

/// A time in seconds since 1970. Written as a number; read from a number or from a date-time text of
/// Base/TimeUtil.h.
struct Seconds
{
    std::int64_t count = 0;
};
inline bool operator==(const Seconds& left, const Seconds& right)
{
    return left.count == right.count;
}

/// Any JSON value, kept as its text for a later reader. Numbers keep the precision of a double.
struct RawJSON
{
    std::string text = "null";
};
inline bool operator==(const RawJSON& left, const RawJSON& right)
{
    return left.text == right.text;
}

/// An object whose members' names a later reader knows; each name, in its exact letters, stands there once.
using NamedValues = std::map<std::string, RawJSON>;

/// An enumeration whose JSON is its number, from first to last. Declared beside the enumeration, to be found
/// by its type:
///     constexpr EnumRange<FileType> JSONEnum(FileType) { return {FileType::Picture, FileType::Video}; }
template<typename E>
struct EnumRange
{
    E first;
    E last;
};

/// One text of an enumeration whose JSON is a text. JSONEnum then returns a std::array of these.
template<typename E>
struct EnumText
{
    E value;
    const char* text;
};

namespace json {

/// Why a structure could not be read, and the path of keys down to the field.
struct ReadError
{
    std::string path;
    std::string reason;
};

bool ReadText(const cJSON* item, std::string& value, ReadError& error);
bool ReadBool(const cJSON* item, bool& value, ReadError& error);
bool ReadDouble(const cJSON* item, double& value, ReadError& error);
bool ReadSeconds(const cJSON* item, std::int64_t& value, ReadError& error);
bool ReadNamedValues(const cJSON* item, NamedValues& values, ReadError& error);
Tree NewNamedValues(const NamedValues& values);

/// A number without fraction, or a decimal text, from least to greatest. A number beyond 2^53 - 1 is refused,
/// since it may have been rounded on its way.
bool ReadInteger(const cJSON* item, long long least, long long greatest, long long& value, ReadError& error);
bool ReadInteger(const cJSON* item, unsigned long long least, unsigned long long greatest,
                 unsigned long long& value, ReadError& error);

/// Notes the failure and returns false.
bool Refuse(ReadError& error, std::string reason);
/// Puts the key or index in front of the error's path and returns false.
bool RefuseUnder(const char* key, ReadError& error);
bool RefuseUnder(std::size_t index, ReadError& error);

/// Writes the one line about a message that could not be read from the item.
void LogReadFailure(const char* message, const cJSON* item, const ReadError& error);

/// Kind<T>::Read fills a value from an item, Kind<T>::Write makes the item of a value.
template<typename T, typename = void>
struct Kind;

template<>
struct Kind<std::string>
{
    static bool Read(const cJSON* item, std::string& value, ReadError& error)
    {
        return ReadText(item, value, error);
    }
    static Tree Write(const std::string& value) { return NewText(value); }
};

template<>
struct Kind<bool>
{
    static bool Read(const cJSON* item, bool& value, ReadError& error)
    {
        return ReadBool(item, value, error);
    }
    static Tree Write(bool value) { return NewBool(value); }
};

template<>
struct Kind<double>
{
    static bool Read(const cJSON* item, double& value, ReadError& error)
    {
        return ReadDouble(item, value, error);
    }
    static Tree Write(double value) { return NewDouble(value); }
};

template<>
struct Kind<Seconds>
{
    static bool Read(const cJSON* item, Seconds& value, ReadError& error)
    {
        return ReadSeconds(item, value.count, error);
    }
    static Tree Write(const Seconds& value) { return NewInteger(static_cast<long long>(value.count)); }
};

template<>
struct Kind<RawJSON>
{
    static bool Read(const cJSON* item, RawJSON& value, ReadError&)
    {
        value.text = PrintExact(item);
        return true;
    }
    static Tree Write(const RawJSON& value) { return NewRaw(value.text); }
};

template<typename T>
struct Kind<T, std::enable_if_t<std::is_integral_v<T>>>
{
    using Widest = std::conditional_t<std::is_signed_v<T>, long long, unsigned long long>;

    static bool Read(const cJSON* item, T& value, ReadError& error)
    {
        Widest wide = 0;
        if (!ReadInteger(item, Widest{std::numeric_limits<T>::min()}, Widest{std::numeric_limits<T>::max()},
                         wide, error))
            return false;
        value = static_cast<T>(wide);
        return true;
    }
    static Tree Write(T value) { return NewInteger(Widest{value}); }
};

template<typename E>
struct Kind<E, std::enable_if_t<std::is_enum_v<E>>>
{
    static bool Read(const cJSON* item, E& value, ReadError& error)
    {
        return ReadBy(JSONEnum(E{}), item, value, error);
    }
    static Tree Write(E value) { return WriteBy(JSONEnum(E{}), value); }

private:
    static bool ReadBy(const EnumRange<E>& range, const cJSON* item, E& value, ReadError& error)
    {
        long long number = 0;
        if (!ReadInteger(item, static_cast<long long>(range.first), static_cast<long long>(range.last),
                         number, error))
            return false;
        value = static_cast<E>(number);
        return true;
    }

    template<typename Texts>
    static bool ReadBy(const Texts& texts, const cJSON* item, E& value, ReadError& error)
    {
        std::string text;
        if (!ReadText(item, text, error))
            return false;
        for (const EnumText<E>& entry : texts) {
            if (text == entry.text) {
                value = entry.value;
                return true;
            }
        }
        return Refuse(error, "a text that is not among the allowed ones");
    }

    static Tree WriteBy(const EnumRange<E>&, E value) { return NewInteger(static_cast<long long>(value)); }

    template<typename Texts>
    static Tree WriteBy(const Texts& texts, E value)
    {
        for (const EnumText<E>& entry : texts)
            if (entry.value == value)
                return NewText(entry.text);
        return NewText({});
    }
};

template<typename T>
struct Kind<std::optional<T>>
{
    static bool Read(const cJSON* item, std::optional<T>& value, ReadError& error)
    {
        return Kind<T>::Read(item, value.emplace(), error);
    }
    static Tree Write(const std::optional<T>& value) { return Kind<T>::Write(*value); }
};

template<typename T>
struct Kind<std::vector<T>>
{
    static bool Read(const cJSON* item, std::vector<T>& values, ReadError& error)
    {
        if (!cJSON_IsArray(item))
            return Refuse(error, "expected a list");
        for (const cJSON* child = item->child; child; child = child->next) {
            T value{};
            if (!Kind<T>::Read(child, value, error))
                return RefuseUnder(values.size(), error);
            values.push_back(std::move(value));
        }
        return true;
    }

    static Tree Write(const std::vector<T>& values)
    {
        Tree array = NewArray();
        for (const T& value : values)
            Append(array.get(), Kind<T>::Write(value));
        return array;
    }
};

template<>
struct Kind<NamedValues>
{
    static bool Read(const cJSON* item, NamedValues& values, ReadError& error)
    {
        return ReadNamedValues(item, values, error);
    }
    static Tree Write(const NamedValues& values) { return NewNamedValues(values); }
};

template<typename T>
bool IsAbsent(const T&)
{
    return false;
}
template<typename T>
bool IsAbsent(const std::optional<T>& value)
{
    return !value;
}

template<typename T>
struct Kind<T, std::enable_if_t<HasFields<T>::value>>
{
    using Fields = decltype(T::Fields());

    static bool Read(const cJSON* item, T& value, ReadError& error)
    {
        if constexpr (IsWhole<Fields>::value) {
            return ReadMember(item, value.*T::Fields().member, error);
        } else {
            if (!cJSON_IsObject(item))
                return Refuse(error, "expected an object");
            bool good = true;
            ForEachField<T>([&](const auto& field) { good = good && ReadField(item, field, value, error); });
            return good;
        }
    }

    static Tree Write(const T& value)
    {
        if constexpr (IsWhole<Fields>::value) {
            return WriteMember(value.*T::Fields().member);
        } else {
            Tree object = NewObject();
            ForEachField<T>([&](const auto& field) {
                if (!IsAbsent(value.*field.member))
                    Attach(object.get(), field.key, WriteMember(value.*field.member));
            });
            return object;
        }
    }

private:
    template<typename M>
    static bool ReadMember(const cJSON* item, M& member, ReadError& error)
    {
        return Kind<M>::Read(item, member, error);
    }
    template<typename M>
    static Tree WriteMember(const M& member)
    {
        return Kind<M>::Write(member);
    }

    template<typename F>
    static bool ReadField(const cJSON* object, const F& field, T& value, ReadError& error)
    {
        const cJSON* const item = Member(object, field.key);
        if (!field.mandatory && (!item || cJSON_IsNull(item)))
            return true;
        if (!item)
            Refuse(error, "missing");
        return (item && ReadMember(item, value.*field.member, error)) || RefuseUnder(field.key, error);
    }
};

} // namespace json
} // namespace protocol
