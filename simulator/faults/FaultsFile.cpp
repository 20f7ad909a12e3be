#include "simulator/faults/Faults.h"

#include <cjson/cJSON.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace simulator {

namespace {

using Json = std::unique_ptr<cJSON, decltype(&cJSON_Delete)>;

struct KindRow
{
    const char* name;
    FaultKind kind;
    const char* amount;         ///< the member that says how much; null: there is none
    unsigned long long usually; ///< when it is missing
};

constexpr std::array<KindRow, 13> kKinds = {{
    {"refuse", FaultKind::Refuse, nullptr, 0},
    {"error", FaultKind::Error, nullptr, 0},
    {"delay", FaultKind::Delay, "ms", 1000},
    {"cut", FaultKind::Cut, "bytes", 100},
    {"truncate", FaultKind::Truncate, "bytes", 4},
    {"oversize", FaultKind::Oversize, "bytes", 4},
    {"drip", FaultKind::Drip, "ms", 1000},
    {"silent", FaultKind::Silent, nullptr, 0},
    {"headers", FaultKind::Headers, "count", 10000},
    {"length", FaultKind::Length, "bytes", 4294967296ULL},
    {"version", FaultKind::Version, "version", 2},
    {"no-keep-alive", FaultKind::NoKeepAlive, nullptr, 0},
    {"garbage", FaultKind::Garbage, "bytes", 64},
}};

/// Takes the members of one object out of it and remembers the first complaint, so that what is left over
/// was not known.
class CMembers
{
public:
    CMembers(const cJSON* object, std::string& error) : m_object(object), m_error(error)
    {
        if (!cJSON_IsObject(object))
            Complain("an entry is no object");
    }

    std::optional<std::string> Text(const char* name)
    {
        const cJSON* member = Take(name);
        if (member && !cJSON_IsString(member))
            Complain(std::string(name) + " is no text");
        return member && cJSON_IsString(member) ? std::optional<std::string>(member->valuestring)
                                                : std::nullopt;
    }

    std::optional<unsigned long long> Number(const char* name, unsigned long long highest)
    {
        const cJSON* member = Take(name);
        if (!member)
            return std::nullopt;
        const double value = member->valuedouble;
        if (cJSON_IsNumber(member) && value >= 0 && value <= static_cast<double>(highest) &&
            value == std::floor(value))
            return static_cast<unsigned long long>(value);
        Complain(std::string(name) + " is no whole number of 0 to " + std::to_string(highest));
        return std::nullopt;
    }

    std::optional<unsigned> Small(const char* name, unsigned highest = 1000000)
    {
        const auto number = Number(name, highest);
        return number ? std::optional<unsigned>(static_cast<unsigned>(*number)) : std::nullopt;
    }

    void Complain(const std::string& what)
    {
        if (m_error.empty())
            m_error = what;
    }

    void ComplainOfOthers()
    {
        const cJSON* member = nullptr;
        cJSON_ArrayForEach(member, m_object) if (std::find(m_known.begin(), m_known.end(), member->string) ==
                                                 m_known.end())
            Complain(std::string("unknown member ") + member->string);
    }

private:
    const cJSON* Take(const char* name)
    {
        m_known.emplace_back(name);
        return cJSON_IsObject(m_object) ? cJSON_GetObjectItemCaseSensitive(m_object, name) : nullptr;
    }

    const cJSON* m_object;
    std::string& m_error;
    std::vector<std::string> m_known;
};

void ReadKind(CMembers& members, FaultRule& rule)
{
    const std::string name = members.Text("fault").value_or("");
    const auto row =
        std::find_if(kKinds.begin(), kKinds.end(), [&](const KindRow& known) { return name == known.name; });
    if (row == kKinds.end())
        return members.Complain("unknown fault \"" + name + "\"");
    rule.kind = row->kind;
    rule.amount = row->usually;
    if (row->amount)
        rule.amount = members.Number(row->amount, 1ULL << 40).value_or(row->usually);
    if (rule.kind == FaultKind::Headers && rule.amount > 100000)
        members.Complain("count is above 100000");
    if (rule.kind == FaultKind::Oversize && rule.amount > 64 * 1024 * 1024)
        members.Complain("bytes is above 67108864");
    if (rule.kind != FaultKind::Error)
        return;
    rule.status = members.Small("status", 599).value_or(rule.status);
    rule.error = members.Small("error").value_or(rule.error);
    rule.module = members.Small("module", std::numeric_limits<unsigned>::max()).value_or(0);
    rule.own = members.Small("own", std::numeric_limits<unsigned>::max());
    if (rule.status < 400)
        members.Complain("status is below 400");
}

FaultRule ReadRule(const cJSON* entry, std::string& error)
{
    FaultRule rule;
    CMembers members(entry, error);
    rule.device = members.Small("device");
    rule.channel = members.Small("channel");
    rule.path = members.Text("path").value_or("*");
    rule.method = members.Text("method").value_or("");
    rule.times = members.Small("times");
    if (rule.path == "*")
        rule.path.clear();
    ReadKind(members, rule);
    members.ComplainOfOthers();
    return rule;
}

ChannelSetting ReadChannel(const cJSON* entry, std::string& error)
{
    ChannelSetting setting;
    CMembers members(entry, error);
    setting.device = members.Small("device").value_or(0);
    setting.channel = members.Small("channel", 512).value_or(1);
    setting.name = members.Text("name");
    setting.state = members.Small("state", 255);
    members.ComplainOfOthers();
    return setting;
}

} // namespace

std::optional<FaultsFile> ParseFaults(const std::string& text, std::string& error)
{
    const Json tree(cJSON_ParseWithOpts(text.c_str(), nullptr, 1), &cJSON_Delete);
    const bool isObject = cJSON_IsObject(tree.get());
    const cJSON* rules = isObject ? cJSON_GetObjectItemCaseSensitive(tree.get(), "rules") : tree.get();
    const cJSON* channels = isObject ? cJSON_GetObjectItemCaseSensitive(tree.get(), "channels") : nullptr;
    error.clear();
    if (!tree || (rules && !cJSON_IsArray(rules)) || (channels && !cJSON_IsArray(channels))) {
        error = "it is no JSON list of rules";
        return std::nullopt;
    }
    FaultsFile file;
    const cJSON* entry = nullptr;
    cJSON_ArrayForEach(entry, rules) file.rules.push_back(ReadRule(entry, error));
    cJSON_ArrayForEach(entry, channels) file.channels.push_back(ReadChannel(entry, error));
    return error.empty() ? std::optional<FaultsFile>(std::move(file)) : std::nullopt;
}

} // namespace simulator
