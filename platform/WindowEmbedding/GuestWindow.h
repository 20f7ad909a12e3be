#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace embedding {

/// The guest's side: watches a top-level widget that another process embeds. GUI thread.
///
/// Created before the widget's native window is handed out; lives as long as the widget (it is its child).
class CGuestWindow : public QObject
{
    Q_OBJECT

public:
    explicit CGuestWindow(QWidget* page);
    ~CGuestWindow() override;

    /// The guest of a widget; nullptr when it is watched by none.
    static CGuestWindow* Of(const QWidget* page);

signals:
    /// The window system destroyed the widget's native window together with the host's. The widget has no
    /// window any more and is hidden; the next winId() makes a new one, to be embedded and shown like the
    /// first.
    void WindowLost();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// Makes windows of this process and embedded windows of others exchange the keyboard focus as users expect:
/// at every mouse press the window that was pressed gets it. Both processes call it once, after the
/// application object is there.
void FollowMouseWithFocus();

} // namespace embedding
