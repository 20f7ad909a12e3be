#include "framework/core/Journal.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/StringUtil.h"
#include "framework/core/Stored.h"

#include <chrono>
#include <filesystem>
#include <fstream>

namespace framework {

namespace {

namespace json = protocol::json;

constexpr std::size_t kTextLimit = 1000;
constexpr std::size_t kFileLimit = 64 * 1024 * 1024; // twice kKept lines, each byte of which may be escaped

std::string LineOf(const JournalEntry& entry)
{
    return json::PrintText(json::Kind<JournalEntry>::Write(entry).get()) + "\n";
}

bool AppendLine(const std::string& path, const std::string& line)
{
    std::ofstream file(path, std::ios::binary | std::ios::app);
    file << line << std::flush;
    return file.good();
}

} // namespace

CJournal::CJournal(std::string path, std::function<void(const JournalEntry&)> onEntry)
    : m_path(std::move(path)), m_onEntry(std::move(onEntry))
{
    Load();
}

// A last line that was cut by a crash makes the first new entry write the file anew, so that nothing is
// appended to it; so does one that Write could not append.
void CJournal::Load()
{
    m_linesOnDisk = 2 * kKept;
    std::string content;
    std::error_code error;
    if (!std::filesystem::exists(m_path, error))
        return;
    if (!Base::FileUtil::ReadFile(m_path, content, kFileLimit)) {
        (void)stored::SetAside(m_path, "it cannot be read, or is larger than 64 MiB");
        return;
    }
    std::vector<std::string> lines = Base::StringUtil::Split(content, '\n');
    const bool isWhole = lines.back().empty();
    if (isWhole)
        lines.pop_back();
    for (const std::string& line : lines)
        if (!Parse(line))
            BASE_ERROR("A line of [%s] cannot be read and is left out.", m_path.c_str());
    if (isWhole)
        m_linesOnDisk = lines.size();
}

bool CJournal::Parse(const std::string& line)
{
    std::string problem;
    JournalEntry entry;
    json::ReadError error;
    const json::Tree tree = json::ParseText(line, problem);
    if (!tree || !json::Kind<JournalEntry>::Read(tree.get(), entry, error))
        return false;
    m_entries.push_back(std::move(entry));
    if (m_entries.size() > kKept)
        m_entries.pop_front();
    return true;
}

std::int64_t CJournal::Now()
{
    using namespace std::chrono;
    return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

void CJournal::Add(const std::string& user, const std::string& kind, const std::string& text)
{
    std::lock_guard<std::mutex> writing(m_writing);
    const JournalEntry entry{Now(), user, kind, Base::StringUtil::CutUtf8(text, kTextLimit)};
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_entries.push_back(entry);
        if (m_entries.size() > kKept)
            m_entries.pop_front();
    }
    Write(entry);
    if (m_onEntry)
        m_onEntry(entry);
}

void CJournal::Write(const JournalEntry& entry)
{
    bool written = false;
    if (m_linesOnDisk < 2 * kKept) {
        written = AppendLine(m_path, LineOf(entry));
        m_linesOnDisk = written ? m_linesOnDisk + 1 : 2 * kKept;
    } else {
        std::string content;
        const std::vector<JournalEntry> entries = Entries();
        for (const JournalEntry& kept : entries)
            content += LineOf(kept);
        written = Base::FileUtil::WriteFileAtomically(m_path, content);
        m_linesOnDisk = written ? entries.size() : m_linesOnDisk;
    }
    if (!written)
        BASE_ERROR("Failed to write to [%s].", m_path.c_str());
}

std::vector<JournalEntry> CJournal::Entries() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return {m_entries.begin(), m_entries.end()};
}

} // namespace framework
