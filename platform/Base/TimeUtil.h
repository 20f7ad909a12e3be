#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Date-time texts as the databases and messages hold them: "YYYY-MM-DD HH:MM:SS", universal time, always 19
/// characters, so that they sort as text in the order of time.
namespace Base::TimeUtil {

/// 0000-01-01 00:00:00 and 9999-12-31 23:59:59 as seconds since 1970.
constexpr std::int64_t kFirstSecond = -62167219200;
constexpr std::int64_t kLastSecond = 253402300799;

/// The text of a time in seconds since 1970. A time outside the range gives the nearer end of it, so that the
/// order of texts stays the order of times.
std::string TimeT2StrDatetime(std::int64_t seconds);

/// The time of a text in exactly the form above with a date that exists; nothing for any other text.
std::optional<std::int64_t> StrDatetime2TimeT(std::string_view text);

} // namespace Base::TimeUtil
