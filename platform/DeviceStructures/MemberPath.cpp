#include "DeviceStructures/MemberPath.h"

#include "Base/StringUtil.h"

#include <charconv>

namespace devices {

namespace {

using Base::StringUtil::Format;
using Base::StringUtil::Split;
using Fault = std::optional<std::string>;

template<typename Number>
std::optional<Number> ParseWhole(std::string_view text)
{
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

struct Span
{
    unsigned first;
    unsigned last;
};

/// "3" or "3-5".
std::optional<Span> ParseSpan(std::string_view text)
{
    const auto dash = text.find('-');
    const auto first = ParseWhole<unsigned>(text.substr(0, dash));
    const auto last = dash == std::string_view::npos ? first : ParseWhole<unsigned>(text.substr(dash + 1));
    if (!first || !last || *first > *last)
        return std::nullopt;
    return Span{*first, *last};
}

std::optional<std::int64_t> ParseValue(const Field& field, std::string_view text)
{
    const std::vector<std::string> names = Split(field.names, '|');
    for (std::size_t i = 0; i < names.size(); ++i)
        if (!names[i].empty() && names[i] == text)
            return static_cast<std::int64_t>(i);
    return ParseWhole<std::int64_t>(text);
}

Fault WriteValue(const Field& field, std::uint8_t* at, std::string_view text)
{
    if (field.kind == Kind::Text)
        return WriteText(field, at, text) ? std::nullopt
                                          : Fault(Format("the text is longer than %u bytes", field.size - 1));
    if (field.kind == Kind::Octets)
        return WriteHex(field, at, text) ? std::nullopt
                                         : Fault(Format("needs %u octets in hexadecimal digits", field.size));
    if (field.kind == Kind::Numbers) {
        const auto numbers = ParseNumbers(text, field.size * 8);
        return numbers && WriteNumbers(field, at, *numbers)
                   ? std::nullopt
                   : Fault(Format("needs numbers from 1 to %u, such as 1-4,7, or none", field.size * 8));
    }
    const auto value = ParseValue(field, text);
    if (!value)
        return "\"" + std::string(text) + "\" is no value of it";
    if (*value < field.min || *value > field.max)
        return OutOfRange(field, *value);
    WriteNumber(field, at, *value);
    return std::nullopt;
}

/// One step of a path: a member, the elements of it that are meant, and what follows.
struct Step
{
    std::string_view name;
    std::string_view elements; ///< between the brackets; empty without
    std::string_view rest;
};

std::optional<Step> FirstStep(std::string_view path)
{
    const auto dot = path.find('.');
    Step step{
        path.substr(0, dot), {}, dot == std::string_view::npos ? std::string_view() : path.substr(dot + 1)};
    if (const auto bracket = step.name.find('['); bracket != std::string_view::npos) {
        if (step.name.back() != ']' || step.name.size() - bracket < 3)
            return std::nullopt;
        step.elements = step.name.substr(bracket + 1, step.name.size() - bracket - 2);
        step.name = step.name.substr(0, bracket);
    }
    return step;
}

Fault WriteAt(const Layout& layout, std::uint8_t* bytes, std::string_view path, std::string_view value)
{
    const auto step = FirstStep(path);
    const Field* field = step ? layout.Find(step->name) : nullptr;
    if (!field || field->kind == Kind::Size || field->kind == Kind::Reserved)
        return "no such member";
    if (field->secret)
        return "is secret and taken from a file only";
    if ((field->kind == Kind::Nested) == step->rest.empty())
        return field->kind == Kind::Nested ? "is a structure; name a member of it" : "has no members";
    const auto span = step->elements.empty() ? Span{0, field->count - 1} : ParseSpan(step->elements);
    if (!span || span->last >= field->count)
        return Format("elements count from 0 to %u", field->count - 1);
    for (unsigned i = span->first; i <= span->last; ++i) {
        std::uint8_t* at = bytes + field->offset + i * field->size;
        if (Fault fault = field->nested ? WriteAt(field->nested(), at, step->rest, value)
                                        : WriteValue(*field, at, value))
            return fault;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> SetMember(const Layout& layout, Octets& bytes, std::string_view path,
                                     std::string_view value)
{
    Octets changed = bytes;
    if (const Fault fault = WriteAt(layout, changed.data(), path, value))
        return std::string(path) + ": " + *fault;
    if (Fault fault = Check(layout, changed.data(), changed.size()))
        return fault;
    bytes = std::move(changed);
    return std::nullopt;
}

std::string_view ValueName(const Field& field, std::int64_t value)
{
    std::string_view names = field.names;
    for (; value > 0 && !names.empty(); --value) {
        const auto bar = names.find('|');
        names = bar == std::string_view::npos ? std::string_view() : names.substr(bar + 1);
    }
    return names.substr(0, names.find('|'));
}

std::optional<std::vector<unsigned>> ParseNumbers(std::string_view text, unsigned last)
{
    std::vector<bool> chosen(last + 1);
    if (text != "none") {
        for (const std::string& part : Split(text, ',')) {
            const auto span = ParseSpan(part);
            if (!span || span->first < 1 || span->last > last)
                return std::nullopt;
            for (unsigned number = span->first; number <= span->last; ++number)
                chosen[number] = true;
        }
    }
    std::vector<unsigned> numbers;
    for (unsigned number = 1; number <= last; ++number)
        if (chosen[number])
            numbers.push_back(number);
    return numbers;
}

std::string FormatNumbers(const std::vector<unsigned>& numbers)
{
    std::string text;
    for (std::size_t i = 0; i < numbers.size();) {
        std::size_t last = i;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1)
            ++last;
        text += (text.empty() ? "" : ",") + std::to_string(numbers[i]);
        if (last > i)
            text += "-" + std::to_string(numbers[last]);
        i = last + 1;
    }
    return text.empty() ? "none" : text;
}

} // namespace devices
