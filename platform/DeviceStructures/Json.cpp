#include "DeviceStructures/Json.h"

#include "Base/StringUtil.h"

#include <cjson/cJSON.h>

#include <cmath>
#include <memory>

namespace devices {

namespace {

using Base::StringUtil::Format;
using Fault = std::optional<std::string>;

struct Release
{
    void operator()(cJSON* item) const { cJSON_Delete(item); }
    void operator()(char* text) const { cJSON_free(text); }
};

cJSON* WriteStructure(const Layout& layout, const std::uint8_t* bytes);
Fault ReadStructure(const Layout& layout, const cJSON* object, std::uint8_t* bytes, const std::string& path);

cJSON* WriteElement(const Field& field, const std::uint8_t* at)
{
    switch (field.kind) {
    case Kind::Nested:
        return WriteStructure(field.nested(), at);
    case Kind::Text:
        return cJSON_CreateString(ReadText(field, at).c_str());
    case Kind::Octets:
        return cJSON_CreateString(ReadHex(field, at).c_str());
    case Kind::Numbers: {
        cJSON* list = cJSON_CreateArray();
        for (unsigned number : ReadNumbers(field, at))
            cJSON_AddItemToArray(list, cJSON_CreateNumber(number));
        return list;
    }
    default:
        return cJSON_CreateNumber(static_cast<double>(ReadNumber(field, at)));
    }
}

cJSON* WriteMember(const Field& field, const std::uint8_t* at)
{
    if (field.count == 1)
        return WriteElement(field, at);
    cJSON* list = cJSON_CreateArray();
    for (std::uint32_t i = 0; i < field.count; ++i)
        cJSON_AddItemToArray(list, WriteElement(field, at + i * field.size));
    return list;
}

cJSON* WriteStructure(const Layout& layout, const std::uint8_t* bytes)
{
    cJSON* object = cJSON_CreateObject();
    for (const Field& field : layout)
        if (IsShown(field))
            cJSON_AddItemToObject(object, field.name, WriteMember(field, bytes + field.offset));
    return object;
}

Fault ReadInteger(const Field& field, const cJSON* item, std::uint8_t* at)
{
    const double value = item->valuedouble;
    if (!cJSON_IsNumber(item) || value != std::floor(value) || std::fabs(value) > 1e15)
        return "is no whole number";
    const auto number = static_cast<std::int64_t>(value);
    if (number < field.min || number > field.max)
        return OutOfRange(field, number);
    WriteNumber(field, at, number);
    return std::nullopt;
}

Fault ReadSet(const Field& field, const cJSON* list, std::uint8_t* at)
{
    const unsigned last = field.size * 8;
    const std::string fault = Format("is no list of numbers from 1 to %u", last);
    if (!cJSON_IsArray(list))
        return fault;
    std::vector<unsigned> numbers;
    for (const cJSON* item = list->child; item; item = item->next) {
        const double value = item->valuedouble;
        if (!cJSON_IsNumber(item) || !(value >= 1 && value <= last) || value != std::floor(value))
            return fault;
        numbers.push_back(static_cast<unsigned>(value));
    }
    return WriteNumbers(field, at, numbers) ? std::nullopt : Fault(fault);
}

Fault ReadString(const Field& field, const cJSON* item, std::uint8_t* at)
{
    if (!cJSON_IsString(item))
        return "is no text";
    if (field.kind == Kind::Octets)
        return WriteHex(field, at, item->valuestring)
                   ? std::nullopt
                   : Fault(Format("needs %u octets in hexadecimal digits", field.size));
    return WriteText(field, at, item->valuestring) ? std::nullopt
                                                   : Fault(Format("is longer than %u bytes", field.size - 1));
}

Fault ReadElement(const Field& field, const cJSON* item, std::uint8_t* at, const std::string& path)
{
    if (field.kind == Kind::Nested)
        return ReadStructure(field.nested(), item, at, path + ".");
    const Fault fault = field.kind == Kind::Numbers ? ReadSet(field, item, at)
                        : IsNumber(field)           ? ReadInteger(field, item, at)
                                                    : ReadString(field, item, at);
    return fault ? path + ": " + *fault : fault;
}

Fault ReadMember(const Field& field, const cJSON* item, std::uint8_t* at, const std::string& path)
{
    if (field.count == 1)
        return ReadElement(field, item, at, path);
    if (!cJSON_IsArray(item) || static_cast<std::uint32_t>(cJSON_GetArraySize(item)) > field.count)
        return path + Format(": is no list of at most %u", field.count);
    std::uint32_t i = 0;
    for (const cJSON* element = item->child; element; element = element->next, ++i)
        if (Fault fault = ReadElement(field, element, at + i * field.size, path + Format("[%u]", i)))
            return fault;
    return std::nullopt;
}

Fault ReadStructure(const Layout& layout, const cJSON* object, std::uint8_t* bytes, const std::string& path)
{
    if (!cJSON_IsObject(object))
        return path + (path.empty() ? "the JSON" : "") + " is no object";
    for (const cJSON* item = object->child; item; item = item->next) {
        const Field* field = layout.Find(item->string);
        if (!field || field->kind == Kind::Size || field->kind == Kind::Reserved)
            return path + item->string + ": no such member";
        if (Fault fault = ReadMember(*field, item, bytes + field->offset, path + field->name))
            return fault;
    }
    return std::nullopt;
}

} // namespace

std::string ToJson(const Layout& layout, const std::uint8_t* bytes)
{
    const std::unique_ptr<cJSON, Release> object(WriteStructure(layout, bytes));
    const std::unique_ptr<char, Release> text(cJSON_PrintUnformatted(object.get()));
    return text ? text.get() : "";
}

std::optional<std::string> FromJson(const Layout& layout, std::string_view text, Octets& bytes)
{
    const char* end = nullptr;
    const std::unique_ptr<cJSON, Release> object(
        cJSON_ParseWithLengthOpts(text.data(), text.size(), &end, false));
    if (!object)
        return "the text is no JSON";
    if (text.find_first_not_of(" \t\r\n", static_cast<std::size_t>(end - text.data())) != text.npos)
        return "something follows the JSON";
    Octets changed = bytes;
    if (Fault fault = ReadStructure(layout, object.get(), changed.data(), ""))
        return fault;
    if (Fault fault = Check(layout, changed.data(), changed.size()))
        return fault;
    bytes = std::move(changed);
    return std::nullopt;
}

} // namespace devices
