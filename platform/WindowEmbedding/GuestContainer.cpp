#include "WindowEmbedding/GuestContainer.h"

#include "Base/Log.h"
#include "WindowEmbedding/FocusMemory.h"
#include "WindowEmbedding/WindowSystem.h"

#include <QEvent>
#include <QHideEvent>
#include <QPlatformSurfaceEvent>
#include <QWindow>

namespace embedding {

namespace {

/// A guest that insists on a size of its own is left with it after so many corrections in a row.
constexpr int kMostCorrections = 20;

/// A window manager may still put a window that had been shown before back on the screen; it is fetched again
/// so often.
constexpr int kMostFetches = 3;

} // namespace

struct CGuestContainer::State : native::IWindowObserver
{
    explicit State(CGuestContainer& ownContainer) : container(ownContainer) {}

    // ---- taking in and giving back

    bool Embed(WId window)
    {
        if (!native::Watch(window, native::Owner::Other, *this))
            return false;
        guest = window;
        if (!TakeIn(native::IsMapped(window))) {
            Drop();
            return false;
        }
        fetches = 0;
        return true;
    }

    bool TakeIn(bool mapped)
    {
        if (!native::Adopt(guest, container.winId()))
            return false;
        FitGuest();
        if (mapped)
            native::Map(guest);
        return true;
    }

    void Drop()
    {
        native::Unwatch(guest);
        guest = 0;
    }

    void Release()
    {
        TakeFocusBack(&container, guest);
        native::GiveBack(guest);
        Drop();
    }

    void Lose()
    {
        const WId lost = guest;
        Drop();
        TakeFocusBack(&container, lost);
        emit container.GuestLost();
    }

    // ---- size and place

    void FitGuest()
    {
        fitIsDue = false;
        const auto area = guest != 0 ? native::AreaOnScreen(container.winId()) : std::nullopt;
        if (!area)
            return;
        wanted = *area;
        native::Fit(guest, *area);
    }

    /// Once for all the changes that the window system and the layouts make in one go.
    void FitSoon()
    {
        if (guest == 0 || fitIsDue)
            return;
        fitIsDue = true;
        QMetaObject::invokeMethod(
            &container, [this] { FitGuest(); }, Qt::QueuedConnection);
    }

    void FitAnew()
    {
        corrections = 0;
        FitSoon();
    }

    // ---- what the window system tells of the guest

    void OnChange(native::WindowId window, native::Change change) override
    {
        if (change == native::Change::Focused)
            RememberFocus(&container, guest);
        else if (change == native::Change::Mapped)
            FitAnew();
        else
            QMetaObject::invokeMethod(
                &container, [this, window, change] { OnGone(window, change); }, Qt::QueuedConnection);
    }

    void OnResized(native::WindowId, const native::Area& inHolder) override
    {
        const bool fits = inHolder.x == 0 && inHolder.y == 0 && inHolder.width == wanted.width &&
                          inHolder.height == wanted.height;
        if (!fits && corrections < kMostCorrections) {
            ++corrections;
            FitSoon();
        }
    }

    void OnSurroundingsChanged() override
    {
        if (container.isVisible())
            FitAnew();
    }

    /// The guest was destroyed, or moved: by this container (then all is well), or by somebody else.
    void OnGone(native::WindowId window, native::Change change)
    {
        if (window != guest || parked)
            return;
        const native::WindowId holder = change == native::Change::Moved ? native::HolderOf(guest) : 0;
        if (holder == container.internalWinId())
            return;
        const bool fetchAgain = change == native::Change::Moved && holder == 0 && fetches++ < kMostFetches;
        if (!fetchAgain || !TakeIn(true))
            Lose();
    }

    // ---- the container's own native window

    /// The native window is about to go, and would take the guest's with it.
    void Park()
    {
        if (guest == 0 || parked)
            return;
        parked = true;
        parkedMapped = native::IsMapped(guest);
        native::GiveBack(guest);
    }

    void FollowNativeWindow()
    {
        if (container.windowHandle())
            container.windowHandle()->installEventFilter(&container);
        if (!parked || container.internalWinId() == 0)
            return;
        parked = false;
        if (!TakeIn(parkedMapped))
            Lose();
    }

    CGuestContainer& container;
    WId guest = 0;
    native::Area wanted{};
    bool fitIsDue = false;
    int corrections = 0;
    int fetches = 0;
    bool parked = false;
    bool parkedMapped = false;
};

CGuestContainer::CGuestContainer(QWidget* parent) : QWidget(parent), m_state(std::make_unique<State>(*this))
{
    setAttribute(Qt::WA_NativeWindow);
}

CGuestContainer::~CGuestContainer()
{
    Release();
}

bool CGuestContainer::Embed(WId guest)
{
    if (!native::Available()) {
        BASE_ERROR("Windows of other processes cannot be embedded without a window system.");
        return false;
    }
    if (guest == m_state->guest && guest != 0 && native::Exists(guest))
        return true;
    Release();
    winId();
    m_state->FollowNativeWindow();
    const bool embedded = native::Exists(guest) && m_state->Embed(guest);
    if (!embedded)
        BASE_ERROR("There is no window 0x%llx that could be embedded.",
                   static_cast<unsigned long long>(guest));
    return embedded;
}

void CGuestContainer::Release()
{
    if (m_state->guest != 0)
        m_state->Release();
}

WId CGuestContainer::Guest() const
{
    return m_state->guest;
}

void CGuestContainer::TellPosition()
{
    m_state->FitGuest();
}

void CGuestContainer::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_state->FitAnew();
}

void CGuestContainer::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_state->FitAnew();
}

void CGuestContainer::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    m_state->FitAnew();
}

/// A hidden guest keeps the keyboard otherwise, or the window system gives it to a window that Qt does not
/// expect. A minimised one gets it back with its window.
void CGuestContainer::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (m_state->guest != 0 && !event->spontaneous())
        TakeFocusBack(this, m_state->guest);
}

bool CGuestContainer::event(QEvent* event)
{
    if (event->type() == QEvent::ParentChange)
        m_state->FitAnew();
    else if (event->type() == QEvent::WinIdChange)
        m_state->FollowNativeWindow();
    return QWidget::event(event);
}

bool CGuestContainer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PlatformSurface && watched == windowHandle()) {
        const auto type = static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType();
        if (type == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
            m_state->Park();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace embedding
