#pragma once

#include "framework/ui/pages/JournalPage.h"

class QPushButton;

namespace framework {

class CUnreadNotices;

/// The notification centre: the notices, unread ones bold until they are marked, by a button or a double
/// click. GUI thread.
class CNoticesPage : public CJournalPage
{
    Q_OBJECT

public:
    CNoticesPage(const CJournal& notices, CUnreadNotices& unread, QWidget* parent = nullptr);

protected:
    bool IsUnread(int position) const override;

private:
    void Mark();
    void Update();
    void UpdateButtons();

    CUnreadNotices& m_unread;
    QPushButton* m_mark;
    QPushButton* m_markAll;
};

} // namespace framework
