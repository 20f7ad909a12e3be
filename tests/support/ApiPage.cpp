#include "support/ApiPage.h"

#include <fstream>
#include <regex>
#include <stdexcept>

namespace {

bool StartsWith(const std::string& line, const char* beginning)
{
    return line.rfind(beginning, 0) == 0;
}

std::smatch MatchOf(const std::string& line, const char* form)
{
    std::smatch match;
    if (!std::regex_match(line, match, std::regex(form)))
        throw std::runtime_error("docs/lpc-api.md: not of the form " + std::string(form) + ": " + line);
    return match;
}

std::string WithoutQuotes(const std::string& name)
{
    return name.front() == '`' ? name.substr(1, name.size() - 2) : name;
}

class PageReader
{
public:
    explicit PageReader(std::vector<ApiPage::Section>& sections) : m_sections(sections)
    {
        m_sections.emplace_back();
    }

    void Take(const std::string& line)
    {
        ++m_number;
        if (m_inBlock)
            TakeBlockLine(line);
        else if (StartsWith(line, "## "))
            m_sections.push_back({line.substr(3), {}, {}, {}, {}});
        else if (StartsWith(line, "### "))
            m_sections.push_back({m_sections.back().chapter, WithoutQuotes(line.substr(4)), {}, {}, {}});
        else if (StartsWith(line, "**"))
            BeginFields(line);
        else if (StartsWith(line, "| `") && InFields())
            TakeRow(line);
        else if (StartsWith(line, "- `"))
            m_sections.back().listed.push_back(MatchOf(line, "- `([^`]+)`")[1]);
        else if (StartsWith(line, "```"))
            BeginBlock(line);
    }

private:
    void BeginFields(const std::string& line)
    {
        const std::smatch match = MatchOf(line, R"~(\*\*(Body|Data|Answer)\*\* "(\w*)"(: .*)?)~");
        m_sections.back().fields.push_back({match[1], match[2], {}});
    }

    bool InFields() const { return !m_sections.back().fields.empty(); }

    void TakeRow(const std::string& line)
    {
        const std::smatch match = MatchOf(line, R"(\| `([^`]+)` \| ([^|]+) \| (yes|no) \| [^|]+ \|)");
        m_sections.back().fields.back().rows.push_back({match[1], match[2], match[3]});
    }

    void BeginBlock(const std::string& line)
    {
        const std::smatch match =
            MatchOf(line, "```(json( (request|answer|unanswered|notification)( ([A-Z]+|[0-9]+))?)?)?");
        m_inBlock = true;
        m_isExample = match[3].matched;
        if (m_isExample)
            m_sections.back().examples.push_back({match[3], match[5], {}, m_number});
    }

    void TakeBlockLine(const std::string& line)
    {
        m_inBlock = line != "```";
        if (m_inBlock && m_isExample)
            m_sections.back().examples.back().body += line;
    }

    std::vector<ApiPage::Section>& m_sections;
    int m_number = 0;
    bool m_inBlock = false;
    bool m_isExample = false;
};

} // namespace

ApiPage::ApiPage(const std::string& path)
{
    std::ifstream page(path);
    if (!page)
        throw std::runtime_error("cannot read " + path);
    PageReader reader(sections);
    for (std::string line; std::getline(page, line);)
        reader.Take(line);
}
