#pragma once

#include "framework/ui/pages/ListPage.h"

namespace framework {

class CJournal;
struct JournalEntry;

/// A kind of journal entry ("alarm") in the language of the user, and its icon.
QString JournalKindText(const std::string& kind);
QString JournalKindIcon(const std::string& kind);
/// The moment of an entry in the chosen formats.
QString JournalTimeText(const JournalEntry& entry);

/// A journal, the newest entry first, with a filter for its kinds: the operation log. GUI thread.
class CJournalPage : public CListPage
{
    Q_OBJECT

public:
    CJournalPage(const CJournal& journal, const QString& title, const QString& sentence,
                 QWidget* parent = nullptr);

    void Reload();

protected:
    /// As many of the newest entries are shown as unread.
    void SetUnread(int count);

private:
    const CJournal& m_journal;
    int m_unread = 0;
};

} // namespace framework
