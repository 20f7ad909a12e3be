#include "WindowEmbedding/WindowSystem.h"
#include "WindowEmbedding/posix/GuestDialogs.h"
#include "WindowEmbedding/posix/WindowPlace.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QWindow>
#include <QX11Info>

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <map>
#include <optional>
#include <xcb/xcb.h>

namespace embedding::native {

namespace {

/// Windows whose end is remembered, so that the errors of requests that were under way are known as theirs.
constexpr std::size_t kRememberedEnds = 256;

struct Watched
{
    Owner owner;
    IWindowObserver* observer;
};

/// Sees every event of the process before Qt does.
class EventListener : public QAbstractNativeEventFilter
{
public:
    static EventListener& Instance()
    {
        static EventListener listener;
        return listener;
    }

    void Install()
    {
        if (QX11Info::isPlatformX11())
            QCoreApplication::instance()->installNativeEventFilter(this);
    }

    void Add(xcb_window_t window, const Watched& watched) { m_watched[window] = watched; }
    std::optional<Watched> Remove(xcb_window_t window)
    {
        const auto node = m_watched.extract(window);
        return node ? std::optional<Watched>(node.mapped()) : std::nullopt;
    }

    void SetFocusListener(FocusListener listener) { m_focusListener = listener; }

    /// Without a time: the press that asks for it is newer than whatever a window manager did about the same
    /// press with its older time.
    void Focus(xcb_window_t window)
    {
        xcb_connection_t* connection = QX11Info::connection();
        const auto request =
            xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
        xcb_discard_reply(connection, request.sequence);
        xcb_flush(connection);
        m_focusRequest = request.sequence;
    }

    bool nativeEventFilter(const QByteArray& type, void* message, long* /*result*/) override
    {
        return type == "xcb_generic_event_t" && Take(static_cast<xcb_generic_event_t*>(message));
    }

private:
    /// True when Qt must not see the event.
    bool Take(xcb_generic_event_t* event)
    {
        switch (event->response_type & 0x7F) {
        case 0:
            return IsOfDeadWindow(*reinterpret_cast<xcb_generic_error_t*>(event));
        case XCB_DESTROY_NOTIFY:
            TakeEnd(reinterpret_cast<xcb_destroy_notify_event_t*>(event)->window);
            return false;
        case XCB_REPARENT_NOTIFY:
            Tell(reinterpret_cast<xcb_reparent_notify_event_t*>(event)->window, Change::Moved);
            return false;
        case XCB_MAP_NOTIFY:
            TakeMapped(*reinterpret_cast<xcb_map_notify_event_t*>(event));
            return false;
        case XCB_CONFIGURE_NOTIFY:
            TakeSize(*reinterpret_cast<xcb_configure_notify_event_t*>(event));
            return false;
        case XCB_FOCUS_IN:
            return TakeFocus(*reinterpret_cast<xcb_focus_in_event_t*>(event), true);
        case XCB_FOCUS_OUT:
            return TakeFocus(*reinterpret_cast<xcb_focus_in_event_t*>(event), false);
        case XCB_KEY_PRESS:
        case XCB_KEY_RELEASE:
            return PassToHost(*reinterpret_cast<xcb_key_press_event_t*>(event));
        default:
            return false;
        }
    }

    const Watched* Find(xcb_window_t window) const
    {
        const auto found = m_watched.find(window);
        return found == m_watched.end() ? nullptr : &found->second;
    }

    void Tell(xcb_window_t window, Change change)
    {
        if (const Watched* watched = Find(window))
            watched->observer->OnChange(window, change);
    }

    void TakeMapped(const xcb_map_notify_event_t& event)
    {
        Tell(event.window, Change::Mapped);
        const QWindow* own =
            event.override_redirect || Find(event.window) ? nullptr : OwnWindow(event.window);
        if (!own || own->parent())
            return;
        KeepAboveHost(*own);
        CorrectPlace(event.window);
    }

    /// Qt asks for the place when a window manager has put the window into a frame, which may stand elsewhere
    /// until the window is mapped; of its last step the window manager tells nothing.
    static void CorrectPlace(xcb_window_t window)
    {
        if (const auto area = AreaOnScreen(window))
            TellPlace(window, *area);
        xcb_flush(QX11Info::connection());
    }

    void TakeEnd(xcb_window_t window)
    {
        m_ended.push_back(window);
        if (m_ended.size() > kRememberedEnds)
            m_ended.pop_front();
        Tell(window, Change::Destroyed);
    }

    /// A graphics context that was to be made for a dead window is missing as well.
    bool IsOfDeadWindow(const xcb_generic_error_t& error)
    {
        const bool dead = std::find(m_ended.begin(), m_ended.end(), error.resource_id) != m_ended.end() ||
                          IsOfForeignWindow(error);
        m_drewOnDeadWindow = m_drewOnDeadWindow || (dead && error.major_code == XCB_CREATE_GC);
        return dead || (m_drewOnDeadWindow && error.error_code == XCB_G_CONTEXT);
    }

