#include "ApiMessages.h"

#include "Protocol/JSONStruct/AllMessages.h"
#include "logical/System/DatabaseSession/VideoSystemConfigStruct.h"

#include <algorithm>

using namespace protocol;

namespace {

using Names = std::vector<std::string>;

template<typename E>
std::string EnumKind(const EnumRange<E>& range)
{
    return std::to_string(static_cast<int>(range.first)) + " to " +
           std::to_string(static_cast<int>(range.last));
}

template<typename Texts>
std::string EnumKind(const Texts& texts)
{
    std::string kind;
    for (const auto& entry : texts)
        kind += (kind.empty() ? "\"" : " or \"") + std::string(entry.text) + "\"";
    return kind;
}

template<typename T>
struct IsList : std::false_type
{};
template<typename T>
struct IsList<std::vector<T>> : std::true_type
{};
template<typename T>
struct IsOptional : std::false_type
{};
template<typename T>
struct IsOptional<std::optional<T>> : std::true_type
{};

/// The name of a kind of value, as the page has it.
template<typename M>
std::string KindOf()
{
    if constexpr (IsOptional<M>::value)
        return KindOf<typename M::value_type>();
    else if constexpr (IsList<M>::value)
        return "list of " + KindOf<typename M::value_type>();
    else if constexpr (HasFields<M>::value)
        return "object";
    else if constexpr (std::is_enum_v<M>)
        return EnumKind(JSONEnum(M{}));
    else if constexpr (std::is_same_v<M, std::string>)
        return "text";
    else if constexpr (std::is_same_v<M, bool>)
        return "flag";
    else if constexpr (std::is_same_v<M, double>)
        return "number";
    else if constexpr (std::is_same_v<M, Seconds>)
        return "time";
    else if constexpr (std::is_same_v<M, RawJSON>)
        return "any";
    else
        return (std::is_signed_v<M> ? "int" : "uint") + std::to_string(8 * sizeof(M));
}

std::string SettingKind(const video::SettingField<bool>&)
{
    return "flag";
}

/// "1, 6 to 45 or 100"
std::string SettingKind(const video::SettingField<std::int32_t>& field)
{
    Names spans;
    for (const auto [least, greatest] : field.take)
        spans.push_back(std::to_string(least) +
                        (least == greatest ? std::string() : " to " + std::to_string(greatest)));
    spans.erase(std::unique(spans.begin(), spans.end()), spans.end());
    std::string kind = spans.front();
    for (std::size_t i = 1; i < spans.size(); ++i)
        kind += (i + 1 == spans.size() ? " or " : ", ") + spans[i];
    return kind;
}

/// The rows of the settings, none of which needs to be there.
void AddSettings(Names& rows)
{
    video::ForEachSetting([&](const auto& field) {
        rows.push_back(std::string(field.name) + ", " + SettingKind(field) + ", no");
    });
    for (const char* folder : {"videoSaveFolder", "captureSaveFolder"})
        rows.push_back(std::string(folder) + ", text, no");
}

template<typename T>
void AddRows(const std::string& prefix, Names& rows);

/// The rows of what a member holds itself.
template<typename M>
void AddInnerRows(const std::string& key, Names& rows)
{
    if constexpr (std::is_same_v<M, NamedValues>)
        AddSettings(rows);
    else if constexpr (IsOptional<M>::value)
        AddInnerRows<typename M::value_type>(key, rows);
    else if constexpr (IsList<M>::value)
        AddInnerRows<typename M::value_type>(key + "[]", rows);
    else if constexpr (HasFields<M>::value)
        AddRows<M>(key + ".", rows);
}

/// "key, kind, must" of each field and of the fields within it.
template<typename T>
void AddRows(const std::string& prefix, Names& rows)
{
    ForEachField<T>([&](const auto& field) {
        using Member = std::decay_t<decltype(T{}.*field.member)>;
        if constexpr (IsWhole<std::decay_t<decltype(field)>>::value) {
            AddInnerRows<Member>("", rows);
        } else {
            rows.push_back(prefix + field.key + ", " + KindOf<Member>() + ", " +
                           (field.mandatory ? "yes" : "no"));
            AddInnerRows<Member>(prefix + field.key, rows);
        }
    });
}

template<typename T>
MessageInfo Describe()
{
    Names rows;
    AddRows<T>("", rows);
    return {T::kKey, rows, std::is_base_of_v<ILPCData, T>,
            []() -> std::unique_ptr<IJSONStruct> { return std::make_unique<T>(); }};
}

template<typename... Messages>
std::vector<MessageInfo> Describe(MessageList<Messages...>)
{
    return {Describe<Messages>()...};
}

} // namespace

const std::vector<MessageInfo>& Messages()
{
    static const std::vector<MessageInfo> messages = Describe(AllMessages());
    return messages;
}
