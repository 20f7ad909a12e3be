#pragma once

#include "Protocol/JSONStruct/JSONKinds.h"

#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

/// Makes values for messages from their field lists: every field gets one that differs from its default, and
/// from the values of the other fields as far as its type allows.
class MessageSamples
{
public:
    template<typename T>
    void Fill(T& value)
    {
        if constexpr (protocol::HasFields<T>::value)
            protocol::ForEachField<T>([&](const auto& field) { Fill(value.*field.member); });
        else if constexpr (std::is_enum_v<T>)
            FillEnum(JSONEnum(T{}), value);
        else
            FillValue(value);
    }

private:
    int Next() { return ++m_count; }

    void FillValue(std::string& value) { value = "text \"" + std::to_string(Next()) + "\" \xC3\xA9\\\n"; }
    void FillValue(bool& value) { value = !value; }
    void FillValue(double& value) { value = 0.1 + Next(); }
    void FillValue(protocol::Seconds& value) { value.count = 1700000000 + Next(); }
    void FillValue(protocol::RawJSON& value)
    {
        value.text = "{\"any\":[" + std::to_string(Next()) + ",0.1]}";
    }
    void FillValue(protocol::NamedValues& values)
    {
        Fill(values["name"]);
        Fill(values["Name \""]);
    }
    void FillValue(std::int64_t& value) { value = 9007199254740991 - Next(); }
    template<typename T>
    std::enable_if_t<std::is_integral_v<T>> FillValue(T& value)
    {
        value = static_cast<T>(100 + Next());
    }
    template<typename T>
    void FillValue(std::optional<T>& value)
    {
        Fill(value.emplace());
    }
    template<typename T>
    void FillValue(std::vector<T>& values)
    {
        values.resize(2);
        for (T& value : values)
            Fill(value);
    }

    template<typename E>
    static void FillEnum(const protocol::EnumRange<E>& range, E& value)
    {
        value = value == range.last ? range.first : range.last;
    }
    template<typename E, typename Texts>
    static void FillEnum(const Texts& texts, E& value)
    {
        value = value == texts.back().value ? texts.front().value : texts.back().value;
    }

    int m_count = 0;
};
