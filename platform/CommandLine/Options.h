#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace CommandLine {

/// An option of a command: "--name" alone, with one value, or with the words up to the next "--option".
struct OptionSpec
{
    enum class Kind { Flag, Value, Words };
    const char* name;
    Kind kind;
};

/// The options of one command line.
class COptions
{
public:
    /// Reads the arguments; none, with the reason in error, when one is unknown, twice there or lacks its
    /// value. Words that start with "--" are taken after "--", which makes everything to the end of the line
    /// part of them.
    static std::optional<COptions> Parse(const std::vector<std::string>& arguments,
                                         const std::vector<OptionSpec>& specs, std::string& error);

    bool Has(const std::string& name) const { return m_words.count(name) != 0; }

    /// The option's value, or the given one when it is absent.
    std::string Value(const std::string& name, const std::string& otherwise = {}) const;
    std::vector<std::string> Words(const std::string& name) const;

    /// The option as a whole number in the range; otherwise when it is absent. False with the reason in error
    /// for anything else.
    bool Number(const std::string& name, long lowest, long highest, long otherwise, long& number,
                std::string& error) const;

private:
    std::map<std::string, std::vector<std::string>> m_words;
};

} // namespace CommandLine
