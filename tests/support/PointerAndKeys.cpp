#include "support/PointerAndKeys.h"

#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
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

Reply<xcb_get_window_attributes_reply_t> AttributesOf(xcb_connection_t* connection, xcb_window_t window)
{
    return Own(
        xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window), nullptr));
}

Reply<xcb_query_tree_reply_t> TreeOf(xcb_connection_t* connection, xcb_window_t window)
{
    return Own(xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
}

} // namespace

bool PointerAndKeys::Area::operator==(const Area& other) const
{
    return x == other.x && y == other.y && width == other.width && height == other.height;
}

PointerAndKeys::PointerAndKeys(const std::string& display)
    : m_connection(xcb_connect(display.c_str(), nullptr))
{
    if (xcb_connection_has_error(m_connection) != 0)
        ADD_FAILURE() << "no connection to display " << display;
    else
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
}

PointerAndKeys::~PointerAndKeys()
{
    xcb_disconnect(m_connection);
}

/// Returns when the server has handled it.
void PointerAndKeys::Send(std::uint8_t type, std::uint8_t detail, int x, int y)
{
    xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_root, static_cast<int16_t>(x),
                        static_cast<int16_t>(y), 0);
    Own(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
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
    EXPECT_TRUE(WaitUntil([&] { return !IsButtonDown(); })) << "the click was not passed on";
}

// The server holds the release back while a window manager thinks about the press.
bool PointerAndKeys::IsButtonDown() const
{
    const auto pointer =
        Own(xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_root), nullptr));
    return pointer && (pointer->mask & XCB_KEY_BUT_MASK_BUTTON_1) != 0;
}

void PointerAndKeys::PressWith(Key modifier, std::uint32_t key)
{
    Send(XCB_KEY_PRESS, KeyCode(modifier));
    PressKeysym(key);
    Send(XCB_KEY_RELEASE, KeyCode(modifier));
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
    const xcb_setup_t* setup = xcb_get_setup(m_connection);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto map = Own(xcb_get_keyboard_mapping_reply(
        m_connection, xcb_get_keyboard_mapping(m_connection, setup->min_keycode, count), nullptr));
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(map.get());
    for (int key = 0; key < count; ++key)
        if (symbols[key * map->keysyms_per_keycode] == keysym)
            return static_cast<std::uint8_t>(setup->min_keycode + key);
    return 0;
}

std::optional<PointerAndKeys::Area> PointerAndKeys::AreaOf(Window window) const
{
    const auto size =
        Own(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
    const auto place = Own(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, window, m_root, 0, 0), nullptr));
    if (!size || !place)
        return std::nullopt;
    return Area{place->dst_x, place->dst_y, size->width, size->height};
}

bool PointerAndKeys::IsViewable(Window window) const
{
    const auto attributes = AttributesOf(m_connection, window);
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

PointerAndKeys::Window PointerAndKeys::HolderOf(Window window) const
{
    const auto tree = TreeOf(m_connection, window);
    return !tree || tree->parent == tree->root ? 0 : tree->parent;
}

bool PointerAndKeys::IsAbove(Window one, Window other) const
{
    const auto outermost = [this](Window window) {
        while (const Window holder = HolderOf(window))
            window = holder;
        return window;
    };
    const auto tree = TreeOf(m_connection, m_root);
    const xcb_window_t* lowest = xcb_query_tree_children(tree.get());
    const xcb_window_t* end = lowest + xcb_query_tree_children_length(tree.get());
    const xcb_window_t* found = std::find(lowest, end, outermost(one));
    return found != end && found > std::find(lowest, end, outermost(other));
}

PointerAndKeys::Window PointerAndKeys::Focused() const
{
    return Own(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr))->focus;
}

std::vector<PointerAndKeys::Window> PointerAndKeys::Popups() const
{
    const auto tree = TreeOf(m_connection, m_root);
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    std::vector<Window> popups;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const auto attributes = AttributesOf(m_connection, children[i]);
        const auto area = AreaOf(children[i]);
        if (attributes && attributes->override_redirect && area && area->width > 1 &&
            attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
            attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT)
            popups.push_back(children[i]);
    }
    return popups;
}

