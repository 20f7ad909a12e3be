#include "framework/ui/shell/ComponentTab.h"

#include "WindowEmbedding/GuestContainer.h"
#include "framework/ui/parts/Report.h"
#include "framework/ui/shell/StatePage.h"

#include <QJsonArray>
#include <QStackedLayout>
#include <QTimer>

namespace framework {

CComponentTab::CComponentTab(const QString& name, const QString& title, IComponentWindows& component,
                             CReport& report)
    : m_name(name), m_title(title), m_report(report), m_stack(new QStackedLayout(this)),
      m_container(new embedding::CGuestContainer(this)), m_statePage(new CStatePage(this)),
      m_session(name, component, *this)
{
    setObjectName("page" + name);
    m_stack->setContentsMargins({});
    m_stack->addWidget(m_statePage);
    m_stack->addWidget(m_container);
    connect(m_statePage, &CStatePage::ButtonPressed, this, [this] { m_session.Retry(); });
    // The answer to the loss may embed another window, so it waits until the container is done with this one.
    connect(
        m_container, &embedding::CGuestContainer::GuestLost, &m_session, [this] { m_session.OnGuestLost(); },
        Qt::QueuedConnection);
}

CComponentTab::~CComponentTab()
{
    m_session.Close();
}

void CComponentTab::TellPosition()
{
    if (m_container->Guest() != 0)
        m_container->TellPosition();
}

const QWidget* CComponentTab::Place() const
{
    return m_container;
}

bool CComponentTab::Embed(quint64 wnd)
{
    return m_container->Embed(static_cast<WId>(wnd));
}

void CComponentTab::Release()
{
    m_container->Release();
}

void CComponentTab::ShowState(TabState state)
{
    QJsonObject fields{{"name", m_name}, {"state", NameOf(state)}};
    if (state == TabState::Embedded) {
        m_stack->setCurrentWidget(m_container);
        // A tab in the background has no place of its own yet; its parent's is what it will have.
        fields.insert("wid", static_cast<qint64>(m_session.Window()));
        fields.insert("available", m_session.IsAvailable());
        fields.insert("rect", ToJSON(ScreenRect(*parentWidget())));
    } else {
        ShowStatePage(state);
        m_stack->setCurrentWidget(m_statePage);
    }
    m_report.Tell("tab", fields);
}

void CComponentTab::ShowStatePage(TabState state)
{
    switch (state) {
    case TabState::Loading:
        return m_statePage->ShowBusy(m_title, tr("Waiting for the component…"));
    case TabState::NoWindow:
        return m_statePage->ShowReason(
            "warning", m_title, tr("The component did not answer in time, or it cannot show this page."),
            tr("Try again"));
    case TabState::Ended:
        return m_statePage->ShowBusy(tr("The component ended. It is being restarted…"),
                                     tr("Your tabs come back by themselves."));
    case TabState::GivenUp:
        return m_statePage->ShowReason("power", tr("The component is not running."),
                                       tr("It ended too often. The operation log has the details."),
                                       tr("Start the component"));
    case TabState::Embedded:
        return;
    }
}

} // namespace framework
