#include "framework/ui/pages/NoticesPage.h"

#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/TableView.h"
#include "framework/ui/parts/UnreadNotices.h"
#include "framework/ui/parts/WindowTable.h"

#include <QPushButton>

namespace framework {

using namespace VantorGUIToolkit;

CNoticesPage::CNoticesPage(const CJournal& notices, CUnreadNotices& unread, QWidget* parent)
    : CJournalPage(notices, TitleOf("Notices"), tr("Alarms and messages of devices and of the system."),
                   parent),
      m_unread(unread), m_mark(Header().AddAction(tr("Mark as read"), ButtonKind::Normal)),
      m_markAll(Header().AddAction(tr("Mark all as read"), ButtonKind::Normal))
{
    setObjectName("noticesPage");
    m_mark->setObjectName("markRead");
    m_markAll->setObjectName("markAllRead");
    Table().SetEmptyState("bell", tr("No notices"), tr("Alarms of your devices appear here."));
    Table().setColumnHidden(UserColumn, true);
    connect(m_mark, &QPushButton::clicked, this, &CNoticesPage::Mark);
    connect(this, &CListPage::Activated, this, &CNoticesPage::Mark);
    connect(m_markAll, &QPushButton::clicked, &unread, &CUnreadNotices::MarkAllRead);
    connect(this, &CListPage::SelectionChanged, this, &CNoticesPage::UpdateButtons);
    connect(&unread, &CUnreadNotices::Changed, this, &CNoticesPage::Update);
    Update();
}

bool CNoticesPage::IsUnread(int position) const
{
    return m_unread.Contains(position);
}

void CNoticesPage::Mark()
{
    m_unread.MarkRead(SelectedPosition());
}

void CNoticesPage::Update()
{
    Reload();
    UpdateButtons();
}

void CNoticesPage::UpdateButtons()
{
    // A button that is disabled would give the focus to some widget outside the page.
    if (m_mark->hasFocus() || m_markAll->hasFocus())
        Table().setFocus();
    m_mark->setEnabled(m_unread.Contains(SelectedPosition()));
    m_markAll->setEnabled(m_unread.Count() > 0);
}

} // namespace framework
