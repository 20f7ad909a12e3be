#include "WindowEmbedding/WindowSystem.h"

#include <map>
#include <windows.h>

namespace embedding::native {

namespace {

struct Watched
{
    Owner owner;
    IWindowObserver* observer;
};

std::map<WindowId, Watched>& AllWatched()
{
    static std::map<WindowId, Watched> watched;
    return watched;
}

FocusListener& Listener()
{
    static FocusListener listener = nullptr;
    return listener;
}

bool IsOwn(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

std::optional<Change> ChangeOf(DWORD event)
{
    switch (event) {
    case EVENT_OBJECT_DESTROY:
        return Change::Destroyed;
    case EVENT_OBJECT_PARENTCHANGE:
        return Change::Moved;
    case EVENT_OBJECT_SHOW:
        return Change::Mapped;
    case EVENT_OBJECT_FOCUS:
        return Change::Focused;
    default:
        return std::nullopt;
    }
}

/// A window's area within the one that holds it.
Area AreaInHolder(HWND window)
{
    RECT area = {};
    GetWindowRect(window, &area);
    MapWindowPoints(HWND_DESKTOP, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&area), 2);
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

void TellOfMove(HWND window)
{
    const auto found = AllWatched().find(reinterpret_cast<WindowId>(window));
    if (found != AllWatched().end() && found->second.owner == Owner::Other) {
        found->second.observer->OnResized(found->first, AreaInHolder(window));
        return;
    }
    if (!IsOwn(window))
        return;
    for (const auto& [id, watched] : AllWatched())
        if (watched.owner == Owner::Other)
            watched.observer->OnSurroundingsChanged();
}

/// Called from the message loop of the thread that started to listen. Windows tells it also of windows whose
/// process was ended from outside.
void CALLBACK OnEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD)
{
    const bool whole = object == OBJID_WINDOW || event == EVENT_OBJECT_FOCUS;
    if (!whole || child != CHILDID_SELF || !window)
        return;
    if (event == EVENT_OBJECT_LOCATIONCHANGE)
        return TellOfMove(window);
    if (event == EVENT_OBJECT_FOCUS && Listener() && IsOwn(window))
        Listener()(reinterpret_cast<WindowId>(window));
    const auto change = ChangeOf(event);
    const auto found = AllWatched().find(reinterpret_cast<WindowId>(window));
    if (change && found != AllWatched().end())
        found->second.observer->OnChange(found->first, *change);
}

} // namespace

void StartListening()
{
    static const HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_DESTROY, EVENT_OBJECT_PARENTCHANGE,
                                                      nullptr, OnEvent, 0, 0, WINEVENT_OUTOFCONTEXT);
    (void)hook;
}

void SetFocusListener(FocusListener listener)
{
    Listener() = listener;
}

bool Watch(WindowId window, Owner owner, IWindowObserver& observer)
{
    StartListening();
    if (!Exists(window))
        return false;
    AllWatched()[window] = {owner, &observer};
    return true;
}

void Unwatch(WindowId window)
{
    AllWatched().erase(window);
}

} // namespace embedding::native
