#include "WindowEmbedding/GuestWindow.h"

#include "WindowEmbedding/WindowSystem.h"

#include <QEvent>

namespace embedding {

namespace {

/// QWidget makes its native window's end a matter of subclasses.
struct NativeWindowOf : QWidget
{
    static void Destroy(QWidget& widget) { (widget.*&NativeWindowOf::destroy)(true, true); }
};

} // namespace

struct CGuestWindow::State : native::IWindowObserver
{
    State(CGuestWindow& ownOwner, QWidget& ownPage) : owner(ownOwner), page(ownPage) {}
    ~State() override { Follow(0); }

    void Follow(WId next)
    {
        if (window != 0)
            native::Unwatch(window);
        window = next != 0 && native::Watch(next, native::Owner::Self, *this) ? next : 0;
    }

    void OnChange(native::WindowId changed, native::Change change) override
    {
        if (change == native::Change::Destroyed)
            QMetaObject::invokeMethod(
                &owner, [this, changed] { OnLost(changed); }, Qt::QueuedConnection);
        else if (change == native::Change::Moved && page.isVisible() && native::HolderOf(changed) != 0)
            native::Map(changed);
    }

    void OnResized(native::WindowId, const native::Area&) override {}
    void OnSurroundingsChanged() override {}

    /// Hidden first: a widget that counts as visible would not be shown again.
    void OnLost(native::WindowId lost)
    {
        if (page.internalWinId() != lost)
            return;
        page.hide();
        NativeWindowOf::Destroy(page);
        emit owner.WindowLost();
    }

    CGuestWindow& owner;
    QWidget& page;
    WId window = 0;
};

/// The host decides on size, place and keyboard focus: showing the page must change none of them.
CGuestWindow::CGuestWindow(QWidget* page) : QObject(page), m_state(std::make_unique<State>(*this, *page))
{
    page->setAttribute(Qt::WA_Resized);
    page->setAttribute(Qt::WA_Moved);
    page->setAttribute(Qt::WA_ShowWithoutActivating);
    page->installEventFilter(this);
    m_state->Follow(page->internalWinId());
}

CGuestWindow::~CGuestWindow() = default;

CGuestWindow* CGuestWindow::Of(const QWidget* page)
{
    return page->findChild<CGuestWindow*>(QString(), Qt::FindDirectChildrenOnly);
}

bool CGuestWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WinIdChange)
        m_state->Follow(m_state->page.internalWinId());
    return QObject::eventFilter(watched, event);
}

} // namespace embedding
