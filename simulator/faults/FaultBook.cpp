#include "simulator/faults/Faults.h"

#include "Base/FileUtil.h"

#include <algorithm>
#include <filesystem>

namespace simulator {

namespace {

constexpr std::size_t kFileLimit = 1024 * 1024;

/// Whether the path is the rule's or lies below it.
bool Covers(const std::string& rule, const std::string& path)
{
    return rule.empty() || (path.compare(0, rule.size(), rule) == 0 &&
                            (path.size() == rule.size() || path[rule.size()] == '/'));
}

bool Means(const FaultRule& rule, const FaultSubject& subject)
{
    return (!rule.device || rule.device == subject.device) &&
           (!rule.channel || rule.channel == subject.channel) &&
           (rule.method.empty() || rule.method == subject.method) && Covers(rule.path, subject.path);
}

} // namespace

CFaultBook::CFaultBook(std::string path, ChannelSetter setChannel)
    : m_path(std::move(path)), m_setChannel(std::move(setChannel))
{}

std::optional<CFaultBook::Stamp> CFaultBook::ReadStamp() const
{
    std::error_code error;
    Stamp stamp;
    stamp.size = std::filesystem::file_size(m_path, error);
    if (!error)
        stamp.time = std::filesystem::last_write_time(m_path, error).time_since_epoch().count();
    return error ? std::nullopt : std::optional<Stamp>(stamp);
}

bool CFaultBook::Refresh(std::string& error)
{
    if (m_path.empty())
        return true;
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto stamp = ReadStamp();
    if (stamp && m_stamp && !(*stamp != *m_stamp))
        return true;
    if (!stamp && m_stamp && m_stamp->time == 0)
        return true; // it was told already
    m_stamp = stamp.value_or(Stamp());
    std::string text;
    std::optional<FaultsFile> file;
    if (!stamp || !Base::FileUtil::ReadFile(m_path, text, kFileLimit))
        error = "it cannot be read";
    else
        file = ParseFaults(text, error);
    if (!file) {
        error = "faults file " + m_path + ": " + error;
        return false;
    }
    m_rules = std::move(file->rules);
    for (const ChannelSetting& setting : file->channels)
        m_setChannel(setting);
    return true;
}

std::optional<FaultRule> CFaultBook::TakeFirst(const std::function<bool(const FaultRule&)>& means)
{
    if (m_path.empty())
        return std::nullopt;
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto rule = std::find_if(m_rules.begin(), m_rules.end(), [&](const FaultRule& candidate) {
        return candidate.times != 0U && means(candidate);
    });
    if (rule == m_rules.end())
        return std::nullopt;
    if (rule->times)
        --*rule->times;
    return *rule;
}

std::optional<FaultRule> CFaultBook::Take(const FaultSubject& subject)
{
    return TakeFirst([&](const FaultRule& rule) { return Means(rule, subject); });
}

std::optional<FaultRule> CFaultBook::TakeForConnection(unsigned device)
{
    return TakeFirst([&](const FaultRule& rule) {
        return rule.kind == FaultKind::Refuse && rule.path.empty() && rule.method.empty() && !rule.channel &&
               (!rule.device || rule.device == device);
    });
}

} // namespace simulator
