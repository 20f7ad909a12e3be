#include "Screen.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <vector>

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace bench {

namespace {

constexpr std::uint32_t kColor = 0x00ff00ff;
constexpr std::uint32_t kColorBits = 0x00ffffff;
constexpr std::uint16_t kWidth = 800;
constexpr std::uint16_t kHeight = 600;
constexpr int kLimitMs = 20000;

template<typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template<typename T>
Reply<T> Own(T* reply)
{
    return {reply, &std::free};
}

[[noreturn]] void Fail(const char* what)
{
    std::fprintf(stderr, "screen: %s\n", what);
    std::exit(1);
}

} // namespace

struct CScreen::State
{
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    xcb_window_t root = 0;
    xcb_window_t window = 0;

    ~State() { xcb_disconnect(connection); }

    void Open();
    std::vector<std::uint32_t> Pixels(std::int16_t x, std::int16_t y, std::uint16_t width,
                                      std::uint16_t height);
    bool IsBare() { return Pixels(kWidth / 2, kHeight / 2, 1, 1).front() == kColor; }
    void WaitForChange();
};

void CScreen::State::Open()
{
    if (xcb_connection_has_error(connection))
        Fail("no display");
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    root = screen->root;
    window = xcb_generate_id(connection);
    const std::uint32_t values[] = {kColor, 1};
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, root, 0, 0, kWidth, kHeight, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    xcb_map_window(connection, window);
    if (!Own(xcb_damage_query_version_reply(connection, xcb_damage_query_version(connection, 1, 1), nullptr)))
        Fail("the X server does not report damage");
    xcb_damage_create(connection, xcb_generate_id(connection), root, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
}

std::vector<std::uint32_t> CScreen::State::Pixels(std::int16_t x, std::int16_t y, std::uint16_t width,
                                                  std::uint16_t height)
{
    const auto image = Own(xcb_get_image_reply(
        connection,
        xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, root, x, y, width, height, kColorBits),
        nullptr));
    std::vector<std::uint32_t> pixels(std::size_t{width} * height);
    const std::size_t size = pixels.size() * sizeof pixels.front();
    if (!image || static_cast<std::size_t>(xcb_get_image_data_length(image.get())) < size)
        Fail("no picture of the screen, or not 24 bits deep");
    std::memcpy(pixels.data(), xcb_get_image_data(image.get()), size);
    for (std::uint32_t& pixel : pixels)
        pixel &= kColorBits;
    return pixels;
}

void CScreen::State::WaitForChange()
{
    pollfd readable{xcb_get_file_descriptor(connection), POLLIN, 0};
    xcb_flush(connection);
    auto event = Own(xcb_poll_for_event(connection));
    if (!event && poll(&readable, 1, kLimitMs) <= 0)
        Fail("nothing was painted");
    while (event || (event = Own(xcb_poll_for_event(connection))))
        event.reset();
    if (xcb_connection_has_error(connection))
        Fail("the X server is gone");
}

CScreen::CScreen() : m_state(std::make_unique<State>())
{
    m_state->Open();
    WaitUntilBare();
}

CScreen::~CScreen() = default;

void CScreen::Embed(std::uint64_t window)
{
    const auto guest = static_cast<xcb_window_t>(window);
    const std::uint32_t size[] = {kWidth, kHeight};
    xcb_reparent_window(m_state->connection, guest, m_state->window, 0, 0);
    xcb_configure_window(m_state->connection, guest, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         size);
    // The answer tells that the server has done it, before the guest is asked to show itself.
    if (!Own(xcb_query_tree_reply(m_state->connection, xcb_query_tree(m_state->connection, guest), nullptr)))
        Fail("no such window");
}

CScreen::Clock::time_point CScreen::WaitForPaint()
{
    while (m_state->IsBare())
        m_state->WaitForChange();
    return Clock::now();
}

std::size_t CScreen::Colors()
{
    const std::vector<std::uint32_t> pixels = m_state->Pixels(0, 0, kWidth, kHeight);
    return std::set<std::uint32_t>(pixels.begin(), pixels.end()).size();
}

void CScreen::WaitUntilBare()
{
    while (!m_state->IsBare())
        m_state->WaitForChange();
}

} // namespace bench
