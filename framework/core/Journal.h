#pragma once

#include "Base/Noncopyable.h"
#include "Protocol/JSONStruct/JSONMessage.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace framework {

/// One line of the operation log or of the notification centre.
struct JournalEntry
{
    std::int64_t time = 0; ///< seconds since 1970, UTC
    std::string user;      ///< who did it; empty: nobody
    std::string kind;      ///< "device", "user", "component", "alarm", "window", "system"
    std::string text;      ///< one English sentence or the names of what it is about

    static constexpr auto Fields()
    {
        using T = JournalEntry;
        return std::make_tuple(protocol::Must("time", &T::time), protocol::May("user", &T::user),
                               protocol::Must("kind", &T::kind), protocol::Must("text", &T::text));
    }
};

/// Entries in the order of time, kept on disk, one JSON object a line. The file holds at most twice kKept
/// lines; the oldest go. A line that cannot be read is left out with one log line. Any thread.
class CJournal : Base::CNoncopyable
{
public:
    static constexpr std::size_t kKept = 2000;

    /// path: of the file; its folder exists. onEntry is called for each new entry.
    CJournal(std::string path, std::function<void(const JournalEntry&)> onEntry);

    /// The present time, as entries have it.
    static std::int64_t Now();

    /// Adds an entry with the present time. A text is cut after 1000 bytes.
    void Add(const std::string& user, const std::string& kind, const std::string& text);

    /// The newest last.
    std::vector<JournalEntry> Entries() const;

private:
    void Load();
    bool Parse(const std::string& line);
    void Write(const JournalEntry& entry);

    const std::string m_path;
    const std::function<void(const JournalEntry&)> m_onEntry;
    std::mutex m_writing; ///< before m_mutex, so that readers never wait for the disk
    mutable std::mutex m_mutex;
    std::deque<JournalEntry> m_entries;
    std::size_t m_linesOnDisk = 0; ///< under m_writing
};

} // namespace framework
