#include "support/PointerAndKeys.h"

#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

namespace {

template<typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template<typename T>
Reply<T> Own(T* reply)
{
    return Reply<T>(reply, &std::free);
}

} // namespace

struct PointerAndKeys::State
{
    xcb_connection_t* connection;
    xcb_window_t root;

    Reply<xcb_get_window_attributes_reply_t> Attributes(Window window) const
    {
        return Own(xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window),
                                                   nullptr));
    }

    Reply<xcb_query_tree_reply_t> Tree(Window window) const
    {
        return Own(xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
    }
};

bool PointerAndKeys::Area::operator==(const Area& other) const
{
    return x == other.x && y == other.y && width == other.width && height == other.height;
}

PointerAndKeys::PointerAndKeys(const std::string& display) : m_state(std::make_unique<State>())
{
    m_state->connection = xcb_connect(display.c_str(), nullptr);
    if (xcb_connection_has_error(m_state->connection) != 0)
        ADD_FAILURE() << "no connection to display " << display;
    else
        m_state->root = xcb_setup_roots_iterator(xcb_get_setup(m_state->connection)).data->root;
}

PointerAndKeys::~PointerAndKeys()
{
    xcb_disconnect(m_state->connection);
}

/// Returns when the server has handled it.
void PointerAndKeys::Send(std::uint8_t type, std::uint8_t detail, int x, int y)
{
    xcb_connection_t* connection = m_state->connection;
    xcb_test_fake_input(connection, type, detail, XCB_CURRENT_TIME, m_state->root, static_cast<int16_t>(x),
                        static_cast<int16_t>(y), 0);
    Own(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

void PointerAndKeys::MoveTo(int x, int y)
{
    Send(XCB_MOTION_NOTIFY, 0, x, y);
}

void PointerAndKeys::Click(int x, int y)
{
    MoveTo(x, y);
    Send(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1);
    Send(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1);
}

void PointerAndKeys::Press(Key key)
{
    PressKeysym(key);
}

void PointerAndKeys::Type(const std::string& text)
{
    for (const char letter : text)
        PressKeysym(static_cast<std::uint8_t>(letter));
}

void PointerAndKeys::PressKeysym(std::uint32_t keysym)
{
    const std::uint8_t code = KeyCode(keysym);
    ASSERT_NE(code, 0) << "no key for keysym " << keysym;
    Send(XCB_KEY_PRESS, code);
    Send(XCB_KEY_RELEASE, code);
}

std::uint8_t PointerAndKeys::KeyCode(std::uint32_t keysym) const
{
    const xcb_setup_t* setup = xcb_get_setup(m_state->connection);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto map = Own(xcb_get_keyboard_mapping_reply(
        m_state->connection, xcb_get_keyboard_mapping(m_state->connection, setup->min_keycode, count),
        nullptr));
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(map.get());
    for (int key = 0; key < count; ++key)
        if (symbols[key * map->keysyms_per_keycode] == keysym)
            return static_cast<std::uint8_t>(setup->min_keycode + key);
    return 0;
}

std::optional<PointerAndKeys::Area> PointerAndKeys::AreaOf(Window window) const
{
    xcb_connection_t* connection = m_state->connection;
    const auto size = Own(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    const auto place = Own(xcb_translate_coordinates_reply(
        connection, xcb_translate_coordinates(connection, window, m_state->root, 0, 0), nullptr));
    if (!size || !place)
        return std::nullopt;
    return Area{place->dst_x, place->dst_y, size->width, size->height};
}

bool PointerAndKeys::IsViewable(Window window) const
{
    const auto attributes = m_state->Attributes(window);
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

PointerAndKeys::Window PointerAndKeys::HolderOf(Window window) const
{
    const auto tree = m_state->Tree(window);
    return !tree || tree->parent == tree->root ? 0 : tree->parent;
}

bool PointerAndKeys::IsAbove(Window one, Window other) const
{
    const auto outermost = [this](Window window) {
        while (const Window holder = HolderOf(window))
            window = holder;
        return window;
    };
    const auto tree = m_state->Tree(m_state->root);
    const xcb_window_t* lowest = xcb_query_tree_children(tree.get());
    const xcb_window_t* end = lowest + xcb_query_tree_children_length(tree.get());
    const xcb_window_t* found = std::find(lowest, end, outermost(one));
    return found != end && found > std::find(lowest, end, outermost(other));
}

PointerAndKeys::Window PointerAndKeys::Focused() const
{
    xcb_connection_t* connection = m_state->connection;
    return Own(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr))->focus;
}

std::vector<PointerAndKeys::Window> PointerAndKeys::Popups() const
{
    const auto tree = m_state->Tree(m_state->root);
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    std::vector<Window> popups;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const auto attributes = m_state->Attributes(children[i]);
        const auto area = AreaOf(children[i]);
        if (attributes && attributes->override_redirect && area && area->width > 1 &&
            attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
            attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT)
            popups.push_back(children[i]);
    }
    return popups;
}

bool PointerAndKeys::HasWindowManager() const
{
    xcb_connection_t* connection = m_state->connection;
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, m_state->root, 0, 0, 8, 8, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(connection, window);
    const bool framed = WaitUntil([&] { return HolderOf(window) != 0; }, std::chrono::seconds(1));
    xcb_destroy_window(connection, window);
    xcb_flush(connection);
    return framed;
}
