#include "WindowEmbedding/FocusMemory.h"
#include "WindowEmbedding/GuestWindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QVariant>
#include <QWindow>

namespace embedding {

namespace {

constexpr const char* kFocusedGuest = "embeddingFocusedGuest";

QWindow* TopLevelOf(const QWidget* container)
{
    return container->window()->windowHandle();
}

QWindow* TopLevelOf(QWindow* window)
{
    while (window->parent())
        window = window->parent();
    return window;
}

bool TakesFocus(const QWindow& window)
{
    return window.handle() && window.type() != Qt::Popup && window.type() != Qt::ToolTip &&
           !window.flags().testFlag(Qt::WindowDoesNotAcceptFocus);
}

class FocusFollower : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!watched->isWindowType())
            return false;
        if (event->type() == QEvent::MouseButtonPress)
            OnPress(*TopLevelOf(static_cast<QWindow*>(watched)));
        else if (event->type() == QEvent::Hide)
            OnHide(*static_cast<QWindow*>(watched));
        return false;
    }

private:
    void OnPress(QWindow& window)
    {
        if (!TakesFocus(window))
            return;
        if (window.type() != Qt::Dialog)
            m_pressed = &window;
        window.setProperty(kFocusedGuest, QVariant());
        native::Focus(window.winId());
    }

    /// A dialog leaves the keyboard to nobody when there is no window manager that hands it on.
    void OnHide(const QWindow& dialog) const
    {
        if (dialog.type() != Qt::Dialog || !native::IsFocusLost())
            return;
        const QWindow* next = dialog.transientParent() ? dialog.transientParent() : m_pressed.data();
        if (next && TakesFocus(*next))
            native::Focus(next->winId());
    }

    /// The window that was used last, dialogs left out.
    QPointer<QWindow> m_pressed;
};

/// The window manager focuses the host's window, of whose guests it knows nothing. Qt would tell of this too
/// late, or not at all when the focus comes back soon.
void HandOnToGuest(native::WindowId focused)
{
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
        const QVariant guest = window->property(kFocusedGuest);
        if (guest.isValid() && window->handle() && window->winId() == focused)
            native::Focus(guest.toULongLong());
    }
}

} // namespace

void RememberFocus(const QWidget* container, native::WindowId guest)
{
    if (QWindow* window = TopLevelOf(container))
        window->setProperty(kFocusedGuest, static_cast<qulonglong>(guest));
}

void TakeFocusBack(const QWidget* container, native::WindowId guest)
{
    QWindow* window = TopLevelOf(container);
    if (!window || window->property(kFocusedGuest).toULongLong() != guest)
        return;
    window->setProperty(kFocusedGuest, QVariant());
    if (window->isVisible())
        native::Focus(window->winId());
}

void FollowMouseWithFocus()
{
    static QPointer<FocusFollower> follower;
    if (follower || !native::Available())
        return;
    native::StartListening();
    native::SetFocusListener(&HandOnToGuest);
    follower = new FocusFollower(QCoreApplication::instance());
    QCoreApplication::instance()->installEventFilter(follower);
}

} // namespace embedding
