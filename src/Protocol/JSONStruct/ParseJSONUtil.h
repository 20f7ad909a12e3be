#pragma once

#include "Protocol/JSONStruct/IJSONStruct.h"
#include "Protocol/JSONStruct/JSONTree.h"

#include "Base/Log.h"

#include <functional>
#include <string>
#include <type_traits>

/// From body to message and back. Any thread.
namespace protocol {

/// Fills the structure from the member of the body that its key names; other members are ignored. False for
/// an empty body (without a log line) and, after exactly one line, for one that does not hold the structure;
/// the structure is then unchanged.
[[nodiscard]] bool ParseJSONStr(IJSONStruct& message, const std::string& body);

/// Fills the structure from a text that is the structure's value alone, for example the data of a
/// notification.
[[nodiscard]] bool ParseJSONValue(IJSONStruct& message, const std::string& value);

/// The body of a structure: {"key": {...}}, or the structure alone when its key is empty.
std::string WriteJSONStr(const IJSONStruct& message);

/// The tree of a body; nothing for an empty one and, after the line about it at the given place, for one that
/// is no JSON. Of a flood of such bodies not each has its line; see Base/RateLimit.h.
json::Tree ParseBody(const std::string& body, const Base::LogLocation& place);

/// The line about a body without the key's item. text gives the body, when the line is written.
void LogMissingItem(const char* key, const std::function<std::string()>& text,
                    const Base::LogLocation& place);

/// ParseJSONStr by its name among the message structures.
template<typename T>
[[nodiscard]] bool TParseJSONStr(T& message, const std::string& body)
{
    static_assert(std::is_base_of_v<IJSONStruct, T>);
    return ParseJSONStr(message, body);
}

} // namespace protocol

/// The place of a call, for ParseBody.
#define PROTOCOL_PLACE                                                                                       \
    ::Base::LogLocation                                                                                      \
    {                                                                                                        \
        __FILE__, __LINE__, BASE_LOG_FUNCTION                                                                \
    }
