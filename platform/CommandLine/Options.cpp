#include "CommandLine/Options.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace CommandLine {

namespace {

bool LooksLikeOption(const std::string& argument)
{
    return argument.compare(0, 2, "--") == 0;
}

/// Moves the words of an option from the arguments; at stands behind its name and is moved on.
std::vector<std::string> TakeWords(const std::vector<std::string>& arguments, OptionSpec::Kind kind,
                                   std::size_t& at)
{
    std::vector<std::string> words;
    if (kind == OptionSpec::Kind::Words && at < arguments.size() && arguments[at] == "--") {
        words.assign(arguments.begin() + static_cast<long>(at) + 1, arguments.end());
        at = arguments.size();
        return words;
    }
    const std::size_t limit = kind == OptionSpec::Kind::Flag    ? 0
                              : kind == OptionSpec::Kind::Value ? 1
                                                                : SIZE_MAX;
    while (at < arguments.size() && words.size() < limit && !LooksLikeOption(arguments[at]))
        words.push_back(arguments[at++]);
    return words;
}

} // namespace

std::optional<COptions> COptions::Parse(const std::vector<std::string>& arguments,
                                        const std::vector<OptionSpec>& specs, std::string& error)
{
    COptions options;
    for (std::size_t at = 0; at < arguments.size();) {
        const std::string& name = arguments[at++];
        const auto spec = std::find_if(specs.begin(), specs.end(),
                                       [&](const OptionSpec& known) { return name == known.name; });
        if (spec == specs.end())
            error = "unknown argument " + name;
        else if (options.Has(name))
            error = name + " is given twice";
        else
            options.m_words[name] = TakeWords(arguments, spec->kind, at);
        if (error.empty() && spec->kind != OptionSpec::Kind::Flag && options.m_words[name].empty())
            error = name + " needs a value";
        if (!error.empty())
            return std::nullopt;
    }
    return options;
}

std::string COptions::Value(const std::string& name, const std::string& otherwise) const
{
    const auto found = m_words.find(name);
    return found == m_words.end() ? otherwise : found->second.front();
}

std::vector<std::string> COptions::Words(const std::string& name) const
{
    const auto found = m_words.find(name);
    return found == m_words.end() ? std::vector<std::string>() : found->second;
}

bool COptions::Number(const std::string& name, long lowest, long highest, long otherwise, long& number,
                      std::string& error) const
{
    number = otherwise;
    if (!Has(name))
        return true;
    const std::string text = Value(name);
    char* end = nullptr;
    errno = 0;
    number = std::strtol(text.c_str(), &end, 10);
    if (errno == 0 && end != text.c_str() && *end == '\0' && number >= lowest && number <= highest)
        return true;
    error =
        name + " must be a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest);
    return false;
}

} // namespace CommandLine