PointerAndKeys::Window PointerAndKeys::TopLevelOf(Window window) const
{
    Window top = 0;
    for (; window != 0; window = HolderOf(window)) {
        const auto owner = Own(xcb_get_property_reply(
            m_connection, xcb_get_property(m_connection, 0, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 1),
            nullptr));
        if (owner && owner->value_len != 0)
            top = window;
    }
    return top;
}

void PointerAndKeys::Place(Window window, const Area& area)
{
    const std::uint32_t values[] = {static_cast<std::uint32_t>(area.x), static_cast<std::uint32_t>(area.y),
                                    static_cast<std::uint32_t>(area.width),
                                    static_cast<std::uint32_t>(area.height)};
    xcb_configure_window(m_connection, window,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT,
                         values);
    xcb_flush(m_connection);
}

void PointerAndKeys::AskToClose(Window window)
{
    xcb_client_message_event_t request = {};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = window;
    request.type = Atom("WM_PROTOCOLS");
    request.data.data32[0] = Atom("WM_DELETE_WINDOW");
    xcb_send_event(m_connection, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&request));
    xcb_flush(m_connection);
}

PointerAndKeys::Picture PointerAndKeys::PictureOf(const Area& area) const
{
    const auto image = Own(xcb_get_image_reply(
        m_connection,
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, static_cast<int16_t>(area.x),
                      static_cast<int16_t>(area.y), static_cast<uint16_t>(area.width),
                      static_cast<uint16_t>(area.height), ~0U),
        nullptr));
    if (!image)
        return {};
    Picture picture(static_cast<std::size_t>(xcb_get_image_data_length(image.get())) /
                    sizeof(Picture::value_type));
    std::memcpy(picture.data(), xcb_get_image_data(image.get()),
                picture.size() * sizeof(Picture::value_type));
    return picture;
}

std::string PointerAndKeys::CopiedText() const
{
    const Window taker = xcb_generate_id(m_connection);
    const std::uint32_t type = Atom("UTF8_STRING");
    const std::uint32_t place = Atom("COPIED_TEXT");
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, taker, m_root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_convert_selection(m_connection, taker, Atom("CLIPBOARD"), type, place, XCB_CURRENT_TIME);
    std::string text;
    WaitUntil(
        [&] {
            const auto property = Own(xcb_get_property_reply(
                m_connection, xcb_get_property(m_connection, 0, taker, place, type, 0, 1024), nullptr));
            if (!property || property->type != type)
                return false;
            text.assign(static_cast<const char*>(xcb_get_property_value(property.get())),
                        static_cast<std::size_t>(xcb_get_property_value_length(property.get())));
            return true;
        },
        std::chrono::seconds(1));
    xcb_destroy_window(m_connection, taker);
    return text;
}

std::uint32_t PointerAndKeys::Atom(const char* name) const
{
    const auto atom = Own(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(std::strlen(name)), name),
        nullptr));
    return atom ? atom->atom : std::uint32_t{XCB_ATOM_NONE};
}

bool PointerAndKeys::HasWindowManager() const
{
    const xcb_window_t window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_root, 0, 0, 8, 8, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(m_connection, window);
    const bool framed = WaitUntil([&] { return HolderOf(window) != 0; }, std::chrono::seconds(1));
    xcb_destroy_window(m_connection, window);
    xcb_flush(m_connection);
    return framed;
}

std::string Text(const std::optional<PointerAndKeys::Area>& area)
{
    return area ? std::to_string(area->x) + "," + std::to_string(area->y) + " " +
                      std::to_string(area->width) + "x" + std::to_string(area->height)
                : "nowhere";
}

bool IsBeside(const std::optional<PointerAndKeys::Area>& popup, const PointerAndKeys::Area& widget,
              bool rightToLeft)
{
    constexpr int kFrame = 8;
    if (!popup)
        return false;
    const int apart = rightToLeft ? popup->x + popup->width - widget.x - widget.width : popup->x - widget.x;
    return std::abs(apart) <= kFrame && popup->y <= widget.y + widget.height + kFrame &&
           popup->y + popup->height >= widget.y - kFrame;
}
