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
    enum Column { TimeColumn, KindColumn, UserColumn, EventColumn };

    /// Whether an entry is shown as unread; its position counts from the newest, which has 0.
    virtual bool IsUnread(int position) const;
    /// The position of the chosen entry; -1 for none.
    int SelectedPosition() const;

private:
    const CJournal& m_journal;
    int m_count = 0; ///< of the entries, as they are shown
};

} // namespace framework
