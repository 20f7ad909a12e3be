#include "framework/ui/pages/NoticesPage.h"

#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/TableView.h"
#include "framework/ui/parts/UnreadNotices.h"

#include <QPushButton>

namespace framework {

using namespace VantorGUIToolkit;

CNoticesPage::CNoticesPage(const CJournal& notices, CUnreadNotices& unread, QWidget* parent)
    : CJournalPage(notices, tr("Notification centre"),
                   tr("Alarms and messages of devices and of the system."), parent),
      m_markRead(Header().AddAction(tr("Mark all as read"), ButtonKind::Normal))
{
    setObjectName("noticesPage");
    m_markRead->setObjectName("markRead");
    Table().SetEmptyState("bell", tr("No notices"), tr("Alarms of your devices appear here."));
    connect(m_markRead, &QPushButton::clicked, &unread, [&unread] { unread.Set(0); });
    connect(&unread, &CUnreadNotices::Changed, this, &CNoticesPage::Update);
    Update(unread.Count());
}

void CNoticesPage::Update(int count)
{
    m_markRead->setEnabled(count > 0);
    SetUnread(count);
}

} // namespace framework
