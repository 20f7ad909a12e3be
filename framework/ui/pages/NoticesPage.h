#pragma once

#include "framework/ui/pages/JournalPage.h"

class QPushButton;

namespace framework {

class CUnreadNotices;

/// The notification centre: the notices, unread ones bold. GUI thread.
class CNoticesPage : public CJournalPage
{
    Q_OBJECT

public:
    CNoticesPage(const CJournal& notices, CUnreadNotices& unread, QWidget* parent = nullptr);

private:
    void Update(int count);

    QPushButton* m_markRead;
};

} // namespace framework
