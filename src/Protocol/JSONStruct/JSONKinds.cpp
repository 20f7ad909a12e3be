#include "Protocol/JSONStruct/JSONKinds.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "Base/TimeUtil.h"
#include "Protocol/JSONStruct/LoggableText.h"

#include <charconv>
#include <cmath>
#include <new>
#include <string_view>

namespace protocol::json {

namespace {

constexpr double kLargestExact = 9007199254740991.0; // 2^53 - 1

/// The integer of an item, if it is one and fits the type.
template<typename T>
std::optional<T> IntegerOf(const cJSON* item)
{
    if (cJSON_IsString(item)) {
        const std::string_view text = item->valuestring;
        T value = 0;
        const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
        const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
        return whole ? std::optional<T>(value) : std::nullopt;
    }
    const double number = cJSON_IsNumber(item) ? item->valuedouble : std::nan("");
    const bool fits = std::trunc(number) == number && std::fabs(number) <= kLargestExact &&
                      (std::is_signed_v<T> || number >= 0);
    return fits ? std::optional<T>(static_cast<T>(number)) : std::nullopt;
}

template<typename T>
bool ReadIntegerOf(const cJSON* item, T least, T greatest, T& value, ReadError& error)
{
    const auto number = IntegerOf<T>(item);
    if (!number || *number < least || *number > greatest)
        return Refuse(error, "expected an integer from " + std::to_string(least) + " to " +
                                 std::to_string(greatest));
    value = *number;
    return true;
}

} // namespace

bool ReadText(const cJSON* item, std::string& value, ReadError& error)
{
    if (!cJSON_IsString(item))
        return Refuse(error, "expected a text");
    value = item->valuestring;
    return true;
}

bool ReadBool(const cJSON* item, bool& value, ReadError& error)
{
    if (!cJSON_IsBool(item))
        return Refuse(error, "expected true or false");
    value = cJSON_IsTrue(item);
    return true;
}

bool ReadDouble(const cJSON* item, double& value, ReadError& error)
{
    if (!cJSON_IsNumber(item) || !std::isfinite(item->valuedouble))
        return Refuse(error, "expected a number");
    value = item->valuedouble;
    return true;
}

bool ReadSeconds(const cJSON* item, std::int64_t& value, ReadError& error)
{
    const auto fromText =
        cJSON_IsString(item) ? Base::TimeUtil::StrDatetime2TimeT(item->valuestring) : std::nullopt;
    const auto seconds = fromText               ? fromText
                         : cJSON_IsNumber(item) ? IntegerOf<std::int64_t>(item)
                                                : std::nullopt;
    if (!seconds || *seconds < Base::TimeUtil::kFirstSecond || *seconds > Base::TimeUtil::kLastSecond)
        return Refuse(error, "expected a time");
    value = *seconds;
    return true;
}

bool ReadNamedValues(const cJSON* item, NamedValues& values, ReadError& error)
{
    if (!cJSON_IsObject(item))
        return Refuse(error, "expected an object");
    for (const cJSON* child = item->child; child; child = child->next) {
        if (!values.try_emplace(child->string, RawJSON{PrintExact(child)}).second) {
            Refuse(error, "stands there twice");
            return RefuseUnder(child->string, error);
        }
    }
    return true;
}

Tree NewNamedValues(const NamedValues& values)
{
    Tree object = NewObject();
    for (const auto& [name, value] : values)
        if (!cJSON_AddItemToObject(object.get(), name.c_str(), NewRaw(value.text).release()))
            throw std::bad_alloc();
    return object;
}

bool ReadInteger(const cJSON* item, long long least, long long greatest, long long& value, ReadError& error)
{
    return ReadIntegerOf(item, least, greatest, value, error);
}

bool ReadInteger(const cJSON* item, unsigned long long least, unsigned long long greatest,
                 unsigned long long& value, ReadError& error)
{
    return ReadIntegerOf(item, least, greatest, value, error);
}

bool Refuse(ReadError& error, std::string reason)
{
    error.reason = std::move(reason);
    return false;
}

bool RefuseUnder(const char* key, ReadError& error)
{
    const bool joined = error.path.empty() || error.path.front() == '[';
    error.path = key + (joined ? error.path : "." + error.path);
    return false;
}

bool RefuseUnder(std::size_t index, ReadError& error)
{
    const bool joined = error.path.empty() || error.path.front() == '[';
    error.path = "[" + std::to_string(index) + "]" + (joined ? error.path : "." + error.path);
    return false;
}

void LogReadFailure(const char* message, const cJSON* item, const ReadError& error)
{
    const char* const key = error.path.empty() ? message : error.path.c_str();
    BASE_LIMITED(Base::CFaultLimit, BASE_ERROR,
                 "Failed to read message [%s]. Key: [%s]. Error info: [%s]. Text: [%s].", message, key,
                 error.reason.c_str(), LoggableText(PrintText(item)).c_str());
}

} // namespace protocol::json
