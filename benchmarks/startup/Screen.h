#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace bench {

/// Sees when another program paints. A window of one glaring colour covers a part of the screen; what another
/// program puts above or into it shows that colour until the first paint, which the X server reports (DAMAGE)
/// and a look at the pixels confirms. Needs a screen without a window manager. Faults end the program.
class CScreen
{
public:
    using Clock = std::chrono::steady_clock;

    CScreen();
    ~CScreen();
    CScreen(const CScreen&) = delete;
    CScreen& operator=(const CScreen&) = delete;

    /// Puts a window of another program, not shown yet, into the coloured one, and makes it as large.
    void Embed(std::uint64_t window);

    /// When the colour is first seen to be painted over.
    Clock::time_point WaitForPaint();

    /// How many colours the place shows.
    std::size_t Colors();

    /// Waits until the place shows nothing but the colour again.
    void WaitUntilBare();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace bench
