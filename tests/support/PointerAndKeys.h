#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct xcb_connection_t;

/// A user's hands and eyes on one display: presses the real pointer and keyboard of the X server, and sees
/// where windows are. Lengths are device pixels of the screen.
class PointerAndKeys
{
public:
    using Window = std::uint32_t;

    struct Area
    {
        int x;
        int y;
        int width;
        int height;

        bool operator==(const Area& other) const;
    };

    /// A part of the screen, a number a pixel; equal when each pixel is.
    using Picture = std::vector<std::uint32_t>;

    /// Keys that give no letter, as X keysyms.
    enum Key : std::uint32_t {
        BackSpace = 0xFF08,
        Tab = 0xFF09,
        Return = 0xFF0D,
        Escape = 0xFF1B,
        Down = 0xFF54,
        F4 = 0xFFC1,
        Control = 0xFFE3,
        Alt = 0xFFE9,
    };

    explicit PointerAndKeys(const std::string& display);
    ~PointerAndKeys();
    PointerAndKeys(const PointerAndKeys&) = delete;
    PointerAndKeys& operator=(const PointerAndKeys&) = delete;

    void MoveTo(int x, int y);
    /// Returns when the window manager has passed the click on, too: keys that follow come after it.
    void Click(int x, int y);
    void Press(Key key) { PressKeysym(key); }
    /// key: a Key, or the number of a letter.
    void PressWith(Key modifier, std::uint32_t key);
    /// Letters, digits and spaces of the US keyboard; capitals are not.
    void Type(const std::string& text);

    /// The window's inside; none when there is no such window.
    std::optional<Area> AreaOf(Window window) const;
    /// It and all windows around it are mapped.
    bool IsViewable(Window window) const;
    bool Exists(Window window) const { return AreaOf(window).has_value(); }
    /// 0 for the screen.
    Window HolderOf(Window window) const;
    /// One covers the other where both are, with all that is around them.
    bool IsAbove(Window one, Window other) const;
    /// The window that has the keyboard focus.
    Window Focused() const;

    /// The program's window around this one that no other window of the program holds; 0 for none.
    Window TopLevelOf(Window window) const;
    /// Asks for another place and size, as a window manager's user would; the place is the outer frame's.
    void Place(Window window, const Area& area);
    /// Asks the window's program to close it, as a window manager does.
    void AskToClose(Window window);

    /// What the user sees there; the area lies on the screen.
    Picture PictureOf(const Area& area) const;
    /// What was copied last in any program; empty after a second without an answer.
    std::string CopiedText() const;

    /// Windows that stand on the screen and that no window manager touches, such as menus; lowest first.
    std::vector<Window> Popups() const;
    /// Shows a window for a moment, and sees whether it gets a frame: a window manager that only just started
    /// may announce itself and still miss windows. Takes a second when there is none.
    bool HasWindowManager() const;

private:
    void Send(std::uint8_t type, std::uint8_t detail, int x = 0, int y = 0);
    void PressKeysym(std::uint32_t keysym);
    std::uint8_t KeyCode(std::uint32_t keysym) const;
    std::uint32_t Atom(const char* name) const;
    bool IsButtonDown() const;

    xcb_connection_t* const m_connection;
    Window m_root = 0;
};

/// For a test's explanations.
std::string Text(const std::optional<PointerAndKeys::Area>& area);

/// A popup opens over or directly below its widget, the edges at which lines start together; a frame may
/// stick out.
bool IsBeside(const std::optional<PointerAndKeys::Area>& popup, const PointerAndKeys::Area& widget,
              bool rightToLeft = false);