    /// Qt looks at the windows around its own, which end with their process at any moment.
    static bool IsOfForeignWindow(const xcb_generic_error_t& error)
    {
        const xcb_setup_t* setup = xcb_get_setup(QX11Info::connection());
        return error.error_code == XCB_WINDOW &&
               (error.resource_id & ~setup->resource_id_mask) != setup->resource_id_base;
    }

    /// A window manager's own notices count for the surroundings: Qt tells of a move when it asks for it, not
    /// when it has happened.
    void TakeSize(const xcb_configure_notify_event_t& event)
    {
        const bool sent = (event.response_type & 0x80) != 0;
        const Watched* watched = Find(event.window);
        if (!watched || watched->owner == Owner::Self)
            TellSurroundings();
        else if (!sent)
            watched->observer->OnResized(event.window, {event.x, event.y, event.width, event.height});
    }

    void TellSurroundings() const
    {
        for (const auto& [window, watched] : m_watched)
            if (watched.owner == Owner::Other)
                watched.observer->OnSurroundingsChanged();
    }

    /// An event that only says that the pointer is over the window, or that keys are grabbed for a moment,
    /// changes nothing. One that says that an inferior has the focus means an embedded window, since Qt
    /// itself focuses top-level windows only; Qt would take it for its own.
    bool TakeFocus(const xcb_focus_in_event_t& event, bool in)
    {
        if (event.detail >= XCB_NOTIFY_DETAIL_POINTER || event.mode == XCB_NOTIFY_MODE_GRAB ||
            event.mode == XCB_NOTIFY_MODE_UNGRAB)
            return false;
        const Watched* watched = Find(event.event);
        if (watched && watched->owner == Owner::Other) {
            if (in && !PrecedesOwnRequest(event))
                watched->observer->OnChange(event.event, Change::Focused);
            return false;
        }
        if (in && (event.detail == XCB_NOTIFY_DETAIL_VIRTUAL ||
                   event.detail == XCB_NOTIFY_DETAIL_NONLINEAR_VIRTUAL))
            return true;
        m_focused = in;
        if (in && m_focusListener)
            m_focusListener(event.event);
        return false;
    }

    bool PrecedesOwnRequest(const xcb_focus_in_event_t& event) const
    {
        const auto sequence = reinterpret_cast<const xcb_generic_event_t&>(event).full_sequence;
        return m_focusRequest != 0 && static_cast<int32_t>(sequence - m_focusRequest) < 0;
    }

    /// Keys go to the window under the pointer when that lies inside the one that has the focus: an embedded
    /// window gets those which the user means for its host. They are handed on.
    bool PassToHost(const xcb_key_press_event_t& event)
    {
        if (m_focused || QApplication::activePopupWidget())
            return false;
        const xcb_window_t own = TopLevelOf(event.event);
        const Watched* watched = Find(own);
        const WindowId holder = watched && watched->owner == Owner::Self ? HolderOf(own) : 0;
        if (holder == 0)
            return false;
        xcb_key_press_event_t copy = event;
        copy.event = static_cast<xcb_window_t>(holder);
        xcb_connection_t* connection = QX11Info::connection();
        const auto sent = xcb_send_event_checked(connection, 0, copy.event,
                                                 XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE,
                                                 reinterpret_cast<const char*>(&copy));
        xcb_discard_reply(connection, sent.sequence);
        xcb_flush(connection);
        return true;
    }

    static xcb_window_t TopLevelOf(xcb_window_t window)
    {
        const QWindow* own = OwnWindow(window);
        while (own && own->parent())
            own = own->parent();
        return own ? static_cast<xcb_window_t>(own->winId()) : window;
    }

    std::map<xcb_window_t, Watched> m_watched;
    std::deque<xcb_window_t> m_ended;
    /// A window of this process has the keyboard focus.
    bool m_focused = false;
    /// The connection's number of the last request for the focus; 0 before the first.
    uint32_t m_focusRequest = 0;
    FocusListener m_focusListener = nullptr;
    bool m_drewOnDeadWindow = false;
};

bool Select(xcb_window_t window, uint32_t events)
{
    xcb_connection_t* connection = QX11Info::connection();
    xcb_generic_error_t* error = xcb_request_check(
        connection, xcb_change_window_attributes_checked(connection, window, XCB_CW_EVENT_MASK, &events));
    std::free(error);
    return error == nullptr;
}

} // namespace

void StartListening()
{
    EventListener::Instance().Install();
}

void SetFocusListener(FocusListener listener)
{
    EventListener::Instance().SetFocusListener(listener);
}

void Focus(WindowId window)
{
    EventListener::Instance().Focus(static_cast<xcb_window_t>(window));
}

bool Watch(WindowId window, Owner owner, IWindowObserver& observer)
{
    const auto id = static_cast<xcb_window_t>(window);
    StartListening();
    if (!Available() ||
        (owner == Owner::Other && !Select(id, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_FOCUS_CHANGE)))
        return false;
    EventListener::Instance().Add(id, {owner, &observer});
    return true;
}

void Unwatch(WindowId window)
{
    const auto id = static_cast<xcb_window_t>(window);
    const auto watched = EventListener::Instance().Remove(id);
    if (watched && watched->owner == Owner::Other && Available())
        (void)Select(id, 0);
}

} // namespace embedding::native
