#pragma once

#include "framework/ui/parts/ComponentWindows.h"

#include <QObject>
#include <QString>

namespace framework {

/// How a tab with a window of the component stands.
enum class TabState {
    Loading,  ///< waits for the component or for its answer
    Embedded, ///< shows the component's window
    NoWindow, ///< the component has no such window or does not answer, or it could not be embedded
    Ended,    ///< the component ended and is being restarted
    GivenUp,  ///< it ended too often; the user may start it again
};

/// "loading", "embedded", "no window", "ended", "given up": as the report has them.
const char* NameOf(TabState state);

/// What a tab session drives: the tab's widget.
class ITabView
{
public:
    virtual ~ITabView() = default;

    [[nodiscard]] virtual bool Embed(quint64 wnd) = 0;
    virtual void Release() = 0;
    virtual void ShowState(TabState state) = 0;
};

/// The life of one component tab: asks for the window, has it embedded, shown, released, and asks anew after
/// the component was restarted. GUI thread; knows no widget.
class CTabSession : public QObject
{
public:
    CTabSession(QString name, IComponentWindows& component, ITabView& view);

    /// Begins, with the component in whatever state it is.
    void Open();
    /// Gives the window back, then tells the component. Nothing happens afterwards.
    void Close();
    /// The user wants it once more: asks again, or has the component started.
    void Retry();

    void OnComponentState(ComponentState state);
    void OnGuestLost();

    TabState State() const { return m_state; }
    quint64 Window() const { return m_window.wnd; }
    /// False while the component's page only says that it does not exist yet.
    bool IsAvailable() const { return m_window.available; }

private:
    void Ask();
    void OnAnswer(int question, const std::optional<ComponentWindow>& window);
    void Leave(TabState state);
    void Enter(TabState state);

    const QString m_name;
    IComponentWindows& m_component;
    ITabView& m_view;
    TabState m_state = TabState::Loading;
    ComponentWindow m_window;
    int m_question = 0; ///< answers to earlier questions are stale
    bool m_isAsked = false;
    bool m_closed = false;
};

} // namespace framework
