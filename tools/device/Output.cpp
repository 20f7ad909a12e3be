#include "device/Output.h"

#include "Base/StringUtil.h"

#include <cjson/cJSON.h>

#include <algorithm>
#include <memory>

namespace devicetool {

namespace {

struct Release
{
    void operator()(cJSON* item) const { cJSON_Delete(item); }
    void operator()(char* text) const { cJSON_free(text); }
};

/// How many columns a UTF-8 text takes, its characters being one wide.
std::size_t Width(const std::string& text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

} // namespace

std::string Columns(const std::vector<Row>& rows)
{
    std::vector<std::size_t> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], Width(row[i]));
    }
    std::string text;
    for (const Row& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i)
            line += row[i] + std::string(widths[i] + 2 - Width(row[i]), ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

std::string JsonString(const std::string& text)
{
    const std::unique_ptr<cJSON, Release> item(cJSON_CreateString(text.c_str()));
    const std::unique_ptr<char, Release> json(cJSON_PrintUnformatted(item.get()));
    return json ? json.get() : "\"\"";
}

std::string JsonList(const std::vector<std::string>& pieces)
{
    std::string list;
    for (const std::string& piece : pieces)
        list += (list.empty() ? "" : ",") + piece;
    return "[" + list + "]";
}

std::string JsonFailure(const Failure& failure)
{
    return Base::StringUtil::Format("{\"error\":%u,\"module\":%u,\"own\":%u,\"text\":", failure.error,
                                    failure.module, failure.own) +
           JsonString(ErrorText(failure)) + "}";
}

} // namespace devicetool
