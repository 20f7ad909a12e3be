#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace devicetool {

/// Where a device is, and who logs in: "USER@HOST:PORT", an IPv6 address in brackets. The user may hold "@".
struct Target
{
    std::string user;
    std::string host;
    std::uint16_t port = 0;
};

std::optional<Target> ParseTarget(const std::string& text);

/// One command line. Options may stand anywhere; what follows "--" is no option.
struct Invocation
{
    std::map<std::string, std::string> options; ///< by name with "--"; flags have an empty value
    std::optional<Target> target;               ///< none for commands without a device
    std::string command;
    std::vector<std::string> words; ///< of the command

    bool Has(const std::string& option) const { return options.count(option) != 0; }
    std::string Value(const std::string& option) const;
};

/// None, with the reason in error, for an unknown option, a missing value or a wrong target.
std::optional<Invocation> ParseInvocation(const std::vector<std::string>& arguments, std::string& error);

/// A decimal number within a range; none for any other text.
std::optional<std::uint32_t> ParseNumber(const std::string& text, std::uint32_t lowest,
                                         std::uint32_t highest);

} // namespace devicetool
