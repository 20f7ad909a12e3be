#include "device/Invocation.h"

#include <algorithm>
#include <charconv>

namespace devicetool {

namespace {

constexpr struct
{
    const char* name;
    bool hasValue;
} kOptions[] = {{"--help", false},         {"--structures", false}, {"--tls", false},     {"--json", false},
                {"--timeout", true},       {"--channel", true},     {"--channels", true}, {"--from", true},
                {"--password-file", true}, {"--trust-file", true}};

/// Takes the option at an index, and moves the index behind it.
bool TakeOption(const std::vector<std::string>& arguments, std::size_t& at, Invocation& invocation,
                std::string& error)
{
    const std::string& name = arguments[at++];
    const auto* known = std::find_if(std::begin(kOptions), std::end(kOptions),
                                     [&](const auto& option) { return name == option.name; });
    if (known == std::end(kOptions))
        error = "unknown option " + name;
    else if (invocation.Has(name))
        error = name + " is given twice";
    else if (known->hasValue && at == arguments.size())
        error = name + " needs a value";
    else
        invocation.options[name] = known->hasValue ? arguments[at++] : "";
    return error.empty();
}

/// Sorts options from words.
bool Sort(const std::vector<std::string>& arguments, Invocation& invocation, std::string& error)
{
    bool wordsOnly = false;
    for (std::size_t at = 0; at < arguments.size();) {
        if (!wordsOnly && arguments[at] == "--") {
            wordsOnly = true;
            ++at;
        } else if (wordsOnly || arguments[at].compare(0, 2, "--") != 0) {
            invocation.words.push_back(arguments[at++]);
        } else if (!TakeOption(arguments, at, invocation, error)) {
            return false;
        }
    }
    return true;
}

} // namespace

std::optional<std::uint32_t> ParseNumber(const std::string& text, std::uint32_t lowest, std::uint32_t highest)
{
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < lowest || number > highest)
        return std::nullopt;
    return number;
}

std::optional<Target> ParseTarget(const std::string& text)
{
    const auto at = text.rfind('@');
    const auto colon = text.rfind(':');
    // Digest login knows no colon in a name; "user:password" must not work, since others could see it.
    if (at == std::string::npos || at == 0 || text.find(':') < at || colon == std::string::npos || colon < at)
        return std::nullopt;
    std::string host = text.substr(at + 1, colon - at - 1);
    if (host.size() > 2 && host.front() == '[' && host.back() == ']')
        host = host.substr(1, host.size() - 2);
    else if (host.find(':') != std::string::npos)
        return std::nullopt;
    const auto port = ParseNumber(text.substr(colon + 1), 1, 65535);
    if (host.empty() || !port)
        return std::nullopt;
    return Target{text.substr(0, at), host, static_cast<std::uint16_t>(*port)};
}

std::string Invocation::Value(const std::string& option) const
{
    const auto found = options.find(option);
    return found == options.end() ? std::string() : found->second;
}

std::optional<Invocation> ParseInvocation(const std::vector<std::string>& arguments, std::string& error)
{
    Invocation invocation;
    if (!Sort(arguments, invocation, error))
        return std::nullopt;
    auto& words = invocation.words;
    if (!words.empty() && words[0].find('@') != std::string::npos) {
        invocation.target = ParseTarget(words[0]);
        if (!invocation.target) {
            error = words[0] + " is not of the form USER@HOST:PORT";
            return std::nullopt;
        }
        words.erase(words.begin());
    }
    if (!words.empty()) {
        invocation.command = words[0];
        words.erase(words.begin());
    }
    return invocation;
}

} // namespace devicetool
