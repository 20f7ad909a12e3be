#pragma once

#include <cstdint>
#include <optional>

/// What embedding needs from the window system, on windows given by their numbers, which may belong to any
/// process and be gone at any moment: then a call does nothing, quietly. GUI thread. Lengths and places are
/// device pixels.
namespace embedding::native {

using WindowId = std::uintptr_t;

struct Area
{
    int x;
    int y;
    int width;
    int height;
};

/// False when the application runs without a window system that can embed.
bool Available();

bool Exists(WindowId window);
bool IsMapped(WindowId window);

/// The window that holds this one; 0 for one that stands on the screen by itself, or is gone.
WindowId HolderOf(WindowId window);

/// Moves the window into the holder's upper left corner, unmapped. False when one of the two is gone, or the
/// holder lies inside the window.
[[nodiscard]] bool Adopt(WindowId window, WindowId holder);

/// Makes the window stand by itself again, unmapped.
void GiveBack(WindowId window);

/// The place of a window's inside on the screen; none when it is gone.
std::optional<Area> AreaOnScreen(WindowId window);

/// Gives an adopted window its holder's size, and tells its process where on the screen it is.
void Fit(WindowId window, const Area& holderOnScreen);

void Map(WindowId window);

/// Gives the window the keyboard. A watched window that got it before this call does not count as focused any
/// more, even if the news comes later.
void Focus(WindowId window);
/// No window has the keyboard, and there is no window manager that would give it to one.
bool IsFocusLost();

enum class Change {
    Destroyed,
    /// Another window holds it, or none does.
    Moved,
    Mapped,
    Focused,
};

/// Hears of one watched window's changes, on the GUI thread, some time after they happened.
class IWindowObserver
{
public:
    virtual ~IWindowObserver() = default;
    virtual void OnChange(WindowId window, Change change) = 0;
    /// The window's area within its holder, when it was resized.
    virtual void OnResized(WindowId window, const Area& inHolder) = 0;
    /// A window of this process was moved or resized: what embedded windows stand in may be elsewhere now.
    virtual void OnSurroundingsChanged() = 0;
};

/// Whose window is watched: another process's, which this one embeds, or its own, which another embeds.
enum class Owner { Other, Self };

/// The observer must live until Unwatch. False when there is no such window.
[[nodiscard]] bool Watch(WindowId window, Owner owner, IWindowObserver& observer);
void Unwatch(WindowId window);

/// Called with a window of this process that got the keyboard focus, for whatever reason.
using FocusListener = void (*)(WindowId window);
void SetFocusListener(FocusListener listener);

/// Corrects what the toolkit makes of focus changes between this process and embedded ones; to be called
/// once. Watch does it too.
void StartListening();

} // namespace embedding::native
