#include "framework/ui/shell/TabSession.h"

#include <QPointer>

namespace framework {

const char* NameOf(TabState state)
{
    switch (state) {
    case TabState::Loading:
        return "loading";
    case TabState::Embedded:
        return "embedded";
    case TabState::NoWindow:
        return "no window";
    case TabState::Ended:
        return "ended";
    case TabState::GivenUp:
        return "given up";
    }
    return "";
}

CTabSession::CTabSession(QString name, IComponentWindows& component, ITabView& view)
    : m_name(std::move(name)), m_component(component), m_view(view)
{}

void CTabSession::Open()
{
    Enter(TabState::Loading);
    OnComponentState(m_component.State());
}

void CTabSession::Close()
{
    if (m_closed)
        return;
    m_closed = true;
    ++m_question;
    m_view.Release();
    m_component.Removed(m_name);
}

void CTabSession::Retry()
{
    const ComponentState state = m_component.State();
    if (state == ComponentState::GivenUp || state == ComponentState::Stopped)
        m_component.Start();
    Enter(TabState::Loading);
    if (state == ComponentState::Ready)
        Ask();
}

void CTabSession::OnComponentState(ComponentState state)
{
    if (m_closed)
        return;
    switch (state) {
    case ComponentState::Ready:
        if (m_state != TabState::Embedded && !m_isAsked)
            Ask();
        return;
    case ComponentState::Starting:
        if (m_state != TabState::Ended)
            Leave(TabState::Loading);
        return;
    case ComponentState::Waiting:
        return Leave(TabState::Ended);
    case ComponentState::Stopped: // it is about to start, again or for the first time
        return Leave(TabState::Loading);
    case ComponentState::GivenUp:
        return Leave(TabState::GivenUp);
    }
}

// The window may be gone because the component ended, of which the link tells a little later, or because it
// destroyed the window; then there is a new one.
void CTabSession::OnGuestLost()
{
    if (m_closed || m_state != TabState::Embedded)
        return;
    Leave(TabState::Loading);
    if (m_component.State() == ComponentState::Ready)
        Ask();
}

void CTabSession::Ask()
{
    m_isAsked = true;
    const int question = ++m_question;
    m_component.Ask(
        m_name, [self = QPointer<CTabSession>(this), question](const std::optional<ComponentWindow>& window) {
            if (self)
                self->OnAnswer(question, window);
        });
}

void CTabSession::OnAnswer(int question, const std::optional<ComponentWindow>& window)
{
    if (question != m_question || m_closed)
        return;
    m_isAsked = false;
    m_window = window.value_or(ComponentWindow());
    if (!window || !m_view.Embed(m_window.wnd))
        return Enter(TabState::NoWindow);
    Enter(TabState::Embedded);
    m_component.Show(m_name);
}

void CTabSession::Leave(TabState state)
{
    ++m_question;
    m_isAsked = false;
    m_view.Release();
    m_window.wnd = 0;
    Enter(state);
}

void CTabSession::Enter(TabState state)
{
    m_state = state;
    m_view.ShowState(state);
}

} // namespace framework
